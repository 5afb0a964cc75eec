// A small package that uses every service of the host and writes down what the host calls: one line per call, into the
// file that the environment names.
#include <wx/choice.h>
#include <wx/evtloop.h>
#include <wx/frame.h>
#include <wx/msgdlg.h>
#include <wx/panel.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <cstdlib>
#include <fstream>
#include <memory>

#include "SampleDialog.h"
#include "host/Errors.h"
#include "host/Menus.h"
#include "host/Options.h"
#include "host/Services.h"
#include "system/Paths.h"
#include "system/System.h"

namespace kestrel::workbench {

namespace {

void Log(const std::string& line) {
  const char* file = std::getenv("CREW_LOG");
  if (file) std::ofstream(file, std::ios::app) << line << '\n';
}

class TCrewNotifier final : public IOTAIDENotifier {
 public:
  void AfterSave() override {}
  void BeforeSave() override {}
  void Destroyed() override { Log("notifier destroyed"); }
  void Modified() override {}
  void FileNotification(TOTAFileNotification code, const std::string& fileName, bool&) override {
    auto* group = IdeService<IOTAModuleServices>()->GetMainProjectGroup();
    IOTAProject* active = group ? group->GetActiveProject() : nullptr;
    const bool open = IdeService<IOTAModuleServices>()->FindModule(fileName) != nullptr;
    Log(std::to_string(static_cast<int>(code)) + ' ' + ExtractFileName(fileName) +
        (open ? " open" : " not open") + ", active " +
        (active ? ExtractFileName(active->GetFileName()) : "none"));
    if (ExtractFileName(fileName) == "Faulty.pas") throw std::runtime_error("faulty notifier");
  }
  void BeforeCompile(IOTAProject*, bool&) override {}
  void AfterCompile(bool) override {}
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTANotifier, IOTAIDENotifier>(this, iid);
  }
};

class TCrewWizard final : public IOTAWizard {
 public:
  ~TCrewWizard() override { Log("wizard gone"); }
  void AfterSave() override {}
  void BeforeSave() override {}
  void Destroyed() override {}
  void Modified() override {}
  std::string GetIDString() override { return "Crew.Wizard"; }
  std::string GetName() override { return "Crew wizard"; }
  unsigned GetState() override { return wsEnabled; }
  void Execute() override { Log("wizard executed"); }
  std::string GetAuthor() override { return "Crew"; }
  std::string GetComment() override { return "Calls the crew together"; }
  std::string GetPage() override { return {}; }
  std::string GetGlyph() override {
    return R"(<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32" viewBox="0 0 32 32"><circle cx="16" cy="16" r="12" fill="#b33"/></svg>)";
  }
  std::string GetDesigner() override { return "Any"; }
  IOTAGalleryCategory* GetGalleryCategory() override {
    return IdeService<IOTAGalleryCategoryManager>()->FindCategory("Corvane.Osprey.Other");
  }
  std::string GetPersonality() override { return "Default.Personality"; }
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTANotifier, IOTAWizard>(this, iid);
  }
};

class TCrewOptions final : public IOTAAddInOptions {
 public:
  void CustomizeDialog(IOTAEnvironmentDialog& dialog) override {
    dialog.RegisterPage(
        {"TCrewPage", "Crew Options", 1, [](wxWindow* parent, IOTAOptionsPageHost& host) -> wxWindow* {
           auto* page = new wxPanel(parent);
           new wxStaticText(page, wxID_ANY, "&Ship", wxPoint(20, 20));
           auto* ship = new wxTextCtrl(page, wxID_ANY, "", wxPoint(20, 45));
           new wxStaticText(page, wxID_ANY, "&Rank", wxPoint(20, 90));
           auto* rank = new wxChoice(page, wxID_ANY, wxPoint(20, 115));
           rank->Append("Mate");
           rank->Append("Captain");
           rank->SetSelection(0);
           host.Bind(ship, "Ship");
           host.Bind(rank, "Rank");
           return page;
         }});
  }
  bool GetIsModified() override { return true; }
  void SendModified() override { Log("options modified"); }
  void SaveOptions() override {
    GetPropertySet().Save();
    Log("options saved: " + GetPropertySet().GetValue("Ship") + ", " + GetPropertySet().GetValue("Rank"));
  }
  void LoadOptions() override { GetPropertySet().Load(); }
  IOTAPropertySet& GetPropertySet() override {
    return IdeService<IOTAOptionsServices>()->PropertySet("CrewOptions");
  }
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAAddInOptions>(this, iid);
  }
};

/// The menu: its state is computed when it opens.
class TCrewMenu {
 public:
  TCrewMenu() {
    auto& services = *IdeService<IOTAMenuServices>();
    actCheckOut_.Caption = "Check &Out...";
    actCheckOut_.Category = "Crew";
    actCheckOut_.ImageIndex = services.AddImage(
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16"><circle cx="8" cy="8" r="6" fill="#36a"/></svg>)");
    actCheckOut_.OnExecute = [this] { CheckOut(); };
    Add(checkOut_, "CheckOut", "", &actCheckOut_);
    Add(separator1_, "Sep1", "-");
    Add(hidden_, "Hidden", "Hidden &Thing").OnClick = [] { Log("hidden clicked"); };
    Add(separator2_, "Sep2", "-");
    Add(fail_, "Fail", "&Fail").OnClick = [] { throw std::runtime_error("the crew is asleep"); };
    Add(abort_, "Abort", "&Abort").OnClick = [] { throw EAbort("nobody hears this"); };
    Add(help_, "Help", "&Help").OnClick = [] { IdeService<IOTAApplication>()->HelpKeyword("HC_Crew"); };
    Add(beep_, "Beep", "&Beep").OnClick = [] { MessageBeep(TBeep::Hand); };
    Add(watch_, "Watch", "&Watch").OnClick = [] { Watch(); };
    Add(more_, "More", "&More");
    deep_.Caption = "&Deep";
    deep_.OnClick = [] { Log("deep clicked"); };
    more_.Items.push_back(&deep_);
    top_.Caption = "&Crew";
    top_.OnClick = [this] { Refresh(); };
    services.InsertMenu(top_);
    file_.Caption = "&Crew";
    file_.IsEnabled = [](const std::string& file) { return ExtractFileExt(file) == ".pas"; };
    file_.Items = {{"&Hail", -1, [](const std::string& file) { Log("hail " + ExtractFileName(file)); }},
                   {"-", -1, {}},
                   {"&Sink", -1, [](const std::string&) { throw std::runtime_error("will not sink"); }}};
    services.InsertFileMenu(file_);
    services.AttachAction(actCheckOut_);
  }
  ~TCrewMenu() {
    auto& services = *IdeService<IOTAMenuServices>();
    services.DetachAction(actCheckOut_);
    services.RemoveFileMenu(file_);
    services.RemoveMenu(top_);
    Log("menu gone");
  }

 private:
  TMenuItem& Add(TMenuItem& item, const std::string& name, const std::string& caption,
                 TAction* action = nullptr) {
    item.Name = name;
    item.Caption = caption;
    item.Action = action;
    top_.Items.push_back(&item);
    return item;
  }

  static IOTAProject* Project() {
    auto* group = IdeService<IOTAModuleServices>()->GetMainProjectGroup();
    return group ? group->GetActiveProject() : nullptr;
  }

  void Refresh() {
    Log("menu opens");
    if (std::getenv("CREW_BOX")) wxMessageBox("The crew is away.", "Crew Box");
    actCheckOut_.Enabled = Project() != nullptr;
    hidden_.Visible = Project() == nullptr;
  }

  /// A window without an owner and a message loop of its own, as providers have them; nobody closes it.
  static void Watch() {
    wxFrame window(nullptr, wxID_ANY, "Crew Watch");
    window.Show();
    wxGUIEventLoop().Run();
  }

  void CheckOut() {
    std::vector<std::string> files;
    IOTAProject* project = Project();
    for (int i = 0; i < project->GetModuleCount(); ++i) files.push_back(project->ModuleFileName(i));
    const auto choice = AskCrew(files);
    Log(std::string(choice.Accepted ? "accepted" : "cancelled") + ", comment " + choice.Comment);
    if (!choice.Accepted) return;
    for (const auto& file : choice.Files) {
      SetFileAttributesOf(file, faArchive);
      Log("out " + ExtractFileName(file));
      IdeService<IOTAActionServices>()->ReloadFile(file);
    }
  }

  TMenuItem top_;
  TMenuItem checkOut_, separator1_, hidden_, separator2_, fail_, abort_, help_, beep_, watch_, more_, deep_;
  TAction actCheckOut_;
  TFileMenu file_;
};

struct TCrew {
  TCrew() {
    cookie_ = application_.MainFormCreated().Subscribe([this] { Begin(); });
  }
  ~TCrew() {
    menu_.reset();
    IdeService<IOTAOptionsServices>()->RemoveOptions(options_);
    IdeService<IOTAWizardServices>()->RemoveWizard(wizard_);
    IdeService<IOTAServices>()->RemoveNotifier(notifier_);
    application_.MainFormCreated().Unsubscribe(cookie_);
  }
  void Begin() {
    Log("main form created");
    notifier_ = IdeService<IOTAServices>()->AddNotifier(std::make_shared<TCrewNotifier>());
    wizard_ = IdeService<IOTAWizardServices>()->AddWizard(std::make_shared<TCrewWizard>());
    options_ = IdeService<IOTAOptionsServices>()->AddOptions(std::make_shared<TCrewOptions>());
    menu_ = std::make_unique<TCrewMenu>();
  }

  IOTAApplication& application_ = *IdeService<IOTAApplication>();
  int cookie_ = -1, notifier_ = -1, wizard_ = -1, options_ = -1;
  std::unique_ptr<TCrewMenu> menu_;
};

std::unique_ptr<TCrew> crew;

/// Destroyed when the library is unloaded: nothing may come after it.
const struct TUnloading {
  ~TUnloading() { Log("unloaded"); }
} unloading;

}  // namespace

extern "C" {
void Initialize() { Log("initialize"); }
void IDERegister() {
  Log(IdeService<IOTAModuleServices>() ? "register, main form" : "register, no main form");
  crew = std::make_unique<TCrew>();
}
void Finalize() {
  crew.reset();
  Log("finalize");
}
}

}  // namespace kestrel::workbench
