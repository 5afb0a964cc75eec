#include "workbench/macro/MessageBoxes.h"

#include <wx/generic/msgdlgg.h>
#include <wx/msgdlg.h>

namespace kestrel::workbench {

namespace {

/// Custom labels have the access-key marks of native boxes.
wxString OwnMnemonics(wxString label) {
  if (!label.Contains("&")) label.Replace("_", "&");
  return label;
}

}  // namespace

int TMessageBoxes::Enter(wxDialog* dialog) {
  const auto* box = dynamic_cast<wxMessageDialog*>(dialog);
  if (!box) return wxID_NONE;
  wxGenericMessageDialog shown(box->GetParent(), box->GetMessage(), box->GetTitle(),
                               box->GetMessageDialogStyle());
  if (!box->GetExtendedMessage().empty()) shown.SetExtendedMessage(box->GetExtendedMessage());
  if (box->HasCustomLabels()) {
    const bool yesNo = box->GetMessageDialogStyle() & wxYES_NO;
    if (yesNo)
      shown.SetYesNoLabels(OwnMnemonics(box->GetYesLabel()), OwnMnemonics(box->GetNoLabel()));
    else
      shown.SetOKLabel(OwnMnemonics(box->GetOKLabel()));
  }
  return shown.ShowModal();
}

}  // namespace kestrel::workbench
