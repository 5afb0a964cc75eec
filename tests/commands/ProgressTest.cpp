#include <wx/eventfilter.h>
#include <wx/evtloop.h>

#include "commands/Progress.h"
#include "support/ModalScript.h"
#include "support/Testing.h"
#include "toolkit/WxText.h"
#include "ui/MsgDialog.h"

namespace kestrel::addin {

using namespace std::chrono_literals;

namespace {

using TTime = TProgressClock::TTime;
constexpr TTime At(int milliseconds) { return TTime(std::chrono::milliseconds(milliseconds)); }

constexpr const char* kCaption = "Check Out File(s)";

void CollectTexts(const wxWindow& window, std::vector<std::string>& texts) {
  if (auto* text = dynamic_cast<const wxStaticText*>(&window)) texts.push_back(FromWx(text->GetLabelText()));
  for (const auto* child : window.GetChildren()) CollectTexts(*child, texts);
}

/// What the progress window says; nothing while there is none.
std::vector<std::string> Shown() {
  std::vector<std::string> texts;
  for (const auto* window : wxTopLevelWindows)
    if (window->IsShown() && window->GetLabel() == kCaption) CollectTexts(*window, texts);
  return texts;
}

/// Work under way in a host with a window.
struct Progress : testing::Test {
  Progress() {
    frame->Show();
    text->SetFocus();
    wxYield();
  }
  ~Progress() override {
    work.reset();
    delete frame.get();
  }
  void StepAt(int milliseconds, std::size_t done, const std::string& what) {
    now = At(milliseconds);
    work->Step(done, what);
  }

  wxEventLoop loop;
  wxEventLoopActivator active{&loop};  // as in the handler of a menu
  wxWeakRef<wxFrame> frame{new wxFrame(nullptr, wxID_ANY, "host")};
  wxTextCtrl* text = new wxTextCtrl(frame, wxID_ANY);
  TTime now = At(0);
  TCallPace pace;
  std::unique_ptr<TProgress> work = std::make_unique<TProgress>(kCaption, 4, pace, [this] { return now; });
};

TEST_F(Progress, ShowsWhatIsDoneWithoutTakingTheFocus) {
  StepAt(0, 0, "/p/a.pas");
  EXPECT_THAT(Shown(), IsEmpty());
  StepAt(500, 1, "/p/b & c.pas");
  EXPECT_THAT(Shown(), ElementsAre("File 2 of 4", "b & c.pas"));
  StepAt(550, 2, "/p/d.pas");
  EXPECT_THAT(Shown(), ElementsAre("File 2 of 4", "b & c.pas"));
  StepAt(600, 3, "/p/e.pas");
  EXPECT_THAT(Shown(), ElementsAre("File 4 of 4", "e.pas"));
  wxYield();
  EXPECT_EQ(wxWindow::FindFocus(), text);
  EXPECT_TRUE(frame->IsEnabled());
  work.reset();
  EXPECT_THAT(Shown(), IsEmpty());
  EXPECT_EQ(wxWindow::FindFocus(), text);
}

/// Tries to close a window as soon as another one appears.
struct TCloser final : wxEventFilter {
  explicit TCloser(wxWindow& closed) : window(closed) { wxEvtHandler::AddFilter(this); }
  ~TCloser() override { wxEvtHandler::RemoveFilter(this); }
  int FilterEvent(wxEvent& event) override {
    if (event.GetEventType() == wxEVT_SHOW) {
      ++attempts;
      window.Close();
    }
    return Event_Skip;
  }
  wxWindow& window;
  int attempts = 0;
};

TEST_F(Progress, KeysWaitAndNothingIsClosed) {
  int keys = 0, closings = 0;
  text->Bind(wxEVT_KEY_DOWN, [&](wxKeyEvent&) { ++keys; });
  frame->Bind(wxEVT_CLOSE_WINDOW, [&](wxCloseEvent&) { ++closings; });
  wxQueueEvent(text, new wxKeyEvent(wxEVT_KEY_DOWN));
  {
    const TCloser closer(*frame);
    StepAt(500, 1, "a.pas");
    EXPECT_GT(closer.attempts, 0);
  }
  EXPECT_EQ(keys, 0);
  EXPECT_EQ(closings, 0);
  wxYield();
  EXPECT_EQ(keys, 1);
  frame->Close();
  EXPECT_EQ(closings, 1) << "only while the window is painted";
}

TEST_F(Progress, MakesRoomForDialogs) {
  StepAt(500, 1, "a.pas");
  EXPECT_THAT(Shown(), Not(IsEmpty()));
  TMsgDialogForm form("Check Out File", "a.pas", metInfo);
  ShowAndPlay<TMsgDialogForm>(form, [this](TMsgDialogForm& dialog) {
    EXPECT_THAT(Shown(), IsEmpty());
    now = At(20000);  // the user reads
    Click(dialog.btnOK);
  });
  StepAt(20499, 2, "b.pas");
  EXPECT_THAT(Shown(), IsEmpty()) << "the next file was quick";
  StepAt(20500, 3, "c.pas");
  EXPECT_THAT(Shown(), ElementsAre("File 4 of 4", "c.pas"));

  TMsgDialogForm providers("Log in", "", metQuestion);
  ShowAndPlay<TMsgDialogForm>(providers, [this](TMsgDialogForm& dialog) {
    StepAt(30000, 3, "d.pas");  // a line that the provider writes while its own dialog is open
    EXPECT_THAT(Shown(), IsEmpty());
    Click(dialog.btnOK);
  });
}

TEST_F(Progress, IsThereBeforeACallThatTakesLong) {
  const auto shownAtOnce = [this](std::chrono::microseconds perFileAtFirst) {
    work = std::make_unique<TProgress>(kCaption, 4, pace, [this] { return now; });
    work->BeginCall("Asking", perFileAtFirst);
    return Shown();
  };
  EXPECT_THAT(shownAtOnce(124ms), IsEmpty());
  now = At(600);
  EXPECT_THAT(shownAtOnce(124ms), ElementsAre("4 files", "Asking")) << "it took 600 ms";
  StepAt(1100, 2, "c.pas");
  EXPECT_THAT(Shown(), ElementsAre("File 3 of 4", "c.pas"));
  now = At(1099);
  EXPECT_THAT(shownAtOnce(125ms), IsEmpty()) << "it took 499 ms";
  TMsgDialogForm dialog("Log in", "", metQuestion);
  ShowAndPlay<TMsgDialogForm>(dialog, [this](TMsgDialogForm& form) {
    now = At(90000);
    Click(form.btnOK);
  });
  EXPECT_THAT(shownAtOnce(125ms), IsEmpty()) << "the user's time does not count";
}

TEST_F(Progress, OutlivesTheHostsWindow) {
  StepAt(500, 1, "a.pas");
  delete frame.get();
  EXPECT_THAT(Shown(), IsEmpty());
  StepAt(600, 2, "b.pas");
  EXPECT_THAT(Shown(), ElementsAre("File 3 of 4", "b.pas")) << "there is no other window";
}

}  // namespace

}  // namespace kestrel::addin
