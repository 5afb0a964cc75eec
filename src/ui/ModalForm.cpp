#include "ui/ModalForm.h"

#include <wx/wx.h>

#include "host/Services.h"

namespace kestrel::addin {

void ShowHelpTopic(const std::string& keyword) {
  if (auto* application = IdeService<IOTAApplication>()) application->HelpKeyword(keyword);
}

TModalForm::TModalForm(const wxString& caption, long style)
    : wxDialog(nullptr, wxID_ANY, caption, wxDefaultPosition, wxDefaultSize, style) {
  Bind(wxEVT_CHAR_HOOK, &TModalForm::FormKeyDown, this);
  Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) { CloseWith(mrCancel); });
}

void TModalForm::CloseWith(int modalResult) {
  if (IsModal()) return EndModal(modalResult);
  SetReturnCode(modalResult);
  Hide();
}

void TModalForm::FormKeyDown(wxKeyEvent& event) {
  const int key = event.GetKeyCode();
  const bool enter = key == WXK_RETURN || key == WXK_NUMPAD_ENTER;
  if (key == WXK_ESCAPE)
    CloseWith(mrCancel);
  else if (key == WXK_F1)
    ShowHelp();
  else if (!enter || !PressDefaultButton())
    event.Skip();
}

bool TModalForm::PressDefaultButton() {
  auto* button = dynamic_cast<wxButton*>(GetDefaultItem());
  if (!button || dynamic_cast<wxButton*>(FindFocus())) return false;
  if (button->IsEnabled()) button->Command(*std::make_unique<wxCommandEvent>(wxEVT_BUTTON, button->GetId()));
  return true;
}

}  // namespace kestrel::addin
