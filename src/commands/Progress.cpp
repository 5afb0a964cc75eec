#include "commands/Progress.h"

#include <wx/app.h>
#include <wx/frame.h>
#include <wx/gauge.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "commands/ProgressStrings.h"
#include "host/Paths.h"
#include "ui/WxText.h"

namespace {

using namespace std::chrono_literals;

constexpr auto kBeforeShown = 500ms;
constexpr auto kBetweenUpdates = 100ms;
constexpr int kWidth = 360;
constexpr int kSteps = 1000;

}  // namespace

class TProgressForm final : public wxFrame {
 public:
  TProgressForm(wxWindow* parent, const std::string& caption)
      : wxFrame(parent, wxID_ANY, ToWx(caption), wxDefaultPosition, wxDefaultSize,
                wxCAPTION | wxFRAME_NO_TASKBAR | (parent ? wxFRAME_FLOAT_ON_PARENT : 0)),
        panel_(new wxPanel(this)),
        count_(new wxStaticText(panel_, wxID_ANY, "")),
        what_(new wxStaticText(panel_, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(kWidth, -1)),
                               wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_MIDDLE)),
        gauge_(new wxGauge(panel_, wxID_ANY, kSteps)) {
    auto* column = new wxBoxSizer(wxVERTICAL);
    const auto flags = wxSizerFlags().Expand().Border(wxALL, FromDIP(6));
    column->Add(count_, flags);
    column->Add(what_, flags);
    column->Add(gauge_, flags);
    panel_->SetSizer(column);
    auto* whole = new wxBoxSizer(wxVERTICAL);
    whole->Add(panel_, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(6)));
    SetSizerAndFit(whole);
    CentreOnParent();
  }

  bool ShouldPreventAppExit() const override { return false; }

  void ShowStep(std::size_t done, std::size_t total, const std::string& what) {
    count_->SetLabel(
        ToWx(Format(sFileOf, {static_cast<long long>(done + 1), static_cast<long long>(total)})));
    what_->SetLabel(ToWx(ExtractFileName(what)));
    gauge_->SetValue(static_cast<int>(done * kSteps / total));
    if (!IsShown()) ShowWithoutActivating();
    Update();
    // Painting only: clicks and keys stay where they are until the work is done.
    wxTheApp->SafeYieldFor(nullptr, wxEVT_CATEGORY_UI);
  }

 private:
  wxPanel* panel_;
  wxStaticText* count_;
  wxStaticText* what_;
  wxGauge* gauge_;
};

TProgress::TProgress(std::string caption, std::size_t total)
    : caption_(std::move(caption)), total_(total), next_(TClock::now() + kBeforeShown) {}

TProgress::~TProgress() {
  if (form_) form_->Destroy();
}

void TProgress::Step(std::size_t done, const std::string& what) {
  const auto now = TClock::now();
  if (now < next_ || done >= total_) return;
  next_ = now + kBetweenUpdates;
  if (!form_) form_ = new TProgressForm(wxTheApp->GetTopWindow(), caption_);
  form_->ShowStep(done, total_, what);
}
