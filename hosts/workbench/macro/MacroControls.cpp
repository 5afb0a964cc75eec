#include "workbench/macro/MacroControls.h"

#include <wx/accel.h>
#include <wx/anybutton.h>
#include <wx/bookctrl.h>
#include <wx/checkbox.h>
#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/grid.h>
#include <wx/listctrl.h>
#include <wx/radiobox.h>
#include <wx/radiobut.h>
#include <wx/stockitem.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>
#include <wx/uiaction.h>

#include "workbench/macro/MacroStrings.h"
#include "workbench/macro/WindowFinder.h"

namespace kestrel::workbench {

namespace {

std::string Missing(wxWindow& window, const TResString& kind, const wxString& what) {
  return Format(sNoControl,
                {wxGetTopLevelParent(&window)->GetLabel().utf8_string(), kind, what.utf8_string()});
}

std::string Disabled(const wxString& what) { return Format(sControlDisabled, {what.utf8_string()}); }

void SendCommand(wxWindow& control, wxEventType type, int selection, const wxString& text) {
  wxCommandEvent event(type, control.GetId());
  event.SetEventObject(&control);
  event.SetInt(selection);
  event.SetString(text);
  control.HandleWindowEvent(event);
}

wxAnyButton* FindButton(wxWindow& window, const wxString& label) {
  return FindControl<wxAnyButton>(window, [&](const wxAnyButton& button) {
    const wxString shown = button.GetLabel().empty() ? wxGetStockLabel(button.GetId()) : button.GetLabel();
    return SameLabel(shown, label);
  });
}

int RowWith(const wxListCtrl& list, const wxString& text) {
  const int columns = std::max(1, list.GetColumnCount());
  for (int row = 0; row < list.GetItemCount(); ++row)
    for (int column = 0; column < columns; ++column)
      if (list.GetItemText(row, column) == text) return row;
  return wxNOT_FOUND;
}

int RowWith(wxGrid& grid, const wxString& text) {
  for (int row = 0; row < grid.GetNumberRows(); ++row)
    for (int column = 0; column < grid.GetNumberCols(); ++column)
      if (grid.GetCellValue(row, column) == text) return row;
  return wxNOT_FOUND;
}

/// A box that can be ticked, in any kind of control.
struct TBox {
  wxWindow* Control;
  std::function<bool()> Get;
  std::function<void(bool)> Set;
};

TBox BoxOf(wxCheckBox& box) {
  return {&box, [&] { return box.GetValue(); },
          [&](bool ticked) {
            box.SetValue(ticked);
            SendCommand(box, wxEVT_CHECKBOX, ticked, {});
          }};
}

TBox BoxOf(wxRadioButton& button) {
  return {&button, [&] { return button.GetValue(); },
          [&](bool ticked) {
            button.SetValue(ticked);
            SendCommand(button, wxEVT_RADIOBUTTON, ticked, {});
          }};
}

TBox BoxOf(wxCheckListBox& list, unsigned row) {
  return {&list, [&list, row] { return list.IsChecked(row); },
          [&list, row](bool ticked) {
            list.Check(row, ticked);
            SendCommand(list, wxEVT_CHECKLISTBOX, static_cast<int>(row), list.GetString(row));
          }};
}

/// A click on the box arrives in CheckItem, too. It sends the event; a virtual list does nothing else, as its owner
/// holds the state.
TBox BoxOf(wxListCtrl& list, int row) {
  return {&list, [&list, row] { return list.IsItemChecked(row); },
          [&list, row](bool ticked) {
            list.EnsureVisible(row);
            list.CheckItem(row, ticked);
          }};
}

std::optional<TBox> BoxIn(wxWindow& control, const wxString& text) {
  if (auto* box = dynamic_cast<wxCheckBox*>(&control); box && SameLabel(box->GetLabel(), text))
    return BoxOf(*box);
  if (auto* button = dynamic_cast<wxRadioButton*>(&control); button && SameLabel(button->GetLabel(), text))
    return BoxOf(*button);
  if (auto* list = dynamic_cast<wxCheckListBox*>(&control)) {
    const int row = list->FindString(text, true);
    if (row != wxNOT_FOUND) return BoxOf(*list, static_cast<unsigned>(row));
  }
  if (auto* list = dynamic_cast<wxListCtrl*>(&control); list && list->HasCheckBoxes()) {
    const int row = RowWith(*list, text);
    if (row != wxNOT_FOUND) return BoxOf(*list, row);
  }
  return std::nullopt;
}

std::optional<TBox> FindBox(wxWindow& window, const wxString& text) {
  std::optional<TBox> found;
  VisitControls(window, [&](wxWindow& control) {
    found = BoxIn(control, text);
    return found.has_value();
  });
  return found;
}

bool SelectIn(wxListCtrl& list, const wxString& text) {
  const int row = RowWith(list, text);
  if (row == wxNOT_FOUND) return false;
  for (long old = -1; (old = list.GetNextItem(old, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED)) != -1;)
    list.SetItemState(old, 0, wxLIST_STATE_SELECTED);
  constexpr long kChosen = wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED;
  list.EnsureVisible(row);
  return list.SetItemState(row, kChosen, kChosen);
}

bool SelectIn(wxListBox& list, const wxString& text) {
  const int row = list.FindString(text, true);
  if (row == wxNOT_FOUND) return false;
  list.SetSelection(row);
  SendCommand(list, wxEVT_LISTBOX, row, text);
  return true;
}

wxTreeItemId TreeItemWith(wxTreeCtrl& tree, const wxTreeItemId& item, const wxString& text) {
  if (!item.IsOk() || tree.GetItemText(item) == text) return item;
  wxTreeItemIdValue cookie;
  for (auto child = tree.GetFirstChild(item, cookie); child.IsOk(); child = tree.GetNextChild(item, cookie))
    if (const auto found = TreeItemWith(tree, child, text); found.IsOk()) return found;
  return {};
}

bool SelectIn(wxTreeCtrl& tree, const wxString& text) {
  const auto item = TreeItemWith(tree, tree.GetRootItem(), text);
  if (item.IsOk()) tree.SelectItem(item);
  return item.IsOk();
}

bool SelectIn(wxGrid& grid, const wxString& text) {
  const int row = RowWith(grid, text);
  if (row == wxNOT_FOUND) return false;
  grid.GoToCell(row, grid.GetGridCursorCol() < 0 ? 0 : grid.GetGridCursorCol());
  return true;
}

/// Converts a rectangle in `window` to the screen; empty if its centre is out of sight.
wxRect OnScreen(const wxWindow& window, const wxRect& rect) {
  const bool inSight = window.GetClientRect().Contains(rect.GetPosition() + rect.GetSize() / 2);
  return inSight ? wxRect(window.ClientToScreen(rect.GetPosition()), rect.GetSize()) : wxRect();
}

wxRect RowRectIn(wxListCtrl& list, const wxString& text) {
  const int row = RowWith(list, text);
  wxRect rect;
  return row != wxNOT_FOUND && list.GetItemRect(row, rect) ? OnScreen(list, rect) : wxRect();
}

wxRect RowRectIn(wxTreeCtrl& tree, const wxString& text) {
  const auto item = TreeItemWith(tree, tree.GetRootItem(), text);
  wxRect rect;
  return item.IsOk() && tree.GetBoundingRect(item, rect, true) ? OnScreen(tree, rect) : wxRect();
}

wxRect RowRectIn(wxGrid& grid, const wxString& text) {
  const int row = RowWith(grid, text);
  if (row == wxNOT_FOUND) return {};
  wxRect rect = grid.CellToRect(row, 0);
  rect.SetPosition(grid.CalcScrolledPosition(rect.GetPosition()));
  return OnScreen(*grid.GetGridWindow(), rect);
}

template <class T>
wxRect TryRowRect(wxWindow& control, const wxString& text) {
  T* list = dynamic_cast<T*>(&control);
  return list ? RowRectIn(*list, text) : wxRect();
}

template <class T>
bool TrySelect(wxWindow& control, const wxString& text) {
  T* list = dynamic_cast<T*>(&control);
  return list && SelectIn(*list, text);
}

/// The event sent when an entry of the list is chosen.
wxEventType ChoiceEvent(wxWindow& control) {
  if (dynamic_cast<wxComboBox*>(&control)) return wxEVT_COMBOBOX;
  if (dynamic_cast<wxRadioBox*>(&control)) return wxEVT_RADIOBOX;
  return dynamic_cast<wxListBox*>(&control) ? wxEVT_LISTBOX : wxEVT_CHOICE;
}

void PutValue(wxWindow& control, const wxString& value) {
  if (auto* list = dynamic_cast<wxItemContainerImmutable*>(&control)) {
    const int at = list->FindString(value, true);
    if (at != wxNOT_FOUND) {
      list->SetSelection(at);
      SendCommand(control, ChoiceEvent(control), at, value);
      return;
    }
  }
  if (auto* text = dynamic_cast<wxTextEntry*>(&control)) text->SetValue(value);
}

}  // namespace

std::string PressButton(wxWindow& window, const wxString& label) {
  wxAnyButton* button = FindButton(window, label);
  if (!button) return Missing(window, sKindButton, label);
  if (!button->IsThisEnabled() || !button->IsEnabled()) return Disabled(label);
  button->SetFocus();
  SendCommand(*button, wxEVT_BUTTON, 0, {});
  return {};
}

bool HasButton(wxWindow& window, const wxString& label) {
  const wxAnyButton* button = FindButton(window, label);
  return button && button->IsEnabled();
}

std::string TickBox(wxWindow& window, const wxString& text, bool ticked) {
  const auto box = FindBox(window, text);
  if (!box) return Missing(window, sKindBox, text);
  if (!box->Control->IsEnabled()) return Disabled(text);
  box->Control->SetFocus();
  if (box->Get() != ticked) box->Set(ticked);
  if (box->Get() == ticked) return {};
  return Format(ticked ? sIsNotTicked : sIsTicked, {text.utf8_string()});
}

std::optional<bool> IsTicked(wxWindow& window, const wxString& text) {
  const auto box = FindBox(window, text);
  return box ? std::optional(box->Get()) : std::nullopt;
}

std::string SelectRow(wxWindow& window, const wxString& text) {
  const bool found = VisitControls(window, [&](wxWindow& control) {
    return TrySelect<wxListCtrl>(control, text) || TrySelect<wxListBox>(control, text) ||
           TrySelect<wxTreeCtrl>(control, text) || TrySelect<wxGrid>(control, text);
  });
  return found ? std::string() : Missing(window, sKindRow, text);
}

std::string EditCell(wxWindow& window, const wxString& rowText, const wxString& column,
                     const wxString& value) {
  auto* grid = FindControl<wxGrid>(window, [&](wxGrid& g) { return RowWith(g, rowText) != wxNOT_FOUND; });
  if (!grid) return Missing(window, sKindRow, rowText);
  const int row = RowWith(*grid, rowText);
  int col = 0;
  while (col < grid->GetNumberCols() && !SameLabel(grid->GetColLabelValue(col), column)) ++col;
  if (col == grid->GetNumberCols()) return Missing(window, sKindColumn, column);
  if (grid->IsReadOnly(row, col)) return Disabled(column);
  grid->GoToCell(row, col);
  grid->EnableCellEditControl();
  wxGridCellEditor* editor = grid->GetCellEditor(row, col);
  PutValue(*editor->GetWindow(), value);
  editor->DecRef();
  grid->DisableCellEditControl();
  if (grid->GetCellValue(row, col) == value) return {};
  return Format(sNoItem, {column.utf8_string(), value.utf8_string()});
}

std::string TurnToPage(wxWindow& window, const wxString& caption) {
  const bool turned = VisitControls(window, [&](wxWindow& control) {
    auto* book = dynamic_cast<wxBookCtrlBase*>(&control);
    for (std::size_t page = 0; book && page < book->GetPageCount(); ++page)
      if (SameLabel(book->GetPageText(page), caption)) {
        book->SetSelection(page);
        return true;
      }
    return false;
  });
  return turned ? std::string() : Missing(window, sKindPage, caption);
}

std::string TypeText(wxWindow& window, const wxString& label, const wxString& text) {
  wxWindow* control = FindLabelled(window, label, [](wxWindow& w) {
    const auto* entry = dynamic_cast<wxTextEntry*>(&w);
    return entry && entry->IsEditable() && w.IsEnabled();
  });
  if (!control) return Missing(window, sKindText, label);
  control->SetFocus();
  auto& entry = dynamic_cast<wxTextEntry&>(*control);
  // Character by character over a selection, so that the box applies its length limit.
  entry.SelectAll();
  if (text.empty()) entry.RemoveSelection();
  for (const wxUniChar character : text) entry.WriteText(wxString(character));
  return {};
}

std::string ChooseItem(wxWindow& window, const wxString& label, const wxString& item) {
  wxWindow* control = FindLabelled(window, label, [](wxWindow& w) {
    return dynamic_cast<wxItemContainerImmutable*>(&w) && !dynamic_cast<wxCheckListBox*>(&w);
  });
  if (!control) return Missing(window, sKindList, label);
  if (!control->IsEnabled()) return Disabled(label);
  if (dynamic_cast<wxItemContainerImmutable&>(*control).FindString(item, true) == wxNOT_FOUND)
    return Format(sNoItem, {label.utf8_string(), item.utf8_string()});
  control->SetFocus();
  PutValue(*control, item);
  return {};
}

std::string PressKey(wxUIActionSimulator& input, const wxString& name) {
  wxAcceleratorEntry key;
  const wxString alias = name == "Escape" ? wxString("Esc") : name;
  if (!key.FromString("\t" + alias)) return Format(sNoKey, {name.utf8_string()});
  int modifiers = wxMOD_NONE;
  if (key.GetFlags() & wxACCEL_CTRL) modifiers |= wxMOD_CONTROL;
  if (key.GetFlags() & wxACCEL_SHIFT) modifiers |= wxMOD_SHIFT;
  if (key.GetFlags() & wxACCEL_ALT) modifiers |= wxMOD_ALT;
  input.Char(key.GetKeyCode(), modifiers);
  return {};
}

wxRect ButtonRect(wxWindow& window, const wxString& label) {
  const wxAnyButton* button = FindButton(window, label);
  return button ? button->GetScreenRect() : wxRect();
}

wxRect RowRect(wxWindow& window, const wxString& text) {
  wxRect rect;
  VisitControls(window, [&](wxWindow& control) {
    for (const auto find : {TryRowRect<wxListCtrl>, TryRowRect<wxTreeCtrl>, TryRowRect<wxGrid>})
      if (rect.IsEmpty()) rect = find(control, text);
    return !rect.IsEmpty();
  });
  return rect;
}

}  // namespace kestrel::workbench
