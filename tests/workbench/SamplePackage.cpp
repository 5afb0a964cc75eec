// A small package with a notifier, a menu and a dialog, which logs what the host calls into the file that the environment
// names.
#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/evtloop.h>
#include <wx/frame.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>

#include <cstdlib>
#include <deque>
#include <fstream>
#include <memory>

#include "host/Errors.h"
#include "host/Menus.h"
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
  void FileNotification(TOTAFileNotification, const std::string& fileName, bool&) override {
    if (ExtractFileName(fileName) == "Faulty.pas") throw std::runtime_error("faulty notifier");
  }
  void BeforeCompile(IOTAProject*, bool&) override {}
  void AfterCompile(bool) override {}
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTANotifier, IOTAIDENotifier>(this, iid);
  }
};

class TCrewMenu {
 public:
  TCrewMenu() {
    auto& services = *IdeService<IOTAMenuServices>();
    actCheckOut_.Caption = "Check &Out...";
    actCheckOut_.Category = "Crew";
    actCheckOut_.ImageIndex = services.AddImage(
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16"><circle cx="8" cy="8" r="6" fill="#36a"/></svg>)");
    actCheckOut_.OnExecute = [] { CheckOut(); };
    Add("").Action = &actCheckOut_;
    Add("&Fail").OnClick = [] { throw std::runtime_error("the crew is asleep"); };
    Add("&Abort").OnClick = [] { throw EAbort("nobody hears this"); };
    Add("&Help").OnClick = [] { IdeService<IOTAApplication>()->HelpKeyword("HC_Crew"); };
    Add("&Beep").OnClick = [] { MessageBeep(TBeep::Hand); };
    Add("&Watch").OnClick = [] { Watch(); };
    Add("&More").Items.push_back(&deep_);
    deep_.Caption = "&Deep";
    deep_.OnClick = [] { Log("deep clicked"); };
    top_.Caption = "&Crew";
    top_.OnClick = [] {
      if (std::getenv("CREW_BOX")) wxMessageBox("The crew is away.", "Crew Box");
    };
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
  TMenuItem& Add(const std::string& caption) {
    top_.Items.push_back(&items_.emplace_back());
    items_.back().Caption = caption;
    return items_.back();
  }

  /// A window without an owner and a message loop of its own, as providers have them; nobody closes it.
  static void Watch() {
    wxFrame window(nullptr, wxID_ANY, "Crew Watch");
    window.Show();
    wxGUIEventLoop().Run();
  }

  static void CheckOut() {
    wxDialog dialog(nullptr, wxID_ANY, "Crew Files");
    auto* mutiny = new wxButton(&dialog, wxID_ANY, "&Mutiny");
    mutiny->Bind(wxEVT_BUTTON, [](wxCommandEvent&) { throw std::runtime_error("the crew mutinies"); });
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(mutiny);
    sizer->Add(dialog.CreateStdDialogButtonSizer(wxOK | wxCANCEL));
    dialog.SetSizerAndFit(sizer);
    if (dialog.ShowModal() != wxID_OK) Log("cancelled");
  }

  TMenuItem top_, deep_;
  std::deque<TMenuItem> items_;
  TAction actCheckOut_;
  TFileMenu file_;
};

struct TCrew {
  TCrew() {
    cookie_ = application_.MainFormCreated().Subscribe([this] { Begin(); });
  }
  ~TCrew() {
    menu_.reset();
    IdeService<IOTAServices>()->RemoveNotifier(notifier_);
    application_.MainFormCreated().Unsubscribe(cookie_);
  }
  void Begin() {
    Log("main form created");
    notifier_ = IdeService<IOTAServices>()->AddNotifier(std::make_shared<TCrewNotifier>());
    menu_ = std::make_unique<TCrewMenu>();
  }

  IOTAApplication& application_ = *IdeService<IOTAApplication>();
  int cookie_ = -1, notifier_ = -1;
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
