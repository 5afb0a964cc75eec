#include "ui/Debug.h"

#include <wx/wupdlock.h>
#include <wx/wx.h>

#include "toolkit/WxText.h"
#include "ui/ButtonStrings.h"
#include "ui/DebugStrings.h"

namespace kestrel::addin {

TDebugForm* DebugForm = nullptr;

TDebugForm::TDebugForm()
    : wxFrame(nullptr, wxID_ANY, ToWx(sDebugCaption)),
      memoDebugText(new wxTextCtrl(this, wxID_ANY, {}, wxDefaultPosition, wxDefaultSize,
                                   wxTE_MULTILINE | wxTE_DONTWRAP | wxALWAYS_SHOW_SB)),
      btnClose(new wxButton(this, wxID_CLOSE, ToWx(sButtonClose))),
      btnClear(new wxButton(this, wxID_CLEAR, ToWx(sDebugClear))) {
  const int gap = FromDIP(8);
  SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  buttons->AddStretchSpacer();
  buttons->Add(btnClear, wxSizerFlags().Border(wxRIGHT, gap));
  buttons->Add(btnClose);
  auto* all = new wxBoxSizer(wxVERTICAL);
  all->Add(memoDebugText, wxSizerFlags(1).Expand().Border(wxALL, gap));
  all->Add(buttons, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
  SetSizer(all);
  SetSize(FromDIP(wxSize(656, 465)));
  SetMinSize(FromDIP(wxSize(300, 200)));

  btnClose->Bind(wxEVT_BUTTON, &TDebugForm::btnCloseClick, this);
  btnClear->Bind(wxEVT_BUTTON, &TDebugForm::btnClearClick, this);
  Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) { Hide(); });
  DebugForm = this;
}

TDebugForm::~TDebugForm() { DebugForm = nullptr; }

void TDebugForm::Clear() {
  const wxWindowUpdateLocker update(memoDebugText);
  memoDebugText->Clear();
}

void TDebugForm::btnCloseClick(wxCommandEvent&) { Hide(); }

void TDebugForm::btnClearClick(wxCommandEvent&) { Clear(); }

void CreateDebugForm() {
  if (!DebugForm) new TDebugForm;
}

void FreeDebugForm() { delete DebugForm; }

}  // namespace kestrel::addin
