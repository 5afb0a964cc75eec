#include "workbench/macro/MessageBoxes.h"

#include <wx/generic/msgdlgg.h>
#include <wx/msgdlg.h>

int TMessageBoxes::Enter(wxDialog* dialog) {
  const auto* box = dynamic_cast<wxMessageDialog*>(dialog);
  if (!box) return wxID_NONE;
  wxGenericMessageDialog shown(box->GetParent(), box->GetMessage(), box->GetTitle(),
                               box->GetMessageDialogStyle());
  if (!box->GetExtendedMessage().empty()) shown.SetExtendedMessage(box->GetExtendedMessage());
  if (box->HasCustomLabels()) {
    const bool yesNo = box->GetMessageDialogStyle() & wxYES_NO;
    if (yesNo)
      shown.SetYesNoLabels(box->GetYesLabel(), box->GetNoLabel());
    else
      shown.SetOKLabel(box->GetOKLabel());
  }
  return shown.ShowModal();
}
