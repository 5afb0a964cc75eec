#include "ui/MsgDialog.h"

#include <wx/arrstr.h>
#include <wx/statbmp.h>
#include <wx/wx.h>

#include <algorithm>

#include "system/System.h"
#include "toolkit/WxText.h"
#include "ui/ButtonStrings.h"
#include "ui/Icons.h"
#include "ui/MsgDialogStrings.h"

namespace kestrel::addin {

TMsgDialogForm* MsgDialogForm = nullptr;

namespace {

static_assert(kDialogIcons.size() == metQuestion + 1);

TBeep BeepOf(TMsgType kind) {
  switch (kind) {
    case metError:
      return TBeep::Hand;
    case metWarning:
      return TBeep::Exclamation;
    case metQuestion:
      return TBeep::Question;
    default:
      return TBeep::Asterisk;
  }
}

constexpr int kTitleWidth = 222;

/// The width to wrap a title at.  At least that of the longest word, because the toolkit stops wrapping at a longer one.
int WrapWidth(const wxStaticText& title) {
  int width = title.FromDIP(kTitleWidth);
  for (const auto& word : wxSplit(title.GetLabelText(), ' ', '\0'))
    width = std::max(width, title.GetTextExtent(word + ' ').GetWidth());
  return width;
}

}  // namespace

TMsgDialogForm::TMsgDialogForm(const std::string& title, const std::string& msg, TMsgType kind)
    : TModalForm(ToWx(sMsgDialogCaption), wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER) {
  CreateControls(title, msg, kind);
  LayOut();
  btnOK->SetDefault();
  btnOK->SetFocus();
  btnOK->Bind(wxEVT_BUTTON, &TMsgDialogForm::btnOKClick, this);
  MsgDialogForm = this;
}

TMsgDialogForm::~TMsgDialogForm() { MsgDialogForm = nullptr; }

void TMsgDialogForm::btnOKClick(wxCommandEvent&) { CloseWith(mrOk); }

void TMsgDialogForm::CreateControls(const std::string& title, const std::string& msg, TMsgType kind) {
  for (const char* svg : kDialogIcons)
    MsgIconList.push_back(wxBitmapBundle::FromSVG(svg, {kDialogIconSize, kDialogIconSize}));
  MsgIcon = new wxStaticBitmap(this, wxID_ANY, MsgIconList[kind], wxDefaultPosition, FromDIP(wxSize(37, 37)));
  TitleLabel = new wxStaticText(this, wxID_ANY, {});
  TitleLabel->SetFont(TitleLabel->GetFont().Bold());
  TitleLabel->SetLabelText(ToWx(title));
  TitleLabel->Wrap(WrapWidth(*TitleLabel));
  // Until it is shown the control measures its text in the regular face.
  TitleLabel->SetMinSize(wxClientDC(TitleLabel).GetMultiLineTextExtent(TitleLabel->GetLabelText()));
  MessageText = new wxTextCtrl(this, wxID_ANY, ToWx(msg), wxDefaultPosition, FromDIP(wxSize(377, 124)),
                               wxTE_MULTILINE | wxTE_READONLY);
  MessageText->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
  btnOK = new wxButton(this, wxID_OK, ToWx(sButtonOk));
}

void TMsgDialogForm::LayOut() {
  const int gap = FromDIP(8);
  const int around = FromDIP(5);  // so that the text keeps its height
  auto* head = new wxBoxSizer(wxHORIZONTAL);
  head->Add(MsgIcon, wxSizerFlags().Top());
  head->Add(TitleLabel, wxSizerFlags(1).CentreVertical().Border(wxLEFT | wxRIGHT, gap));
  head->Add(btnOK, wxSizerFlags().Top());
  auto* all = new wxBoxSizer(wxVERTICAL);
  all->AddSpacer(around);
  all->Add(head, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, gap));
  all->AddSpacer(around);
  all->Add(MessageText, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
  SetSizer(all);
  // Larger than the standard size only for a title with several lines or long words.
  auto client = all->ComputeFittingClientSize(this);
  client.IncTo(FromDIP(wxSize(393, 182)));
  SetClientSize(client);
  SetMinClientSize(GetClientSize());
  CentreOnScreen();
}

void ShowMsgDialog(const std::string& title, const std::string& msg, TMsgType kind) {
  TMsgDialogForm form(title, msg, kind);
  MessageBeep(BeepOf(kind));
  form.ShowModal();
}

}  // namespace kestrel::addin
