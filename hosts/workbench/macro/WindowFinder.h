// Finds windows and controls by title and label.
#pragma once

#include <wx/toplevel.h>

#include <functional>
#include <string>
#include <vector>

class wxTextEntry;

namespace kestrel::workbench {

/// A label without access-key marks and trailing colon.
wxString PlainLabel(const wxString& label);
bool SameLabel(const wxString& a, const wxString& b);

/// The windows on the screen.
std::vector<wxTopLevelWindow*> ShownWindows();
/// Calls `visit` for every control below `window`, in tab order, until it returns true. Skips controls that are not
/// shown unless `hidden`.
bool VisitControls(wxWindow& window, const std::function<bool(wxWindow&)>& visit, bool hidden = false);

/// The first control of type T below `window` that `matches`; null if there is none.
template <class T, class Match>
T* FindControl(wxWindow& window, Match matches) {
  T* found = nullptr;
  VisitControls(window, [&](wxWindow& control) {
    T* candidate = dynamic_cast<T*>(&control);
    if (candidate && matches(*candidate)) found = candidate;
    return found != nullptr;
  });
  return found;
}

/// The control that `accepts` and belongs to `label`: the next one after a label of that text, the one of that name, or
/// the only one in the window; null if there is none.
wxWindow* FindLabelled(wxWindow& window, const wxString& label,
                       const std::function<bool(wxWindow&)>& accepts);

/// All text that a control shows: label, text, rows, cells.
wxString TextOf(wxWindow& control);
/// Describes the open windows, for the report of a failed step.
std::string DescribeWindows();

}  // namespace kestrel::workbench
