#include "commands/Comments.h"

#include <wx/wx.h>

#include "commands/CommentsStrings.h"
#include "ui/WxText.h"

TCommentsForm* CommentsForm = nullptr;

TCommentsForm::TCommentsForm(TCommentModel& model)
    : TModalForm(ToWx(model.Caption.empty() ? sCommentsCaption.str() : model.Caption),
                 wxDEFAULT_DIALOG_STYLE),
      model_(model) {
  CreateControls();
  LayOut();
  Bind(wxEVT_INIT_DIALOG, [this](wxInitDialogEvent&) { FormShow(); });
  // Not within the event: the control is still busy with the change.
  CommentsMemo->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { CallAfter([this] { FitMemo(); }); });
  btnOK->Bind(wxEVT_BUTTON, &TCommentsForm::btnOKClick, this);
  btnCancel->Bind(wxEVT_BUTTON, &TCommentsForm::btnCancelClick, this);
  CommentsForm = this;
}

TCommentsForm::~TCommentsForm() { CommentsForm = nullptr; }

void TCommentsForm::CreateControls() {
  const auto button = [this](wxWindowID id, const TResString& label) {
    return new wxButton(this, id, ToWx(label), wxDefaultPosition, FromDIP(wxSize(80, 30)));
  };
  CommentsMemo = new wxTextCtrl(this, wxID_ANY, ToWx(model_.Text), wxDefaultPosition,
                                FromDIP(wxSize(423, 153)), wxTE_MULTILINE);
  cbApplyToAll = new wxCheckBox(this, wxID_ANY, ToWx(sApplyToAll));
  cbApplyToAll->SetValue(model_.ApplyToAll);
  cbApplyToAll->Show(model_.ShowApplyToAll);
  LengthLabel = new wxStaticText(this, wxID_ANY, {});
  LengthLabel->SetForegroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
  btnOK = button(wxID_OK, sCommentsOk);
  btnCancel = button(wxID_CANCEL, sCommentsCancel);
  btnOK->SetDefault();
  FitMemo();
}

void TCommentsForm::LayOut() {
  const int gap = FromDIP(8);
  auto* under = new wxBoxSizer(wxHORIZONTAL);
  under->Add(cbApplyToAll, wxSizerFlags().CentreVertical());
  under->AddStretchSpacer();
  under->Add(LengthLabel, wxSizerFlags().CentreVertical());
  auto* left = new wxBoxSizer(wxVERTICAL);
  left->Add(CommentsMemo, wxSizerFlags(1).Expand());
  left->Add(under, wxSizerFlags().Expand().Border(wxTOP, FromDIP(4)));
  auto* right = new wxBoxSizer(wxVERTICAL);
  right->Add(btnOK);
  right->Add(btnCancel, wxSizerFlags().Border(wxTOP, gap));
  auto* all = new wxBoxSizer(wxHORIZONTAL);
  all->Add(left, wxSizerFlags(1).Expand().Border(wxALL, gap));
  all->Add(right, wxSizerFlags().Border(wxTOP | wxRIGHT, gap));
  SetSizer(all);
  SetClientSize(FromDIP(wxSize(530, 189)));
  CentreOnScreen();
}

void TCommentsForm::FitMemo() {
  const auto text = CommentsMemo->GetValue();
  const auto caret = static_cast<std::size_t>(CommentsMemo->GetInsertionPoint());
  const TCommentEdit typed{FromWx(text.Left(caret)), FromWx(text.Mid(caret))};
  const auto fitted = FitComment(typed);
  if (fitted != typed) {
    CommentsMemo->ChangeValue(ToWx(fitted.Before + fitted.After));
    CommentsMemo->SetInsertionPoint(static_cast<long>(ToWx(fitted.Before).length()));
  }
  const auto used = static_cast<long long>(fitted.Before.size() + fitted.After.size());
  LengthLabel->SetLabel(ToWx(Format(sCommentLength.Text, {used, static_cast<long long>(kMaxComment)})));
  Layout();
}

void TCommentsForm::FormShow() {
  CommentsMemo->SetFocus();
  CommentsMemo->SetInsertionPointEnd();
}

void TCommentsForm::btnOKClick(wxCommandEvent&) {
  FitMemo();  // what was typed last may still wait for it
  model_.Text = FromWx(CommentsMemo->GetValue());
  model_.ApplyToAll = cbApplyToAll->GetValue();
  CloseWith(mrOk);
}

void TCommentsForm::btnCancelClick(wxCommandEvent&) { CloseWith(mrCancel); }
