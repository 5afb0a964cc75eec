#include "hosts/common/OptionBindings.h"

#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/textctrl.h>

#include "toolkit/WxText.h"

namespace kestrel {

namespace {

std::string ValueOf(wxControl& control) {
  if (auto* text = dynamic_cast<wxTextCtrl*>(&control)) return text->GetValue().utf8_string();
  if (auto* combo = dynamic_cast<wxComboBox*>(&control)) return combo->GetValue().utf8_string();
  if (auto* choice = dynamic_cast<wxChoice*>(&control)) return choice->GetStringSelection().utf8_string();
  return {};
}

void ShowValue(wxControl& control, const std::string& value) {
  const wxString text = ToWx(value);
  if (auto* box = dynamic_cast<wxTextCtrl*>(&control)) return box->ChangeValue(text);
  auto* list = dynamic_cast<wxItemContainerImmutable*>(&control);
  // A value that is no longer offered keeps the page's own choice.
  if (const int at = list ? list->FindString(text, true) : wxNOT_FOUND; at != wxNOT_FOUND)
    list->SetSelection(at);
  else if (auto* combo = dynamic_cast<wxComboBox*>(&control); combo && !combo->HasFlag(wxCB_READONLY))
    combo->SetValue(text);
}

}  // namespace

void TOptionBindings::Bind(wxControl* control, const std::string& field) {
  ShowValue(*control, GetValue(field));
  bindings_.push_back({control, field});
}

bool TOptionBindings::Store() {
  bool changed = false;
  for (const auto& [control, field] : bindings_) {
    const std::string value = ValueOf(*control);
    changed = changed || value != set_.GetValue(field);
    set_.SetValue(field, value);
  }
  return changed;
}

}  // namespace kestrel
