// Virtual list control.
#pragma once

#include <wx/listctrl.h>

namespace kestrel::addin {

/// Rows and check states belong to the owner and are queried through OnGetItem*().  IsItemChecked() and CheckItem() go to
/// the owner as well, because the native control of Windows does not store check states of a virtual list.
class TVirtualList : public wxListView {
 public:
  TVirtualList(wxWindow* parent, long style)
      : wxListView(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, style | wxLC_REPORT | wxLC_VIRTUAL) {}

  bool IsItemChecked(long item) const override { return OnGetItemIsChecked(item); }
  /// Sends the event of a click on the check box.
  void CheckItem(long item, bool check) override {
    wxListEvent event(check ? wxEVT_LIST_ITEM_CHECKED : wxEVT_LIST_ITEM_UNCHECKED, GetId());
    event.SetEventObject(this);
    event.m_itemIndex = item;
    HandleWindowEvent(event);
  }
  /// Sets the check boxes of the selected rows to the opposite of the focused row's.
  void ToggleSelected() {
    const long focused = GetFocusedItem();
    if (focused < 0) return;
    const bool check = !OnGetItemIsChecked(focused);
    SetItemChecked(focused, check);
    for (long i = GetFirstSelected(); i >= 0; i = GetNextSelected(i)) SetItemChecked(i, check);
    Refresh();
  }
  void SelectAll() { SetItemState(-1, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED); }

 protected:
  int OnGetItemImage(long) const override { return -1; }
  /// Stores the check state of a row in the owner.
  virtual void SetItemChecked(long item, bool check) = 0;
};

}  // namespace kestrel::addin
