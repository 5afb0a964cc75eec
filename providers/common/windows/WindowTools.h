// Building blocks of a provider's windows.  User interface thread only.
#pragma once

#include <wx/listctrl.h>
#include <wx/stc/stc.h>
#include <wx/wx.h>

#include <functional>
#include <string>
#include <vector>

#include "scc/sccdefs.h"

namespace kestrel {

/// Whether this process runs the toolkit and this thread may show windows.
bool CanShowWindows();
/// The client's window, given by the toolkit's pointer or the native handle; else the active window.
wxWindow* ParentFor(scc::WindowHandle handle);

/// Mixes `share` (0 to 1) of `colour` into `base`, for light and dark themes.
wxColour Blend(const wxColour& base, const wxColour& colour, double share);
/// Converts a text to UTF-8; bytes that are not UTF-8 are read as Latin-1.
std::string ToUtf8(const std::string& bytes);
/// The first line, followed by an ellipsis if there are more.
std::string FirstLine(const std::string& text);
void CopyToClipboard(const std::string& text);
void ShowError(wxWindow* parent, const std::string& title, const std::string& text);

/// A dialog that can be resized and maximised and is closed by Escape.
class ToolWindow : public wxDialog {
 public:
  ToolWindow(wxWindow* parent, const std::string& title);

 protected:
  /// Appends a button to `row`; the button and an accelerator with its id call `press`.
  wxButton* AddButton(wxSizer* row, const std::string& label, std::function<void()> press);
  /// Appends a Close button to `row`; Escape presses it.
  wxButton* AddClose(wxSizer* row);
  void UseSizer(wxSizer* all, const wxSize& initial, const wxSize& least);
};

/// A read-only text with line numbers; Tab moves the focus.
class TextPane : public wxStyledTextCtrl {
 public:
  TextPane(wxWindow* parent, const char* name);
  /// UTF-8.
  void ShowText(const std::string& text);
};

/// A virtual report list: fetches the texts of the rows that it shows.
class RowList : public wxListCtrl {
 public:
  struct Column {
    std::string Title;
    int Width;  // DIPs
    wxListColumnFormat Format = wxLIST_FORMAT_LEFT;
  };
  using TextOf = std::function<std::string(std::size_t row, std::size_t column)>;

  RowList(wxWindow* parent, const char* name, const std::vector<Column>& columns, TextOf textOf);
  void SetRows(std::size_t count);
  /// The focused selected row, or -1.
  long Selected() const { return GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED); }
  /// Selects `row` only, and scrolls to it.
  void Select(long row);

 protected:
  wxString OnGetItemText(long row, long column) const override;

 private:
  void CopySelected() const;
  TextOf textOf_;
};

}  // namespace kestrel
