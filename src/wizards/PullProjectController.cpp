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

// Projects of this provider are views that exist already: there is nothing to pull.
constexpr const char* kViewProvider = "ClearCase";

// The one provider whose users may change the local path while they pick a project.
constexpr const char* kPathChoosingProvider = "software\\Mirelda\\MSIntegration3";

// What a provider's field for the local path holds, in the text that it gets.
constexpr std::size_t kLongestPath = 260;

bool MayChangePath(const std::string& providerPath) {
  TRegistry registry;
  const auto chooser =
      registry.OpenKeyReadOnly(kPathChoosingProvider) ? registry.ReadString(kServerPath) : std::string();
  return SameText(chooser, providerPath);
}

/// Why a project cannot be pulled into that directory; empty when it can.
std::string TargetProblem(const std::string& directory) {
  if (directory.empty()) return sTargetNone;
  if (!IsAbsolutePath(directory)) return sTargetNotAbsolute;
  const auto told = ToCodePageExact(directory);
  if (!told) return Format(sTargetNotInCodePage.Text, {directory});
  if (told->size() > kLongestPath)
    return Format(sTargetTooLong.Text, {directory, static_cast<long long>(kLongestPath)});
  if (FileExists(directory) && !DirectoryExists(directory)) return Format(sTargetIsFile.Text, {directory});
  return {};
}

/// The nearest directory above that has a mapping file; empty when there is none.
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

/// What else the user should know about it.
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
  return note + (note.empty() ? "" : "\n") + Format(sTargetInProject.Text, {project});
}

void MakeDirectory(const std::string& directory) {
  std::error_code failed;
  fs::create_directories(ToFilePath(directory), failed);
  if (failed) throw std::runtime_error(Format(sTargetNotMade.Text, {directory, failed.message()}));
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

// The directory comes before the project, since the provider is told of it when the project is picked; the panels are
// numbered otherwise.
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

// What the user may leave out of a path: the start-up directory in front, a delimiter at the end.
std::string TPullProjectController::FullTarget(const std::string& text) {
  const auto path = Trim(text);
  const auto full = ResolvePath(ProjectDirectory(), path);
  return path.empty() || !IsAbsolutePath(full) ? path : NormalizePath(full);
}

bool TPullProjectController::MayLeave() {
  if (page_.Panel != 3) return true;
  target_ = FullTarget(target_);
  page_.Problem = TargetProblem(target_);
  return page_.Problem.empty();
}

void TPullProjectController::MoveToTarget() {
  auto& project = EnsureProject();
  project.set_LocalPath(target_);
  Follow(project);
}

void TPullProjectController::PageSelectProjectDisplay() {
  Show(2, sPullNext, !ProjectName().empty());
  MoveToTarget();
  ProjectBrowserButtonClick();
}

scc::Long TPullProjectController::Browse(TSCCProviderProject& project, TStateMessages& messages) {
  const auto code =
      project.GetProjectPath(messages, /*mayCreate*/ false, MayChangePath(FExpert.Provider.Path()));
  Follow(project);
  if (code == scc::SCC_OK && LocalPath() != target_) TargetDirectoryChange(LocalPath());
  return code;
}

/// What is done from here on.  The provider may say nothing for minutes: the line must be there before.
void TPullProjectController::BeginStep(const TResString& text) {
  progress_ = text;
  Changed();
}

void TPullProjectController::PullProject() {
  FProjectFile.clear();
  can_open_ = false;
  PageStatusDisplay(Work::Uninterrupted);
  RunCatching([this] { can_open_ = Pull(); },
              [this](const std::exception& error) { AddFailure({error.what()}); });
  Finish();
  progress_.clear();
  Complete(can_open_);
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

/// Sets FProjectFile; returns how many files are to be fetched: the list begins with those of the host's own project.
std::size_t TPullProjectController::FindProjectFile() {
  BeginStep(sPullListing);
  TStringList files;
  Project();  // the one whose files are asked for
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
    progress_ = Format(sPullFetched.Text, {done, static_cast<long long>(expected), line});
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
  // A provider may keep as many files of its own there as the project has: more than one query's worth, then.
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
      AddStatus(Format(sPullGetOf.Text, {RelativePathBelow(target_, part[i])}));
      if (!DirectoryExists(part[i])) SetFileAttributesOf(part[i], faArchive);
    }
  }
}

// Always in the target directory, wherever below it the project file is: that is the directory that the provider knows.
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
  RemoveProject(LocalPath());  // the project file may be in a directory below
}

}  // namespace kestrel::addin
