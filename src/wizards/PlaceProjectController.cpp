#include "wizards/PlaceProjectController.h"

#include <algorithm>
#include <unordered_set>

#include "expert/MappingFile.h"
#include "expert/ProjectFiles.h"
#include "expert/SccSystem.h"
#include "host/Errors.h"
#include "system/Paths.h"
#include "system/System.h"
#include "wizards/PlaceProjectWizardStrings.h"
#include "wizards/WizardControllerStrings.h"

namespace kestrel::addin {

namespace {

/// The projects of this provider are directories of its own file system, so there is nothing to browse.
constexpr const char* kDirectoryProvider = "ClearCase";

}  // namespace

TPlaceProjectController::TPlaceProjectController(TCommandContext& expert)
    : TWizardController(expert),
      projectFile_(GetCurrentProjectFile()),
      directory_(ExtractFileDir(projectFile_)) {}

const TResString& TPlaceProjectController::StepCaption() const { return sPlaceStep; }
const TResString& TPlaceProjectController::StatusCaption() const { return sPlaceStatusPage; }
std::string TPlaceProjectController::NoProviderText() const { return sPlaceNoProvider; }
bool TPlaceProjectController::SkipsProjectPage() const {
  return FExpert.Provider.Name() == kDirectoryProvider;
}

void TPlaceProjectController::ShowPage(int page) {
  switch (page) {
    case 0:
      return PageSelectProviderDisplay();
    case 1:
      return PageSelectProjectDisplay();
    case 2:
      return PageSelectFilesDisplay();
    default:
      return PlaceProject();
  }
}

void TPlaceProjectController::PageSelectProjectDisplay() {
  Show(2, sWizardNext, !ProjectName().empty());
  if (SkipsProjectPage()) {
    NameProject(IncludeTrailingPathDelimiter(directory_));
    NextFinishButtonClick();
  } else {
    ProjectBrowserButtonClick();
  }
}

scc::Long TPlaceProjectController::Browse(TSCCProviderProject& project, TStateMessages& messages) {
  return project.GetProjectPath(messages, /*mayCreate*/ true, /*mayChangePath*/ false);
}

void TPlaceProjectController::PageSelectFilesDisplay() {
  Show(3, sWizardNext);
  files_.clear();
  shown_.clear();
  FExpert.Provider.RequireList(sPlaceNoProvider);
  std::unordered_set<std::string> known;  // a unit may also be a companion of another file
  for (auto& file : CurrentProjectFiles(/*onlyExisting*/ true))
    if (known.insert(FoldFileName(file)).second) files_.push_back(std::move(file));
  for (const auto& file : files_) shown_.push_back(RelativePath(directory_, file));
  ticked_.assign(files_.size(), true);
}

void TPlaceProjectController::PlaceProject() {
  PageStatusDisplay(Work::CanStop);
  bool placed = false;
  RunCatching([&] { placed = Place(); }, [this](const std::exception& error) { AddFailure({error.what()}); });
  // The mapping file stays even if placing fails (intentional).
  if (placed)
    FExpert.Provider.SetOpenProjectFile(projectFile_);
  else
    RollBack();
  Complete(placed);
}

bool TPlaceProjectController::Place() {
  AddStatus(Format(sPlaceInitializing, {ExtractFileName(projectFile_)}));
  const auto& project = EnsureProject();
  TMappingFile mapping(MappingFileName(projectFile_));
  mapping.Write(FExpert.Provider.Name(), kMapProjName, project.get_ProjName());
  mapping.Write(FExpert.Provider.Name(), kMapAuxProjPath, project.get_ProjPath());
  TProviderMessageRecorder recorder;
  const bool opened = Open(mapping, recorder);
  AddFiles(recorder, opened);  // intentional even if not opened: reports a failure for each file
  if (opened && !IsStopped()) AddStatus(sPlaceSucceeded);
  return opened;
}

void TPlaceProjectController::AddFiles(TProviderMessageRecorder& recorder, bool opened) {
  auto left = static_cast<long long>(std::ranges::count(ticked_, true));
  for (std::size_t row = 0; row < files_.size() && !IsStopped(); ++row)
    if (ticked_[row]) {
      AddFile(row, recorder, opened);
      --left;
    }
  if (IsStopped()) AddStatus(Format(sPlaceStopped, {left}));
}

bool TPlaceProjectController::Open(TMappingFile& mapping, TProviderMessageRecorder& recorder) {
  TStateMessages messages;
  // The first call may create the project; some providers report its final names only when it is opened again.
  Project().OpenProject(messages);
  Project().CloseProject(messages);
  recorder.DrainErrors();
  const auto code = Project().OpenProject(messages);
  if (code != scc::SCC_OK || !messages[2].empty()) {
    ShowReasons(Reasons(recorder, messages));
    return false;
  }
  mapping.Write(FExpert.Provider.Name(), kMapUserName, Project().get_UserName());
  return true;
}

void TPlaceProjectController::AddFile(std::size_t row, TProviderMessageRecorder& recorder, bool opened) {
  const auto& file = files_[row];
  TStateMessages messages;
  if (!Project().AddFile({file}, {}, KeepCheckedOut, messages)) {
    // Intentional: relative to the parent directory, so that the path starts with the project's directory.
    AddStatus(Format(sPlaceAddFailed, {RelativePath(ExtractFileDir(directory_), file)}));
    const auto reasons = Reasons(recorder, messages);
    if (!opened) return;  // the reason is the same for all files, and already shown
    for (const auto& reason : reasons) AddStatus(Format(sPlaceReason, {reason}));
    return;
  }
  recorder.DrainErrors();
  AddStatus(Format(sPlaceAddOk, {shown_[row]}));
  if (FileExists(file)) SetFileAttributesOf(file, faArchive);
}

void TPlaceProjectController::RollBack() {
  const auto close = [this] {
    TStateMessages messages;
    Project().CloseProject(messages);
    RemoveProject(directory_);
  };
  RunCatching<EAbort>(close, [](const EAbort&) {});  // the host has released the provider with its projects
}

}  // namespace kestrel::addin
