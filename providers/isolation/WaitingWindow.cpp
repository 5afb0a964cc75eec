#include "isolation/WaitingWindow.h"

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/timer.h>

#include "isolation/IsolationStrings.h"
#include "toolkit/WxText.h"

using namespace std::chrono_literals;

namespace kestrel::isolation {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kTickMs = 15;
constexpr auto kStepTimePerTick = 5ms;
constexpr int kWidth = 380;

class WaitingWindow final : public wxDialog {
 public:
  WaitingWindow(const PendingCall& call, Clock::time_point begun)
      : wxDialog(nullptr, wxID_ANY, ToWx(call.Provider), wxDefaultPosition, wxDefaultSize, wxCAPTION,
                 kWaitingWindow),
        call_(call),
        begun_(begun) {
    time_ = new wxStaticText(this, wxID_ANY, {});
    line_ = new wxStaticText(this, wxID_ANY, {}, wxDefaultPosition, FromDIP(wxSize(kWidth, -1)),
                             wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
    stop_ = new wxButton(this, wxID_CANCEL, ToWx(sStop));
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(time_, wxSizerFlags().Expand().Border(wxALL, FromDIP(8)));
    column->Add(line_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, FromDIP(8)));
    column->Add(stop_, wxSizerFlags().Right().Border(wxALL, FromDIP(8)));
    ShowState();
    SetSizerAndFit(column);
    CentreOnParent();
    timer_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { Tick(); });
    timer_.Start(kTickMs);
  }

 private:
  void Tick() {
    if (stepping_ || !IsModal()) return;  // passing a message to the client may handle events
    stepping_ = true;
    const auto end = Clock::now() + kStepTimePerTick;
    bool finished = false;
    while (!finished && Clock::now() < end) finished = call_.Step(1ms);
    stepping_ = false;
    if (finished || call_.ProviderShowsWindow()) {
      timer_.Stop();
      if (IsModal()) EndModal(finished ? wxID_OK : wxID_MORE);
      return;
    }
    ShowState();
  }
  void ShowState() {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - begun_).count();
    const auto time = ToWx(Format(sWaiting, {call_.Call, static_cast<long long>(seconds)}));
    if (time_->GetLabelText() != time) time_->SetLabelText(time);
    const auto line = ToWx(call_.LastLine());
    if (line_->GetLabelText() != line) line_->SetLabelText(line);
  }

  const PendingCall& call_;
  Clock::time_point begun_;
  wxStaticText* time_;
  wxStaticText* line_;
  wxButton* stop_;
  wxTimer timer_;
  bool stepping_ = false;
};

}  // namespace

bool ShowWaitingWindow(const PendingCall& call, Clock::time_point begun) {
  const int ended = WaitingWindow(call, begun).ShowModal();
  if (ended == wxID_MORE) return false;
  if (ended != wxID_OK) {
    call.Stop();
    while (!call.Step(100ms)) {
    }
  }
  return true;
}

}  // namespace kestrel::isolation
