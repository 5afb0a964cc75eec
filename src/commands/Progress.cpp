#include "commands/Progress.h"

#include <wx/wx.h>

#include "commands/ProgressStrings.h"
#include "system/Paths.h"
#include "toolkit/WxText.h"
#include "toolkit/WxWaiting.h"

namespace kestrel::addin {

using namespace std::chrono_literals;

namespace {
constexpr auto kLong = 500ms;
constexpr auto kBetweenUpdates = 100ms;
constexpr auto kAppearing = 100ms;  // what a window needs until it is on the screen
}  // namespace

bool TCallPace::IsLong(const std::string& call, std::size_t files, TDuration perFileAtFirst) const {
  const auto known = perFile_.find(call);
  return (known == perFile_.end() ? perFileAtFirst : known->second) * files >= kLong;
}

void TCallPace::Took(const std::string& call, std::size_t files, TDuration whole) {
  perFile_[call] = whole / files;
}

class TProgressForm final : public wxFrame {
 public:
  TProgressForm(wxWindow* parent, const std::string& caption);
  void ShowStep(std::size_t done, std::size_t total, const std::string& what);
  /// Before anything is known about single files.
  void ShowCall(std::size_t total, const std::string& what);
  bool ShouldPreventAppExit() const override { return false; }

 private:
  static constexpr int kWidth = 360;
  static constexpr int kGaugeSteps = 1000;

  wxStaticText* AddText(wxWindow* panel, long style);
  void Appear();

  wxStaticText* count_;
  wxStaticText* what_;
  wxGauge* gauge_;
};

TProgressForm::TProgressForm(wxWindow* parent, const std::string& caption)
    : wxFrame(parent, wxID_ANY, ToWx(caption), wxDefaultPosition, wxDefaultSize,
              wxCAPTION | wxFRAME_NO_TASKBAR | (parent ? wxFRAME_FLOAT_ON_PARENT : 0)) {
  SetExtraStyle(wxWS_EX_TRANSIENT);  // no dialog may choose it as its parent
  auto* panel = new wxPanel(this);
  count_ = AddText(panel, 0);
  what_ = AddText(panel, wxST_ELLIPSIZE_MIDDLE);
  gauge_ = new wxGauge(panel, wxID_ANY, kGaugeSteps);
  auto* column = new wxBoxSizer(wxVERTICAL);
  for (wxWindow* row :
       {static_cast<wxWindow*>(count_), static_cast<wxWindow*>(what_), static_cast<wxWindow*>(gauge_)})
    column->Add(row, wxSizerFlags().Expand().Border(wxALL, FromDIP(6)));
  panel->SetSizer(column);
  auto* whole = new wxBoxSizer(wxVERTICAL);
  whole->Add(panel, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(6)));
  SetSizerAndFit(whole);
  CentreOnParent();
}

wxStaticText* TProgressForm::AddText(wxWindow* panel, long style) {
  return new wxStaticText(panel, wxID_ANY, {}, wxDefaultPosition, FromDIP(wxSize(kWidth, -1)),
                          wxST_NO_AUTORESIZE | style);
}

void TProgressForm::ShowStep(std::size_t done, std::size_t total, const std::string& what) {
  const auto number = static_cast<long long>(done) + 1;
  count_->SetLabelText(ToWx(Format(sFileOf.Text, {number, static_cast<long long>(total)})));
  what_->SetLabelText(ToWx(ExtractFileName(what)));
  gauge_->SetValue(static_cast<int>(done * kGaugeSteps / total));
  Appear();
}

void TProgressForm::ShowCall(std::size_t total, const std::string& what) {
  count_->SetLabelText(total == 1 ? wxString() : ToWx(Format(sFiles.Text, {static_cast<long long>(total)})));
  what_->SetLabelText(ToWx(what));
  Appear();
}

void TProgressForm::Appear() {
  if (!IsShown()) ShowWithoutActivating();
  Update();
}

namespace {

/// The window that the user works in, or nullptr.
wxWindow* WorkingWindow() {
  for (auto* window : {wxGetTopLevelParent(wxGetActiveWindow()), wxTheApp->GetTopWindow()})
    if (window && window->IsShown() && !window->IsBeingDeleted()) return window;
  return nullptr;
}

}  // namespace

void PaintWindows(std::chrono::milliseconds duration) {
  const TNoClosing noClosing;
  const auto end = std::chrono::steady_clock::now() + duration;
  for (PaintPending(); std::chrono::steady_clock::now() < end; PaintPending()) wxMilliSleep(2);
}

TProgress::TProgress(const std::string& caption, std::size_t total, TCallPace& pace, TNow now)
    : caption_(caption),
      total_(total),
      pace_(pace),
      now_(std::move(now)),
      clock_(now_(), kLong, kBetweenUpdates) {
  Register();
}

TProgress::~TProgress() {
  if (!call_.empty()) pace_.Took(call_, total_, now_() - called_);
  Unregister();
  CloseForm();
}

void TProgress::Step(std::size_t done, const std::string& what) {
  if (dialogs_ > 0 || done >= total_ || !clock_.Due(now_())) return;
  const TNoClosing noClosing;
  Form().ShowStep(done, total_, what);
  PaintWindows(0ms);  // what happens there may close the form
}

void TProgress::BeginCall(const std::string& what, std::chrono::microseconds perFile) {
  if (dialogs_ > 0 || total_ == 0) return;
  call_ = caption_ + what;
  if (pace_.IsLong(call_, total_, perFile)) {
    const TNoClosing noClosing;
    Form().ShowCall(total_, what);
    PaintWindows(kAppearing);
  }
  called_ = now_();
}

int TProgress::Enter(wxDialog*) {
  ++dialogs_;
  call_.clear();
  CloseForm();
  return wxID_NONE;
}

void TProgress::Exit(wxDialog*) {
  --dialogs_;
  clock_.Restart(now_());
}

TProgressForm& TProgress::Form() {
  if (!form_) form_ = new TProgressForm(WorkingWindow(), caption_);
  return *form_;
}

// At once: a window that waits for its deletion would outlive the package's code when the host unloads it.
void TProgress::CloseForm() { delete form_.get(); }

}  // namespace kestrel::addin
