// What the provider's windows have in common.  User interface thread only.
#pragma once

#include <wx/listctrl.h>
#include <wx/stc/stc.h>
#include <wx/wx.h>

#include <functional>
#include <string>
#include <vector>

#include "scc/sccdefs.h"

namespace kestrel {

/// Whether this process runs the toolkit, and this thread is the one that may show windows.
bool CanShowWindows();
/// The client's window if the toolkit knows it, by its own pointer or its native handle; else the active one.
wxWindow* ParentFor(scc::WindowHandle handle);

/// `base` with some of `colour` (0 to 1): marks that fit light and dark themes.
wxColour Blend(const wxColour& base, const wxColour& colour, double share);
/// A text's bytes as UTF-8: what is not UTF-8 is read as Latin-1.
std::string ToUtf8(const std::string& bytes);
/// The first line, and a sign that there are more.
std::string FirstLine(const std::string& text);
void CopyToClipboard(const std::string& text);
void ShowError(wxWindow* parent, const std::string& title, const std::string& text);

/// A dialog that is resized, maximised, and closed by Escape.
class ToolWindow : public wxDialog {
 public:
  ToolWindow(wxWindow* parent, const std::string& title);

 protected:
  /// A button at the end of `row`, bound to `press`; an accelerator with its id presses it too.
  wxButton* AddButton(wxSizer* row, const std::string& label, std::function<void()> press);
  /// The button that closes; answers Escape, and Enter when nothing else does.
  wxButton* AddClose(wxSizer* row);
  void UseSizer(wxSizer* all, const wxSize& initial, const wxSize& least);
};

/// A read-only text with line numbers.  Tab leaves it.
class TextPane : public wxStyledTextCtrl {
 public:
  TextPane(wxWindow* parent, const char* name);
  /// UTF-8.
  void ShowText(const std::string& text);
};

/// A report of any length.  Rows are asked for when they are shown.
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
  /// Selects `row` alone and shows it.
  void Select(long row);

 protected:
  wxString OnGetItemText(long row, long column) const override;

 private:
  void CopySelected() const;
  TextOf textOf_;
};

}  // namespace kestrel
