#include "workbench/windows/MessagePane.h"

#include <wx/clipbrd.h>
#include <wx/menu.h>

#include <algorithm>

#include "toolkit/WxText.h"
#include "workbench/windows/FrameStrings.h"

namespace kestrel::workbench {

TMessagePane::TMessagePane(wxWindow* parent)
    : wxListView(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxLC_REPORT | wxLC_NO_HEADER | wxBORDER_NONE) {
  SetName(ToWx(sMessagesCaption));
  AppendColumn("");
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    FitColumn();
  });
  Bind(wxEVT_CONTEXT_MENU, &TMessagePane::ShowContextMenu, this);
  Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
    if (event.CmdDown() && event.GetKeyCode() == 'C')
      CopySelected();
    else
      event.Skip();
  });
}

void TMessagePane::FitColumn() {
  SetColumnWidth(0, wxLIST_AUTOSIZE);
  SetColumnWidth(0, std::max(GetColumnWidth(0), GetClientSize().GetWidth()));
}

void TMessagePane::AddLine(const std::string& line) {
  const long row = InsertItem(GetItemCount(), ToWx(line));
  FitColumn();
  EnsureVisible(row);
}

void TMessagePane::CopySelected() {
  wxString text;
  for (long row = GetFirstSelected(); row != -1; row = GetNextSelected(row)) text += GetItemText(row) + "\n";
  if (text.empty() || !wxTheClipboard->Open()) return;
  wxTheClipboard->SetData(new wxTextDataObject(text));
  wxTheClipboard->Close();
}

void TMessagePane::ShowContextMenu(wxContextMenuEvent&) {
  wxMenu menu;
  menu.Append(wxID_COPY, ToWx(sMessagesCopy))->Enable(GetSelectedItemCount() > 0);
  menu.Append(wxID_CLEAR, ToWx(sMessagesClear))->Enable(GetItemCount() > 0);
  switch (GetPopupMenuSelectionFromUser(menu)) {
    case wxID_COPY:
      return CopySelected();
    case wxID_CLEAR:
      DeleteAllItems();
      return;
    default:
      return;
  }
}

}  // namespace kestrel::workbench
