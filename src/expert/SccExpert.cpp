#include "expert/SccExpert.h"

#include <tuple>

#include "expert/EditorNotifiers.h"
#include "expert/SccExpertStrings.h"
#include "expert/SccIDENotifier.h"
#include "expert/SccSystem.h"
#include "expert/SccSystemStrings.h"
#include "expert/WizardGlyph.h"
#include "host/Errors.h"
#include "host/Paths.h"
#include "ui/ExpertMainMenu.h"
#include "ui/ExpertMainMenuStrings.h"

TSccExpert* aSccExpert = nullptr;

namespace {
/// The message window; created and freed by the expert.
std::unique_ptr<IMessageWindow> aMsgWin;
}  // namespace

void WriteMessage(TMsgWinType kind, const std::string& text) {
  if (!aMsgWin) throw std::runtime_error(sMessageWindowNil);
  if (!Trim(text).empty()) aMsgWin->SendMessage(kind, text);
}

void WriteMessageFmt(TMsgWinType kind, std::string_view format, std::initializer_list<TFormatArg> args) {
  WriteMessage(kind, Format(format, args));
}

void WriteFailure(const std::string& what, const TStateMessages& messages) {
  const auto& [line, information, error] = messages;
  WriteMessageFmt(mwtError, sFailure.Text, {what, error.empty() ? information : error});
}

void Guarded(TMsgWinType kind, const TResString& format, const std::function<void()>& body) {
  try {
    body();
  } catch (const std::exception& error) {
    WriteMessageFmt(kind, format.Text, {error.what()});
  }
}

/// Brings what providers say to the message window.
class TProviderMessages final : public IProviderSink {
 public:
  explicit TProviderMessages(IExpertForms& forms) : forms_(forms), previous_(SetProviderSink(this)) {
    SetProviderWaker([] { aMsgWin->CallSoon(ShowProviderLines); });
  }
  TProviderMessages(const TProviderMessages&) = delete;
  TProviderMessages& operator=(const TProviderMessages&) = delete;
  ~TProviderMessages() override {
    SetProviderWaker({});
    SetProviderSink(previous_);
  }

  void Line(Kind kind, const std::string& text) override {
    constexpr std::array kKinds{mwtInfo, mwtWarning, mwtError};
    WriteMessage(kKinds[static_cast<std::size_t>(kind)], text);
  }
  void Box(const std::string& text) override { forms_.ShowBox(text, metInfo); }

 private:
  IExpertForms& forms_;
  IProviderSink* previous_;
};

TSccExpert::TSccExpert(IExpertForms& forms) : forms_(forms) {
  try {
    Create();
  } catch (const std::exception& error) {
    forms_.ShowBox(Format(sExpertCreateError.Text, {error.what()}), metError);
  }
}

void TSccExpert::Create() {
  if (!aMsgWin) aMsgWin = forms_.CreateMessageWindow();
  provider_messages_ = std::make_unique<TProviderMessages>(forms_);
  ReadSettings();
  auto* services = IdeService<IOTAServices>();
  if (!services) throw std::runtime_error(sUnableToGetIDEServices);
  menu_ = std::make_unique<TExpertMainMenuModule>(*this);
  menu_->EnableMenus(
      false);  // no project is open; and the host knows before the menu opens what is not in it
  WriteMessage(mwtInfo, sStartUp);
  WriteMessageFmt(mwtInfo, sProviderLine.Text, {provider_name_});
  ide_notifier_ = std::make_shared<TSccIDENotifier>(*this);
  ide_notifier_index_ = services->AddNotifier(ide_notifier_);
  form_editor_manager_ = std::make_unique<TFormEditorManager>(*this);
  source_editor_manager_ = std::make_unique<TSourceEditorManager>(*this);
}

TSccExpert::~TSccExpert() {
  menu_.reset();
  if (ide_notifier_index_)
    if (auto* services = IdeService<IOTAServices>()) services->RemoveNotifier(*ide_notifier_index_);
  if (activities_.InProviderCall())
    std::ignore = provider_list_.release();  // stays for as long as the process does: its code is running
  else
    ReleaseProvider();
  provider_messages_.reset();
  aMsgWin.reset();
  form_editor_manager_.reset();
  source_editor_manager_.reset();
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

bool TSccExpert::IsUnit(const std::string& fileName) const {
  return SameText(ExtractFileExt(fileName), source_extension_);
}

bool TSccExpert::IsProject(const std::string& fileName) const {
  const auto extension = ExtractFileExt(fileName);
  return SameText(extension, project_extension_) || SameText(extension, package_extension_);
}

bool TSccExpert::IsProjectFile(const std::string& fileName) const {
  return IsProject(fileName) || SameText(ExtractFileExt(fileName), project_group_extension_);
}

namespace {

/// Runs `body` and writes what it throws to the message window.  A cancelled command is no error.
void Reported(std::string_view format, const std::function<void()>& body) noexcept {
  const auto write = [&](TMsgWinType kind, const char* message) {
    if (aMsgWin) aMsgWin->SendMessage(kind, format, {message});
  };
  try {
    body();
  } catch (const EAbort& abort) {
    write(mwtInfo, abort.what());
  } catch (const std::exception& error) {
    write(mwtError, error.what());
  }
}

}  // namespace

void TSccExpert::Run(TActivity activity, std::string_view format,
                     const std::function<void()>& body) noexcept {
  Reported(format, [&] { activities_.Run(activity, [&] { Reported(format, body); }); });
}

void TSccExpert::RunCommand(std::string_view format, const std::function<void()>& command) noexcept {
  Run(TActivity::Command, format, command);
}

void TSccExpert::RunMenuOpening(std::string_view format, const std::function<void()>& refresh) noexcept {
  Run(TActivity::MenuOpening, format, refresh);
}

void TSccExpert::DisplayMessages(const std::string& title, const TStateMessages& messages) {
  const auto& [line, information, error] = messages;
  if (!error.empty()) forms_.ShowMsgDialog(title, error, metError);
  if (!line.empty()) {
    WriteMessage(mwtInfo, line);
    forms_.ShowMsgDialog(title, line, metWarning);  // the operation's own line is meant to warn
  }
  if (!information.empty()) forms_.ShowMsgDialog(title, information, metWarning);
}

void TSccExpert::ViewMessages() {
  if (aMsgWin) aMsgWin->ShowWindow(true);
}

void TSccExpert::WarnOnce(const std::string& text) {
  if (std::exchange(last_warning_, text) != text) WriteMessage(mwtWarning, text);
}

void TSccExpert::HideMessages() {
  if (aMsgWin) aMsgWin->ShowWindow(false);
}

void TSccExpert::CommitBrowser() { forms_.ShowCommitBrowser(*this); }
