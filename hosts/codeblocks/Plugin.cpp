// The plug-in: creates the host's services, loads the package and passes on what the IDE reports.
#include <cbplugin.h>
#include <sdk.h>
#include <sdk_events.h>

#include <array>
#include <memory>

#include "FileStates.h"
#include "FileTypes.h"
#include "Installation.h"
#include "Modules.h"
#include "OptionsPanel.h"
#include "PluginStrings.h"
#include "ProjectWatch.h"
#include "Sdk.h"
#include "hosts/common/IdeServices.h"
#include "hosts/common/MenuBridge.h"
#include "hosts/common/PackageLoader.h"
#include "hosts/common/WindowMenu.h"

namespace kestrel::codeblocks {

namespace {

constexpr const char* kSettingsKey = "Software\\Corvane\\CodeBlocks";
constexpr const char* kPackage = "KestrelIDE.so";

/// All that exists while the plug-in is attached, in the order of creation.
class THost {
 public:
  explicit THost(wxFrame& frame);
  THost(const THost&) = delete;
  THost& operator=(const THost&) = delete;
  ~THost();

  TIdeServices Services;
  TProjectWatch Watch{Services.Notifications()};
  TModules Modules{Services.Caller(), [this] { Watch.Update(); }};
  TFileTypes FileTypes;
  TFileStates FileStates;
  TMenuBridge Menus;

 private:
  TPackageLoader packages_{Services.Caller()};
};

THost::THost(wxFrame& frame)
    : Services(kSettingsKey, InstalledFile(kHelpFolder),
               [](const std::string& line) { Manager::Get()->GetLogManager()->Log(ToWx(line)); }),
      Menus(frame, Services.Caller()) {
  Services.Publish<IOTAModuleServices>(Modules);
  Services.Publish<IOTAEditorServices>(Modules);
  Services.Publish<IOTAActionServices>(Modules);
  Services.Publish<IOTAFileTypes>(FileTypes);
  Services.Publish<IOTAFileStateServices>(FileStates);
  Services.Publish<IOTAMenuServices>(Menus);
  packages_.Load(InstalledFile(kPackage));
  Services.Caller().Run(kPackage, [this] { Services.Application().MainFormCreated().Fire(); });
  for (int i = 0; i < Editors().GetEditorsCount(); ++i) Watch.FileOpened(FileOf(Editors().GetEditor(i)));
  Watch.Update();
}

THost::~THost() {
  packages_.Finalize();
  Services.WithdrawWindowServices();
  Services.DropRegistrations();
  wxTheApp->ProcessIdle();  // deletes the windows of the package, whose code is unloaded next
}

class TPlugin final : public cbPlugin {
 public:
  void BuildMenu(wxMenuBar* bar) override;
  void BuildModuleMenu(const ModuleType type, wxMenu* menu, const FileTreeData* data) override;
  int GetConfigurationGroup() const override { return cgContribPlugin; }
  cbConfigurationPanel* GetConfigurationPanel(wxWindow* parent) override;

 private:
  void OnAttach() override;
  void OnRelease(bool appShutDown) override;
  void OnEditorOpened(CodeBlocksEvent& event) { host_->Watch.FileOpened(FileOf(event.GetEditor())); }
  void OnEditorClosing(CodeBlocksEvent& event) { host_->Watch.FileClosing(FileOf(event.GetEditor())); }
  void OnBeforeSave(CodeBlocksEvent& event) { NotifyEditor(event, &IOTANotifier::BeforeSave); }
  void OnAfterSave(CodeBlocksEvent& event) { NotifyEditor(event, &IOTANotifier::AfterSave); }
  void OnModified(CodeBlocksEvent& event) { NotifyEditor(event, &IOTANotifier::Modified); }
  void OnProjectClosing(CodeBlocksEvent& event) { host_->Watch.ProjectClosing(FileOf(event.GetProject())); }
  void OnProjectsChanged(CodeBlocksEvent& event);
  void NotifyEditor(const CodeBlocksEvent& event, void (IOTANotifier::*notification)()) {
    host_->Modules.Notify(FileOf(event.GetEditor()), notification);
  }

  std::unique_ptr<THost> host_;  // null while the plug-in is disabled
};

const PluginRegistrant<TPlugin> registration("KestrelCodeBlocks");

void TPlugin::OnAttach() {
  RegisterProvider();
  host_ = std::make_unique<THost>(*Manager::Get()->GetAppFrame());
  const auto on = [this](wxEventType type, void (TPlugin::*handler)(CodeBlocksEvent&)) {
    Manager::Get()->RegisterEventSink(type, new cbEventFunctor<TPlugin, CodeBlocksEvent>(this, handler));
  };
  on(cbEVT_EDITOR_OPEN, &TPlugin::OnEditorOpened);
  on(cbEVT_EDITOR_CLOSE, &TPlugin::OnEditorClosing);
  on(cbEVT_EDITOR_BEFORE_SAVE, &TPlugin::OnBeforeSave);
  on(cbEVT_EDITOR_SAVE, &TPlugin::OnAfterSave);
  on(cbEVT_EDITOR_MODIFIED, &TPlugin::OnModified);
  on(cbEVT_PROJECT_CLOSE, &TPlugin::OnProjectClosing);
  for (const auto type : {cbEVT_PROJECT_OPEN, cbEVT_PROJECT_ACTIVATE, cbEVT_WORKSPACE_LOADING_COMPLETE,
                          cbEVT_WORKSPACE_CLOSING_COMPLETE})
    on(type, &TPlugin::OnProjectsChanged);
}

void TPlugin::OnRelease(bool appShutDown) {
  Manager::Get()->RemoveAllEventSinksFor(this);
  host_.reset();
  if (!appShutDown) UnregisterProvider();
}

void TPlugin::OnProjectsChanged(CodeBlocksEvent&) {
  host_->Watch.Update();
  CallAfter([this] {  // the IDE may report it too early
    if (host_) host_->Watch.Update();
  });
}

void TPlugin::BuildMenu(wxMenuBar* bar) {
  if (!host_) return;
  host_->Menus.ShowIn(*bar);
  if (const int view = bar->FindMenu(_("View")); view != wxNOT_FOUND)
    AppendPackageWindows(*Manager::Get()->GetAppFrame(), *bar->GetMenu(static_cast<std::size_t>(view)));
}

void TPlugin::BuildModuleMenu(const ModuleType type, wxMenu* menu, const FileTreeData* data) {
  if (!host_) return;
  std::string file;
  if (type == mtEditorManager) file = FileOf(Editors().GetActiveEditor());
  if (type == mtProjectManager && data && data->GetKind() == FileTreeData::ftdkProject)
    file = FileOf(data->GetProject());
  if (type == mtProjectManager && data && data->GetKind() == FileTreeData::ftdkFile && data->GetProjectFile())
    file = FromWx(data->GetProjectFile()->file.GetFullPath());
  if (!file.empty()) host_->Menus.AppendFileMenus(*menu, file);
}

cbConfigurationPanel* TPlugin::GetConfigurationPanel(wxWindow* parent) {
  return host_ ? new TOptionsPanel(parent, host_->Services.Options(), host_->Services.Caller()) : nullptr;
}

}  // namespace

}  // namespace kestrel::codeblocks
