#include "workbench/macro/WindowFinder.h"

#include <wx/checklst.h>
#include <wx/grid.h>
#include <wx/listbox.h>
#include <wx/listctrl.h>
#include <wx/stattext.h>
#include <wx/statusbr.h>
#include <wx/stc/stc.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include "workbench/windows/ModalStack.h"

namespace kestrel::workbench {

wxString PlainLabel(const wxString& label) {
  wxString plain = wxControl::RemoveMnemonics(label);
  if (plain.EndsWith(":")) plain.RemoveLast();
  return plain;
}

bool SameLabel(const wxString& a, const wxString& b) { return PlainLabel(a) == PlainLabel(b); }

std::vector<wxTopLevelWindow*> ShownWindows() {
  std::vector<wxTopLevelWindow*> windows;
  for (wxWindow* window : wxTopLevelWindows)
    if (auto* top = dynamic_cast<wxTopLevelWindow*>(window); top && top->IsShown()) windows.push_back(top);
  return windows;
}

bool VisitControls(wxWindow& window, const std::function<bool(wxWindow&)>& visit, bool hidden) {
  for (wxWindow* child : window.GetChildren()) {
    if (child->IsTopLevel() || (!hidden && !child->IsShown())) continue;
    if (visit(*child) || VisitControls(*child, visit, hidden)) return true;
  }
  return false;
}

wxWindow* FindLabelled(wxWindow& window, const wxString& label,
                       const std::function<bool(wxWindow&)>& accepts) {
  wxWindow* behind = nullptr;
  wxWindow* named = nullptr;
  std::vector<wxWindow*> all;
  bool labelSeen = false;
  VisitControls(window, [&](wxWindow& control) {
    if (dynamic_cast<wxStaticText*>(&control)) labelSeen = SameLabel(control.GetLabel(), label);
    if (!accepts(control)) return false;
    if (labelSeen && !behind) behind = &control;
    if (control.GetName() == label && !named) named = &control;
    all.push_back(&control);
    return false;
  });
  if (behind || named) return behind ? behind : named;
  return all.size() == 1 ? all.front() : nullptr;
}

namespace {

wxString ListText(const wxListCtrl& list) {
  wxString text;
  const int columns = std::max(1, list.GetColumnCount());
  for (int row = 0; row < list.GetItemCount(); ++row)
    for (int column = 0; column < columns; ++column) text += list.GetItemText(row, column) + "\n";
  return text;
}

wxString GridText(wxGrid& grid) {
  wxString text;
  for (int row = 0; row < grid.GetNumberRows(); ++row)
    for (int column = 0; column < grid.GetNumberCols(); ++column)
      text += grid.GetCellValue(row, column) + "\n";
  return text;
}

void AddTreeText(const wxTreeCtrl& tree, const wxTreeItemId& item, wxString& text) {
  if (!item.IsOk()) return;
  text += tree.GetItemText(item) + "\n";
  wxTreeItemIdValue cookie;
  for (auto child = tree.GetFirstChild(item, cookie); child.IsOk(); child = tree.GetNextChild(item, cookie))
    AddTreeText(tree, child, text);
}

wxString StatusText(const wxStatusBar& bar) {
  wxString text;
  for (int field = 0; field < bar.GetFieldsCount(); ++field) text += bar.GetStatusText(field) + "\n";
  return text;
}

}  // namespace

wxString TextOf(wxWindow& control) {
  if (auto* bar = dynamic_cast<wxStatusBar*>(&control)) return StatusText(*bar);
  if (auto* list = dynamic_cast<wxListCtrl*>(&control)) return ListText(*list);
  if (auto* grid = dynamic_cast<wxGrid*>(&control)) return GridText(*grid);
  if (auto* tree = dynamic_cast<wxTreeCtrl*>(&control)) {
    wxString text;
    AddTreeText(*tree, tree->GetRootItem(), text);
    return text;
  }
  if (auto* editor = dynamic_cast<wxStyledTextCtrl*>(&control)) return editor->GetText();
  if (auto* box = dynamic_cast<wxTextEntry*>(&control)) return box->GetValue();
  if (auto* items = dynamic_cast<wxListBox*>(&control)) return wxJoin(items->GetStrings(), '\n');
  if (auto* items = dynamic_cast<wxItemContainerImmutable*>(&control)) return items->GetStringSelection();
  return control.GetLabel();
}

std::string DescribeWindows() {
  wxString text;
  for (wxTopLevelWindow* window : ShownWindows()) {
    text += "  \"" + window->GetTitle() + "\"" + (window == TModalStack::Top() ? " (modal, in front)" : "") +
            "\n";
    if (!dynamic_cast<wxDialog*>(window)) continue;
    VisitControls(*window, [&](wxWindow& control) {
      const wxString shown = TextOf(control);
      if (shown.empty()) return false;
      text += wxString("    ") + control.GetClassInfo()->GetClassName() + " \"" +
              shown.BeforeFirst('\n').Left(90) + "\"" + (control.IsEnabled() ? "" : " (disabled)") + "\n";
      return false;
    });
  }
  return text.utf8_string();
}

}  // namespace kestrel::workbench
