// The provider's windows as a user meets them: found by the names and labels of their controls.
#pragma once

#include <wx/stc/stc.h>
#include <wx/wx.h>

#include <functional>

#include "support/ModalScript.h"

namespace kestrel::svnscc {

template <class TControl>
TControl* Find(wxWindow& window, const char* name) {
  auto* control = dynamic_cast<TControl*>(wxWindow::FindWindowByName(name, &window));
  if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
  return control;
}

template <class TControl>
TControl* FindLabelled(wxWindow& window, const char* label) {
  auto* control = dynamic_cast<TControl*>(wxWindow::FindWindowByLabel(label, &window));
  if (control == nullptr) throw std::runtime_error(std::string("no control labelled ") + label);
  return control;
}

inline void Press(wxWindow& window, const char* label) { Click(FindLabelled<wxButton>(window, label)); }

inline void Tick(wxWindow& window, const char* label, bool on = true) {
  auto* box = FindLabelled<wxCheckBox>(window, label);
  box->SetValue(on);
  wxCommandEvent event(wxEVT_CHECKBOX, box->GetId());
  event.SetEventObject(box);
  event.SetInt(on ? 1 : 0);
  box->Command(event);
}

inline std::string Message(wxWindow& window) {
  return Find<wxStaticText>(window, "message")->GetLabel().utf8_string();
}

/// What a text pane shows; blank lines stand where the other side has more.
inline std::string TextIn(wxWindow& window, const char* name) {
  return Find<wxStyledTextCtrl>(window, name)->GetText().utf8_string();
}

}  // namespace kestrel::svnscc
