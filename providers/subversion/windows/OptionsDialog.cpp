// The dialog of a command's advanced options.
#include <wx/radiobut.h>
#include <wx/spinctrl.h>

#include <limits>

#include "common/windows/WindowTools.h"
#include "subversion/svn/CommandOptions.h"
#include "subversion/windows/ProviderWindowStrings.h"
#include "subversion/windows/ProviderWindows.h"
#include "toolkit/WxText.h"

namespace kestrel::svnscc {
namespace {

class OptionsDialog : public wxDialog {
 public:
  OptionsDialog(wxWindow* parent, scc::SCCCommand command, const CommandOptions& options)
      : wxDialog(parent, wxID_ANY, ToWx(sOptionsTitle)), options_(options) {
    auto* all = new wxBoxSizer(wxVERTICAL);
    const int gap = FromDIP(12);
    if (command == scc::SCC_COMMAND_GET)
      all->Add(CreateRevision(), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
    for (const Box& box : kBoxes)
      if (box.command == command)
        all->Add(CreateBox(box), wxSizerFlags().Border(wxLEFT | wxRIGHT | wxTOP, gap));
    all->Add(new wxStaticText(this, wxID_ANY, ToWx(sOptionsOnce)),
             wxSizerFlags().Border(wxLEFT | wxRIGHT | wxTOP, gap));
    all->Add(CreateStdDialogButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Expand().Border(wxALL, gap));
    SetSizerAndFit(all);
    CentreOnParent();
  }

  CommandOptions Chosen() const {
    CommandOptions chosen = options_;
    if (number_ != nullptr)
      chosen.GetRevision = number_->IsEnabled() ? svn_revnum_t{number_->GetValue()} : SVN_INVALID_REVNUM;
    if (box_ != nullptr) chosen.*boxOption_ = box_->GetValue();
    return chosen;
  }

 private:
  struct Box {
    scc::SCCCommand command;
    TResString label;
    bool CommandOptions::*option;
  };
  static constexpr Box kBoxes[] = {
      {scc::SCC_COMMAND_CHECKOUT, sStealLocks, &CommandOptions::StealLocks},
      {scc::SCC_COMMAND_CHECKIN, sKeepUnchangedOut, &CommandOptions::KeepUnchangedOut},
      {scc::SCC_COMMAND_ADD, sWithoutNeedsLock, &CommandOptions::WithoutNeedsLock},
  };

  wxCheckBox* CreateBox(const Box& box) {
    boxOption_ = box.option;
    box_ = new wxCheckBox(this, wxID_ANY, ToWx(box.label));
    box_->SetName("option");
    box_->SetValue(options_.*box.option);
    return box_;
  }

  wxSizer* CreateRevision() {
    const bool numbered = SVN_IS_VALID_REVNUM(options_.GetRevision);
    auto* part = new wxBoxSizer(wxVERTICAL);
    auto* newest = new wxRadioButton(this, wxID_ANY, ToWx(sNewestRevision), wxDefaultPosition, wxDefaultSize,
                                     wxRB_GROUP);
    auto* given = new wxRadioButton(this, wxID_ANY, ToWx(sGivenRevision));
    given->SetName("given");
    (numbered ? given : newest)->SetValue(true);
    number_ = new wxSpinCtrl(this, wxID_ANY);
    number_->SetName("revision");
    number_->SetRange(1, std::numeric_limits<int>::max());
    number_->SetValue(numbered ? static_cast<int>(options_.GetRevision) : 1);
    number_->Enable(numbered);
    for (wxRadioButton* choice : {newest, given})
      choice->Bind(wxEVT_RADIOBUTTON, [this, given](wxCommandEvent&) {
        number_->Enable(given->GetValue());
        if (given->GetValue()) number_->SetFocus();
      });
    part->Add(newest);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(given, wxSizerFlags().CenterVertical().Border(wxRIGHT, FromDIP(6)));
    row->Add(number_, wxSizerFlags().CenterVertical());
    part->Add(row, wxSizerFlags().Border(wxTOP, FromDIP(6)));
    return part;
  }

  CommandOptions options_;
  wxSpinCtrl* number_ = nullptr;
  wxCheckBox* box_ = nullptr;
  bool CommandOptions::*boxOption_ = nullptr;
};

}  // namespace

scc::Long AskCommandOptions(ProviderContext& context, scc::WindowHandle parent, scc::SCCCommand command,
                            void** options) {
  if (options == nullptr) {  // a client calls so when it begins a file list
    context.Options().Reset();
    return HasOptions(command) && CanShowWindows() ? scc::SCC_I_ADV_SUPPORT
                                                   : static_cast<scc::Long>(scc::SCC_OK);
  }
  context.Options().EndRun();
  if (!HasOptions(command)) return scc::SCC_E_OPNOTSUPPORTED;
  RequireWindows();
  CommandOptions* block = context.Options().Find(*options != nullptr ? static_cast<void*>(options) : nullptr);
  OptionsDialog dialog(ParentFor(parent), command, block != nullptr ? *block : CommandOptions{});
  if (dialog.ShowModal() != wxID_OK) return scc::SCC_I_OPERATIONCANCELED;
  if (block == nullptr) *options = block = context.Options().Make();
  *block = dialog.Chosen();
  return scc::SCC_OK;
}

}  // namespace kestrel::svnscc
