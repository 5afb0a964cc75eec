#include "wizards/PullProjectController.h"

#include <algorithm>
#include <filesystem>

#include "expert/MappingFile.h"
#include "expert/ProjectFiles.h"
#include "expert/ProviderWindows.h"
#include "host/Errors.h"
#include "system/FileName.h"
#include "system/Paths.h"
#include "system/Registry.h"
#include "system/System.h"
#include "wizards/FileSearch.h"
#include "wizards/PullProjectWizardStrings.h"
#include "wizards/WizardControllerStrings.h"

namespace kestrel::addin {

namespace {

namespace fs = std::filesystem;

// The projects of this provider are views that exist already, so there is nothing to pull.
constexpr const char* kViewProvider = "ClearCase";

// Only users of this provider may change the local path while they choose a project.
constexpr const char* kPathChoosingProvider = "software\\Mirelda\\MSIntegration3";

// Capacity in bytes of a provider's buffer for the local path, without terminator.
constexpr std::size_t kLongestPath = 260;

bool MayChangePath(const std::string& providerPath) {
  TRegistry registry;
  const auto chooser =
      registry.OpenKeyReadOnly(kPathChoosingProvider) ? registry.ReadString(kServerPath) : std::string();
  return SameText(chooser, providerPath);
}

/// The reason why a project cannot be pulled into that directory; empty if it can.
std::string TargetProblem(const std::string& directory) {
  if (directory.empty()) return sTargetNone;
  if (!IsAbsolutePath(directory)) return sTargetNotAbsolute;
  const auto encoded = ToCodePageExact(directory);
  if (!encoded) return Format(sTargetNotInCodePage, {directory});
  if (encoded->size() > kLongestPath)
    return Format(sTargetTooLong, {directory, static_cast<long long>(kLongestPath)});
  if (FileExists(directory) && !DirectoryExists(directory)) return Format(sTargetIsFile, {directory});
  return {};
}

/// The nearest parent directory with a mapping file; empty if there is none.
std::string ProjectAbove(std::string directory) {
  bool found = false;
  for (auto above = ExtractFileDir(directory); !found && above != directory; above = ExtractFileDir(above)) {
    directory = above;
    ForEachEntry(directory, [&](const TDirectoryEntry& entry) {
      found = found || SameText(ExtractFileExt(entry.Name), kMappingExtension);
    });
  }
  return found ? directory : std::string();
}

/// Remarks about a valid target directory.
std::string TargetNote(const std::string& directory) {
  if (!TargetProblem(directory).empty()) return {};
  std::string note;
  std::error_code ignored;
  if (!DirectoryExists(directory))
    note = sTargetWillBeMade;
  else if (!fs::is_empty(ToFilePath(directory), ignored) && !ignored)
    note = sTargetNotEmpty;
  const auto project = ProjectAbove(directory);
  if (project.empty()) return note;
  return note + (note.empty() ? "" : "\n") + Format(sTargetInProject, {project});
}

void MakeDirectory(const std::string& directory) {
  std::error_code failed;
  fs::create_directories(ToFilePath(directory), failed);
  if (failed) throw std::runtime_error(Format(sTargetNotMade, {directory, failed.message()}));
}

}  // namespace

TPullProjectController::TPullProjectController(TCommandContext& expert) : TWizardController(expert) {}

const TResString& TPullProjectController::StepCaption() const { return sPullStep; }
const TResString& TPullProjectController::StatusCaption() const { return sPullStatusPage; }
std::string TPullProjectController::NoProviderText() const { return sPullNoProvider; }
bool TPullProjectController::Offers(const std::string& provider) const { return provider != kViewProvider; }

std::string TPullProjectController::ProjectDirectory() {
  auto* services = IdeService<IOTAServices>();
  return services ? services->GetStartupDirectory() : std::string();
}

// The target directory comes before the project, because the provider receives it when the project is chosen.  The panels'
// numbers have the opposite order.
void TPullProjectController::ShowPage(int page) {
  switch (page) {
    case 0:
      return PageSelectProviderDisplay();
    case 1:
      return PageSelectTargetDisplay();
    case 2:
      return PageSelectProjectDisplay();
    default:
      return PullProject();
  }
}

void TPullProjectController::PageSelectTargetDisplay() {
  Show(3, sWizardNext);
  if (target_.empty()) TargetDirectoryChange(ProjectDirectory());
}

void TPullProjectController::TargetDirectoryChange(const std::string& text) {
  target_ = text;
  note_ = addin::TargetNote(FullTarget(text));
  page_.Problem.clear();
  Changed();
}

// A relative path is resolved against the host's start-up directory.
std::string TPullProjectController::FullTarget(const std::string& text) {
  const auto path = Trim(text);
  const auto full = ResolvePath(ProjectDirectory(), path);
  return path.empty() || !IsAbsolutePath(full) ? path : NormalizePath(full);
}

bool TPullProjectController::CanLeave() {
  if (page_.Panel != 3) return true;
  target_ = FullTarget(target_);
  page_.Problem = TargetProblem(target_);
  return page_.Problem.empty();
}

void TPullProjectController::MoveToTarget() {
  auto& project = EnsureProject();
  project.set_LocalPath(target_);
  SetLocalPathFrom(project);
}

void TPullProjectController::PageSelectProjectDisplay() {
  Show(2, sPullNext, !ProjectName().empty());
  MoveToTarget();
  ProjectBrowserButtonClick();
}

scc::Long TPullProjectController::Browse(TSCCProviderProject& project, TStateMessages& messages) {
  const auto code =
      project.GetProjectPath(messages, /*mayCreate*/ false, MayChangePath(FExpert.Provider.Path()));
  SetLocalPathFrom(project);
  if (code == scc::SCC_OK && LocalPath() != target_) TargetDirectoryChange(LocalPath());
  return code;
}

/// Shows the text of a step before it begins, because the provider may write nothing for minutes.
void TPullProjectController::BeginStep(const TResString& text) {
  progress_ = text;
  Changed();
}

void TPullProjectController::PullProject() {
  FProjectFile.clear();
  canOpen_ = false;
  PageStatusDisplay(Work::Uninterrupted);
  RunCatching([this] { canOpen_ = Pull(); },
              [this](const std::exception& error) { AddFailure({error.what()}); });
  Finish();
  progress_.clear();
  Complete(canOpen_);
}

bool TPullProjectController::Pull() {
  MakeDirectory(target_);
  MoveToTarget();
  TProviderMessageRecorder recorder;
  BeginStep(sPullOpening);
  const auto expected = Open(recorder) ? FindProjectFile() : 0;
  if (FProjectFile.empty()) {
    AddStatus(sPullNoProjectFile);
    return false;
  }
  const bool fetched = Fetch(expected);
  ListFetched();
  WriteMapping();
  return fetched && FileExists(FProjectFile);
}

bool TPullProjectController::Open(TProviderMessageRecorder& recorder) {
  TStateMessages messages;
  const auto code = Project().OpenProject(messages, target_);
  if (code >= 0 && messages[2].empty()) return true;
  AddFailure(Reasons(recorder, messages));
  return false;
}

/// Sets FProjectFile.  Returns the number of files to fetch, that is, without those of the host's current project, which
/// the list contains as well.
std::size_t TPullProjectController::FindProjectFile() {
  BeginStep(sPullListing);
  TStringList files;
  Project();  // makes it current
  ProviderAddRemove(FExpert, files, scc::SCC_COMMAND_GET);
  const auto found = std::ranges::find_if(files, IsProjectFile);
  if (found != files.end()) FProjectFile = *found;
  return static_cast<std::size_t>(std::ranges::count_if(
      files, [this](const std::string& file) { return RelativePathBelow(target_, file) != file; }));
}

bool TPullProjectController::Fetch(std::size_t expected) {
  BeginStep(sPullFetching);
  long long done = 0;
  TProviderMessageRecorder recorder([&](const std::string& line) {
    done = std::min(done + 1, static_cast<long long>(expected));
    progress_ = Format(sPullFetched, {done, static_cast<long long>(expected), line});
    Progressed();
  });
  TStateMessages messages;
  const auto code = Project().GetFilesAndDirs({target_}, messages);
  for (const auto& warning : recorder.DrainWarnings()) AddStatus(warning);
  if (code >= 0) return true;
  AddFailure(Reasons(recorder, messages));
  return false;
}

void TPullProjectController::ListFetched() {
  BeginStep(sPullChecking);
  TStringList entries;
  SearchRecursiveFiles(entries, target_);
  TStatusArray statuses;
  TProviderMessageRecorder recorder;
  // With the provider's own files there may be more entries than one query can have.
  for (std::size_t first = 0; first < entries.size(); first += kMaxFiles) {
    const auto last = std::min(entries.size(), first + kMaxFiles);
    const TStringList part(entries.begin() + static_cast<std::ptrdiff_t>(first),
                           entries.begin() + static_cast<std::ptrdiff_t>(last));
    TStateMessages messages;
    statuses.Clear();
    if (!Project().Query(part, statuses, messages)) {
      WriteFailure(target_, messages);
      AddFailure(Reasons(recorder, messages));
    }
    for (std::size_t i = 0; i < part.size(); ++i) {
      if (!(statuses[i] & scc::SCC_STATUS_CONTROLLED)) continue;
      AddStatus(Format(sPullGetOf, {RelativePathBelow(target_, part[i])}));
      if (!DirectoryExists(part[i])) SetFileAttributesOf(part[i], faArchive);
    }
  }
}

// The mapping file is in the target directory, which the provider knows, even if the project file is below it.
void TPullProjectController::WriteMapping() {
  const auto& project = Project();
  TMappingFile mapping(
      MappingFileName(IncludeTrailingPathDelimiter(target_) + ExtractFileName(FProjectFile)));
  mapping.Write(FExpert.Provider.Name(), kMapProjName, project.get_ProjName());
  mapping.Write(FExpert.Provider.Name(), kMapAuxProjPath, project.get_ProjPath());
}

void TPullProjectController::Finish() {
  const auto close = [this] {
    TStateMessages messages;
    Project().CloseProject(messages);
  };
  RunCatching<EAbort>(close, [](const EAbort&) {});  // the host has released the provider with its projects
  AddStatus(sPullDone);
  RemoveProject(ProjectDirectory());
  if (!FProjectFile.empty()) RemoveProject(ExtractFileDir(FProjectFile));
  RemoveProject(LocalPath());  // differs if the project file is in a subdirectory
}

}  // namespace kestrel::addin
