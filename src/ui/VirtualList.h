// A list that shows the rows of somebody else.
#pragma once

#include <wx/listctrl.h>

namespace kestrel::addin {

/// The control asks for what it shows and keeps no ticks of its own; the one of Windows, asked for one, would answer
/// anything.  So who asks or sets a tick here deals with whoever keeps the rows.
class TVirtualList : public wxListView {
 public:
  TVirtualList(wxWindow* parent, long style)
      : wxListView(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, style | wxLC_REPORT | wxLC_VIRTUAL) {}

  bool IsItemChecked(long item) const override { return OnGetItemIsChecked(item); }
  /// Sends what a click on the box sends.
  void CheckItem(long item, bool check) override {
    wxListEvent event(check ? wxEVT_LIST_ITEM_CHECKED : wxEVT_LIST_ITEM_UNCHECKED, GetId());
    event.SetEventObject(this);
    event.m_itemIndex = item;
    HandleWindowEvent(event);
  }

 protected:
  int OnGetItemImage(long) const override { return -1; }
};

}  // namespace kestrel::addin
