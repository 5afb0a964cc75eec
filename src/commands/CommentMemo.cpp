#include "commands/CommentMemo.h"

#include <wx/checkbox.h>
#include <wx/settings.h>
#include <wx/sizer.h>

#include "commands/CommentsStrings.h"
#include "toolkit/WxText.h"

namespace kestrel::addin {

TCommentMemo TCommentMemo::Create(wxWindow* parent, TFit fit, const wxSize& size) {
  const TCommentMemo comment{new wxTextCtrl(parent, wxID_ANY, {}, wxDefaultPosition, size, wxTE_MULTILINE),
                             new wxStaticText(parent, wxID_ANY, {}), fit};
  comment.Length->SetForegroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
  return comment;
}

void TCommentMemo::Update() const {
  const auto text = Memo->GetValue();
  const auto caret = static_cast<std::size_t>(Memo->GetInsertionPoint());
  const TCommentEdit typed{FromWx(text.Left(caret)), FromWx(text.Mid(caret))};
  const auto fitted = Fit(typed);
  if (fitted != typed) {
    Memo->ChangeValue(ToWx(fitted.Before + fitted.After));
    Memo->SetInsertionPoint(static_cast<long>(ToWx(fitted.Before).length()));
  }
  const auto used =
      static_cast<long long>(fitted.Before.size()) + static_cast<long long>(fitted.After.size());
  Length->SetLabel(ToWx(Format(sCommentLength, {used, static_cast<long long>(kMaxComment)})));
  Memo->GetParent()->Layout();
}

wxSizer* TCommentMemo::RowWith(wxCheckBox* box) const {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(box, wxSizerFlags().CentreVertical());
  row->AddStretchSpacer();
  row->Add(Length, wxSizerFlags().CentreVertical());
  return row;
}

}  // namespace kestrel::addin
