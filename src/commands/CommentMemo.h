// The memo for a comment.
#pragma once

#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "expert/FileListModel.h"

class wxCheckBox;
class wxSizer;

namespace kestrel::addin {

/// A memo and a label with the length of its text.  The parent window owns both.
struct TCommentMemo {
  using TFit = TCommentEdit (*)(TCommentEdit edit);

  wxTextCtrl* Memo = nullptr;
  wxStaticText* Length = nullptr;
  TFit Fit = nullptr;

  /// `fit` truncates the text to the length that providers accept.
  static TCommentMemo Create(wxWindow* parent, TFit fit, const wxSize& size = wxDefaultSize);
  /// Fits the text and shows its length.  Not in the event of a change, which GTK is still processing then.
  void Update() const;
  /// A row with the check box on the left and the length on the right.
  wxSizer* RowWith(wxCheckBox* box) const;
};

}  // namespace kestrel::addin
