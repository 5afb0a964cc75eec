#include "expert/SccExpert.h"

#include <algorithm>
#include <array>
#include <utility>

#include "expert/EditorNotifiers.h"
#include "expert/FileCommandRun.h"
#include "expert/SccExpertStrings.h"
#include "expert/SccIDENotifier.h"
#include "expert/SccSystemStrings.h"
#include "expert/WizardGlyph.h"
#include "host/Errors.h"
#include "system/Paths.h"
#include "ui/ExpertMainMenuStrings.h"

namespace kestrel::addin {

TSccExpert* aSccExpert = nullptr;

TSccExpert::TSccExpert(IExpertUi& ui, TTimeSource clock)
    : context_(ui),
      reopening_(std::move(clock)),
      checkOutOffer_{[this](const auto& file) { return IsCheckOutOffered(file); },
                     [this](const auto& file) { return CheckOutAtOnce(file); }} {
  RunCatching(
      [this] { Create(); },
      [&](const std::exception& error) { ui.ShowBox(Format(sExpertCreateError, {error.what()}), metError); });
}

void TSccExpert::Create() {
  context_.Log.Open();
  ReadSettings();
  auto* services = IdeService<IOTAServices>();
  if (!services) throw std::runtime_error(sUnableToGetIDEServices);
  menu_ = std::make_unique<TExpertMainMenuModule>(*this);
  menu_->EnableMenus(false);  // no project is open, and the host may show the state before the menu opens
  WriteMessage(mwtInfo, sStartUp);
  WriteMessageFmt(mwtInfo, sProviderLine, {ProviderName()});
  ideNotifier_ = std::make_shared<TSccIDENotifier>(*this);
  ideNotifierIndex_ = services->AddNotifier(ideNotifier_);
  if (auto* states = IdeService<IOTAFileStateServices>()) states->InsertCheckOutOffer(checkOutOffer_);
  formEditorManager_ = std::make_unique<TFormEditorManager>(*this);
  sourceEditorManager_ = std::make_unique<TSourceEditorManager>(*this);
}

TSccExpert::~TSccExpert() {
  if (auto* states = IdeService<IOTAFileStateServices>()) states->RemoveCheckOutOffer(checkOutOffer_);
  menu_.reset();
  if (ideNotifierIndex_)
    if (auto* services = IdeService<IOTAServices>()) services->RemoveNotifier(*ideNotifierIndex_);
  if (aSccExpert == this) aSccExpert = nullptr;
}

void* TSccExpert::QueryInterface(const TGuid& iid) noexcept {
  return FindInterface<IOTAWizard, IOTANotifier>(this, iid);
}

std::string TSccExpert::GetIDString() { return sCompanyName.str() + sWizardName.str(); }
std::string TSccExpert::GetName() { return sWizardName; }
unsigned TSccExpert::GetState() { return wsEnabled; }

void TSccExpert::Execute() {
  RunCommand(sPullProjectError.Text, [this] { PullProjectWizard(); });
}

std::string TSccExpert::GetAuthor() { return sAuthorsName; }
std::string TSccExpert::GetComment() { return sWizardDescription; }
std::string TSccExpert::GetPage() { return sEmptyString; }
std::string TSccExpert::GetGlyph() { return kPullProjectGlyph; }
std::string TSccExpert::GetDesigner() { return "Any"; }
std::string TSccExpert::GetPersonality() { return "Default.Personality"; }

IOTAGalleryCategory* TSccExpert::GetGalleryCategory() {
  auto* categories = IdeService<IOTAGalleryCategoryManager>();
  return categories ? categories->FindCategory("Corvane.Osprey.Other") : nullptr;
}

void TSccExpert::Run(TActivity activity, std::string_view format,
                     const std::function<void()>& body) noexcept {
  const auto report = [&](const std::exception& error) { LogCommandError(format, error); };
  // The inner one reports before the notifications run that have waited; the outer one reports a refusal.
  RunCatching([&] { context_.Activities.Run(activity, [&] { RunCatching(body, report); }); }, report);
}

void TSccExpert::RunCommand(std::string_view format, const std::function<void()>& command) noexcept {
  Run(TActivity::Command, format, command);
}

void TSccExpert::RunMenuOpening(std::string_view format, const std::function<void()>& refresh) noexcept {
  Run(TActivity::MenuOpening, format, refresh);
}

void TSccExpert::ViewChange(const std::string& fileName) {
  // Commands open views, too: no refusal is reported for that.
  if (context_.Activities.Check(TActivity::Command) != TActivities::TVerdict::Start) return;
  RunCommand(sViewChangeError, [&] { ShowStatus(context_, fileName); });
}

bool TSccExpert::ReadSCCIniFile(const std::string& projectFile, std::string& projName, std::string& userName,
                                std::string& auxProjPath) {
  const auto binding = context_.Provider.ReadBinding(projectFile, userName);
  projName = binding.ProjName;
  auxProjPath = binding.AuxProjPath;
  userName = binding.UserName;
  return binding.Complete;
}

void TSccExpert::ChooseProvider(const std::string& provider, const std::string& userName) {
  context_.Activities.Run(TActivity::ProviderChoice, [&] {
    auto& chosen = context_.Provider;
    chosen.Release();
    chosen.Select(provider, userName);
    auto* services = IdeService<IOTAServices>();
    if (!services) throw EAbort(sUnableToGetIDEServices);
    chosen.Load(services->GetParentHandle());
    chosen.SetProjectNotMapped(true);  // the menu reads the project's settings again when it opens
  });
}

void TSccExpert::AddAssociatedFiles(TStringList* list, bool removeMissing) {
  if (!list) return;
  context_.Provider.RequireList(sGetFilesNoProvider);
  *list = CurrentProjectFiles(removeMissing);
}

void TSccExpert::AddFiles(const std::string& fileName) {
  TFileCommandRun(context_, kAddFiles, fileName).Execute();
}
void TSccExpert::RemoveFiles(const std::string& fileName) {
  TFileCommandRun(context_, kRemoveFiles, fileName).Execute();
}
void TSccExpert::GetLatestVersion(const std::string& fileName) {
  TFileCommandRun(context_, kGetLatestVersion, fileName).Execute();
}
void TSccExpert::CheckInFiles(const std::string& fileName) {
  TFileCommandRun(context_, kCheckInFiles, fileName).Execute();
}
void TSccExpert::CheckOutFiles(const std::string& fileName) {
  TFileCommandRun(context_, kCheckOutFiles, fileName).Execute();
}
void TSccExpert::UndoCheckOut(const std::string& fileName) {
  TFileCommandRun(context_, kUndoCheckOut, fileName).Execute();
}

bool TSccExpert::IsAllowed(TFileAction action, const std::string& fileName) const {
  constexpr auto kChange = scc::SCC_STATUS_MODIFIED | scc::SCC_STATUS_MERGED;
  struct TRule {
    bool (*Eligible)(scc::Long status);
    scc::Long OrAny;  // what was changed without a check-out can be handed in or given up, too
  };
  static constexpr std::array kRules{
      // in the order of TFileAction
      TRule{CanCheckOut, 0},
      TRule{CanCheckIn, kChange},
      TRule{CanAdd, 0},
      TRule{CanRemove, 0},
      TRule{CanUndoCheckOut, kChange | scc::SCC_STATUS_DELETED},
      TRule{CanGet, 0},
      TRule{CanGet, 0},
  };
  const auto status = context_.Statuses.Of(fileName);
  const auto& rule = kRules[static_cast<std::size_t>(action)];
  return !status || rule.Eligible(*status) || (*status & rule.OrAny) != 0;
}

bool TSccExpert::IsCheckOutOffered(const std::string& fileName) const {
  if (!HasProviderProject() || context_.Activities.Check(TActivity::Command) != TActivities::TVerdict::Start)
    return false;
  if (const auto status = context_.Statuses.Of(fileName)) return CanCheckOut(*status);
  return std::ranges::any_of(CurrentProjectFiles(/*onlyExisting*/ false),
                             [&](const auto& file) { return SameText(file, fileName); });
}

bool TSccExpert::CheckOutAtOnce(const std::string& fileName) {
  bool done = false;
  RunCommand(sCheckFilesOutError,
             [&] { done = TFileCommandRun(context_, kCheckOutFiles, fileName).ExecuteAtOnce(); });
  return done;
}

}  // namespace kestrel::addin
