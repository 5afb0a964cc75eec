#include "commands/Comments.h"

#include <wx/wx.h>

#include "commands/CommentsStrings.h"
#include "toolkit/WxText.h"
#include "ui/ButtonStrings.h"

namespace kestrel::addin {

TCommentsForm* CommentsForm = nullptr;

namespace {

constexpr int kFirstRecentId = wxID_HIGHEST + 1;  // of entry 0
constexpr int kRecentWidth = 400;

}  // namespace

TCommentsForm::TCommentsForm(TCommentModel& model)
    : TModalForm(ToWx(model.Caption.empty() ? sCommentsCaption.str() : model.Caption),
                 wxDEFAULT_DIALOG_STYLE),
      model_(model),
      history_(model.Recent, model.Text) {
  CreateControls();
  LayOut();
  Bind(wxEVT_INIT_DIALOG, [this](wxInitDialogEvent&) { FormShow(); });
  // Deferred, because the control is still processing the change.
  CommentsMemo->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { CallAfter([this] { comment_.Update(); }); });
  btnOK->Bind(wxEVT_BUTTON, &TCommentsForm::btnOKClick, this);
  btnCancel->Bind(wxEVT_BUTTON, &TCommentsForm::btnCancelClick, this);
  btnRecent->Bind(wxEVT_BUTTON, &TCommentsForm::btnRecentClick, this);
  RecentMenu.Bind(wxEVT_MENU, [this](wxCommandEvent& event) {
    Replace(history_.Choose(static_cast<std::size_t>(event.GetId() - kFirstRecentId)));
  });
}

void TCommentsForm::CreateControls() {
  const auto button = [this](wxWindowID id, const TResString& label) {
    return new wxButton(this, id, ToWx(label), wxDefaultPosition, FromDIP(wxSize(80, 30)));
  };
  comment_ = TCommentMemo::Create(this, FitComment, FromDIP(wxSize(423, 153)));
  CommentsMemo = comment_.Memo;
  CommentsMemo->ChangeValue(ToWx(model_.Text));
  cbApplyToAll = new wxCheckBox(this, wxID_ANY, ToWx(sApplyToAll));
  cbApplyToAll->SetValue(model_.ApplyToAll);
  cbApplyToAll->Show(model_.ShowApplyToAll);
  btnOK = button(wxID_OK, sButtonOk);
  btnCancel = button(wxID_CANCEL, sButtonCancel);
  btnRecent = button(wxID_ANY, sCommentsRecent);
  btnRecent->SetToolTip(ToWx(sCommentsRecentHint));
  btnRecent->Enable(history_.HasEarlier());
  btnOK->SetDefault();
  comment_.Update();
}

void TCommentsForm::LayOut() {
  const int gap = FromDIP(8);
  const int around = FromDIP(5);  // so that the memo keeps its height
  auto* left = new wxBoxSizer(wxVERTICAL);
  left->Add(CommentsMemo, wxSizerFlags(1).Expand());
  left->Add(comment_.RowWith(cbApplyToAll), wxSizerFlags().Expand().Border(wxTOP, FromDIP(2)));
  auto* right = new wxBoxSizer(wxVERTICAL);
  right->Add(btnOK);
  right->Add(btnCancel, wxSizerFlags().Border(wxTOP, gap));
  right->Add(btnRecent, wxSizerFlags().Border(wxTOP, gap));
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(left, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, gap));
  row->Add(right, wxSizerFlags().Border(wxRIGHT, gap));
  auto* all = new wxBoxSizer(wxVERTICAL);
  all->Add(row, wxSizerFlags(1).Expand().Border(wxTOP | wxBOTTOM, around));
  SetSizer(all);
  SetClientSize(FromDIP(wxSize(530, 189)));
  CentreOnScreen();
}

void TCommentsForm::FormShow() {
  CommentsMemo->SetFocus();
  CommentsMemo->SelectAll();  // so that typing replaces it
}

void TCommentsForm::FormKeyDown(wxKeyEvent& event) {
  const int key = event.GetKeyCode();
  const bool walk = (key == WXK_UP || key == WXK_DOWN) && event.GetModifiers() == wxMOD_CONTROL;
  if (!walk || FindFocus() != CommentsMemo) return TModalForm::FormKeyDown(event);
  history_.Record(FromWx(CommentsMemo->GetValue()));
  Replace(key == WXK_UP ? history_.Older() : history_.Newer());
}

void TCommentsForm::CloseWith(int modalResult) {
  comment_.Update();  // the deferred call may be pending
  model_.Text = FromWx(CommentsMemo->GetValue());
  TModalForm::CloseWith(modalResult);
}

void TCommentsForm::btnOKClick(wxCommandEvent&) {
  model_.ApplyToAll = cbApplyToAll->GetValue();
  CloseWith(mrOk);
}

void TCommentsForm::btnCancelClick(wxCommandEvent&) { CloseWith(mrCancel); }

void TCommentsForm::btnRecentClick(wxCommandEvent&) {
  FillRecentMenu();
  PopupMenu(&RecentMenu, btnRecent->GetRect().GetBottomLeft());
}

void TCommentsForm::FillRecentMenu() {
  history_.Record(FromWx(CommentsMemo->GetValue()));
  while (RecentMenu.GetMenuItemCount() > 0) RecentMenu.Destroy(RecentMenu.FindItemByPosition(0));
  for (std::size_t i = 1; i < history_.Entries().size(); ++i) {
    // &1 to &9, 1&0; the rest have no access key.
    AppendRecent(i, i < 10 ? wxString::Format("&%zu ", i) : i == 10 ? wxString("1&0 ") : wxString());
  }
  if (history_.IsAtDraft() || Trim(history_.Entries()[0]).empty()) return;
  RecentMenu.AppendSeparator();
  AppendRecent(0, {});
}

void TCommentsForm::AppendRecent(std::size_t entry, const wxString& accelerator) {
  auto text = ToWx(history_.Entries()[entry]);
  text.Replace("\t", " ");  // a tab in a label precedes a shortcut
  text = wxControl::Ellipsize(text, wxClientDC(this), wxELLIPSIZE_END, FromDIP(kRecentWidth));
  RecentMenu.Append(kFirstRecentId + static_cast<int>(entry), accelerator + wxControl::EscapeMnemonics(text));
}

void TCommentsForm::Replace(const std::optional<std::string>& comment) {
  if (!comment) return;
  CommentsMemo->ChangeValue(ToWx(*comment));
  CommentsMemo->SetInsertionPointEnd();
  CommentsMemo->SetFocus();
  comment_.Update();
}

}  // namespace kestrel::addin
