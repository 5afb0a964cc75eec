// The client's windows during a long call.
#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/frame.h>
#include <wx/timer.h>

#include "isolation/Client.h"
#include "support/ModalScript.h"
#include "support/Testing.h"

namespace kestrel::isolation {

namespace {

/// Calls `seen` whenever the waiting window is open.
class TWatcher : public wxTimer {
 public:
  explicit TWatcher(std::function<void(wxDialog&)> seen) : seen_(std::move(seen)) { Start(20); }
  void Notify() override {
    for (wxWindow* window : wxTopLevelWindows)
      if (auto* dialog = dynamic_cast<wxDialog*>(window);
          dialog && dialog->GetName() == "SccWaiting" && dialog->IsModal())
        return seen_(*dialog);
  }

 private:
  std::function<void(wxDialog&)> seen_;
};

class Waiting : public testing::TestWithParam<const char*> {};

TEST_P(Waiting, RepaintsOffersStopAndRefusesNestedCalls) {
  wxFrame frame(nullptr, wxID_ANY, "Client");
  frame.Show();
  int painted = 0;
  frame.Bind(wxEVT_PAINT, [&](wxPaintEvent& event) {
    ++painted;
    event.Skip();
  });
  TIsolatedClient client;
  ASSERT_EQ(scc::SCC_OK, client.Initialize());
  ASSERT_EQ(scc::SCC_OK, client.Open());
  client.Arm("SccCheckout", GetParam());
  scc::Long inside = 0;
  int seen = 0;
  TWatcher watcher([&](wxDialog& dialog) {
    frame.Refresh();
    if (++seen == 1) {
      inside = client.Status();
      EXPECT_EQ("Scripted provider", dialog.GetTitle());
    }
    if (painted == 0) return;
    wxCommandEvent press(wxEVT_BUTTON, wxID_CANCEL);
    press.SetEventObject(dialog.FindWindow(wxID_CANCEL));
    dialog.FindWindow(wxID_CANCEL)->HandleWindowEvent(press);
  });
  EXPECT_EQ(scc::SCC_E_NONSPECIFICERROR, client.Call("SccCheckout"));
  EXPECT_EQ(scc::SCC_E_OPNOTPERFORMED, inside);
  EXPECT_THAT(lines, Contains(HasSubstr("Scripted provider was stopped in SccCheckout")));
  EXPECT_EQ(scc::SCC_OK, client.Status());
  EXPECT_THAT(lines, Contains(HasSubstr("started again; the project is open again")));
}

TEST(Choosing, FailsWithABoxAsTheClientHasNoCallbackYet) {
  TIsolatedClient client;
  ASSERT_EQ(scc::SCC_OK, client.Initialize());
  client.Arm("SccGetProjPath", "exit");
  TModalScript script;
  script.Expect<wxMessageDialog>([](wxMessageDialog& box) {
    EXPECT_THAT(box.GetMessage().utf8_string(), HasSubstr("Scripted provider ended in SccGetProjPath"));
    box.SetReturnCode(wxID_OK);
  });
  EXPECT_EQ(scc::SCC_E_NONSPECIFICERROR, client.Call("SccGetProjPath"));
}

INSTANTIATE_TEST_SUITE_P(All, Waiting, testing::Values("loop", "window"));

}  // namespace

}  // namespace kestrel::isolation
