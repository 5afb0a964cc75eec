#include "common/windows/WindowTools.h"

#include <wx/clipbrd.h>
#include <wx/thread.h>

#include "common/windows/WindowStrings.h"
#include "toolkit/WindowSize.h"
#include "toolkit/WxText.h"

namespace kestrel {

bool CanShowWindows() {
  const wxAppConsole* app = wxAppConsole::GetInstance();
  return app != nullptr && app->IsGUI() && wxIsMainThread();
}

wxWindow* ParentFor(scc::WindowHandle handle) {
  for (wxWindow* window : wxTopLevelWindows)
    if (handle != nullptr &&
        (static_cast<void*>(window) == handle || static_cast<void*>(window->GetHandle()) == handle))
      return window;
  wxWindow* active = wxGetActiveWindow();
  return active != nullptr ? wxGetTopLevelParent(active) : wxTheApp->GetTopWindow();
}

wxColour Blend(const wxColour& base, const wxColour& colour, double share) {
  return {wxColour::AlphaBlend(colour.Red(), base.Red(), share),
          wxColour::AlphaBlend(colour.Green(), base.Green(), share),
          wxColour::AlphaBlend(colour.Blue(), base.Blue(), share)};
}

std::string ToUtf8(const std::string& bytes) { return FromWx(ToWx(bytes)); }

std::string FirstLine(const std::string& text) {
  const auto start = text.find_first_not_of("\r\n");
  if (start == std::string::npos) return {};
  const auto end = text.find_first_of("\r\n", start);
  const bool more = end != std::string::npos && text.find_first_not_of("\r\n", end) != std::string::npos;
  return text.substr(start, end == std::string::npos ? end : end - start) + (more ? " \u2026" : "");
}

void CopyToClipboard(const std::string& text) {
  const wxClipboardLocker locker;
  if (!locker) return;
  wxTheClipboard->SetData(new wxTextDataObject(ToWx(text)));
  wxTheClipboard->Flush();
}

void ShowError(wxWindow* parent, const std::string& title, const std::string& text) {
  wxMessageDialog(parent, ToWx(text), ToWx(title), wxOK | wxICON_ERROR).ShowModal();
}

ToolWindow::ToolWindow(wxWindow* parent, const std::string& title)
    : wxDialog(parent, wxID_ANY, ToWx(title), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER | wxMAXIMIZE_BOX) {}

wxButton* ToolWindow::AddButton(wxSizer* row, const std::string& label, std::function<void()> press) {
  auto* button = new wxButton(this, wxID_ANY, ToWx(label));
  button->Bind(wxEVT_BUTTON, [press](wxCommandEvent&) { press(); });
  // Accelerators send a menu event.
  Bind(
      wxEVT_MENU,
      [button, press = std::move(press)](wxCommandEvent&) {
        if (button->IsEnabled()) press();
      },
      button->GetId());
  row->Add(button, wxSizerFlags().CenterVertical().Border(wxRIGHT, FromDIP(6)));
  return button;
}

wxButton* ToolWindow::AddClose(wxSizer* row) {
  row->AddStretchSpacer();
  auto* close = new wxButton(this, wxID_CANCEL, ToWx(sClose));
  row->Add(close, wxSizerFlags().CenterVertical());
  SetEscapeId(wxID_CANCEL);
  return close;
}

void ToolWindow::UseSizer(wxSizer* all, const wxSize& initial, const wxSize& least) {
  SetSizer(all);
  const wxSize needed = all->ComputeFittingWindowSize(this);
  wxSize smallest = FromDIP(least);
  smallest.IncTo(wxSize(needed.x, 0));
  SetMinSize(smallest);
  wxSize size = FromDIP(initial);
  size.IncTo(smallest);
  size.DecTo(wxGetClientDisplayRect().GetSize());
  SetOuterSize(*this, size);
  CentreOnParent();
}

TextPane::TextPane(wxWindow* parent, const char* name) : wxStyledTextCtrl(parent, wxID_ANY) {
  SetName(name);
  const wxColour base = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW);
  const wxColour ink = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
  const wxFont font(wxFontInfo(10).Family(wxFONTFAMILY_TELETYPE));
  StyleSetFont(wxSTC_STYLE_DEFAULT, font);
  StyleSetForeground(wxSTC_STYLE_DEFAULT, ink);
  StyleSetBackground(wxSTC_STYLE_DEFAULT, base);
  StyleClearAll();
  StyleSetForeground(wxSTC_STYLE_LINENUMBER, Blend(base, ink, 0.6));
  StyleSetBackground(wxSTC_STYLE_LINENUMBER, Blend(base, ink, 0.06));
  SetCaretForeground(ink);
  SetTabWidth(4);
  SetScrollWidth(1);
  SetScrollWidthTracking(true);
  SetMarginType(0, wxSTC_MARGIN_NUMBER);
  SetMarginWidth(1, 0);
  SetReadOnly(true);
  Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
    if (event.GetKeyCode() == WXK_TAB)
      Navigate(event.ShiftDown() ? wxNavigationKeyEvent::IsBackward : wxNavigationKeyEvent::IsForward);
    else
      event.Skip();
  });
}

void TextPane::ShowText(const std::string& text) {
  SetReadOnly(false);
  ClearAll();
  AddTextRaw(text.data(), static_cast<int>(text.size()));
  EmptyUndoBuffer();
  SetReadOnly(true);
  GotoPos(0);
  SetMarginWidth(0,
                 TextWidth(wxSTC_STYLE_LINENUMBER, wxString::Format(" %d ", std::max(GetLineCount(), 999))));
}

RowList::RowList(wxWindow* parent, const char* name, const std::vector<Column>& columns, TextOf textOf)
    : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxLC_REPORT | wxLC_VIRTUAL | wxLC_SINGLE_SEL),
      textOf_(std::move(textOf)) {
  SetName(name);
  for (const auto& column : columns) AppendColumn(ToWx(column.Title), column.Format, FromDIP(column.Width));
  Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
    if (event.GetKeyCode() == 'C' && event.ControlDown())
      CopySelected();
    else
      event.Skip();
  });
}

void RowList::SetRows(std::size_t count) {
  SetItemCount(static_cast<long>(count));
  Refresh();
}

void RowList::Select(long row) {
  const long old = Selected();
  if (old >= 0) SetItemState(old, 0, wxLIST_STATE_SELECTED);
  if (row < 0 || row >= GetItemCount()) return;
  constexpr long kState = wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED;
  SetItemState(row, kState, kState);
  EnsureVisible(row);
}

wxString RowList::OnGetItemText(long row, long column) const {
  std::string text = textOf_(static_cast<std::size_t>(row), static_cast<std::size_t>(column));
  std::replace(text.begin(), text.end(), '\t', ' ');
  return ToWx(text);
}

void RowList::CopySelected() const {
  const long row = Selected();
  if (row < 0) return;
  std::string line;
  for (int column = 0; column < GetColumnCount(); ++column)
    line +=
        (column > 0 ? "\t" : "") + textOf_(static_cast<std::size_t>(row), static_cast<std::size_t>(column));
  CopyToClipboard(line);
}

}  // namespace kestrel
