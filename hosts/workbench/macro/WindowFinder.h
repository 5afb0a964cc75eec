// Finding windows and controls as a user finds them: by title, label and what stands beside them.
#pragma once

#include <wx/toplevel.h>

#include <functional>
#include <string>
#include <vector>

class wxTextEntry;

namespace kestrel::workbench {

/// A label without access-key marks and a trailing colon.
wxString PlainLabel(const wxString& label);
bool SameLabel(const wxString& a, const wxString& b);

/// The windows that are on the screen.
std::vector<wxTopLevelWindow*> ShownWindows();
/// Calls `visit` for every control below `window`, in tab order, until it answers true.  Without `hidden`, only for
/// those that are on the screen.
bool VisitControls(wxWindow& window, const std::function<bool(wxWindow&)>& visit, bool hidden = false);

/// The first control of kind T below `window` that `matches`; nullptr for none.
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

/// The control for which `accepts` is true that belongs to `label`: the next one behind a label of that text, the one
/// that is named so, or the only one in the window.  nullptr for none.
wxWindow* FindLabelled(wxWindow& window, const wxString& label,
                       const std::function<bool(wxWindow&)>& accepts);

/// Everything a control shows: label, text, rows, cells.
wxString TextOf(wxWindow& control);
/// What is on the screen, for the report of a failed step.
std::string DescribeWindows();

}  // namespace kestrel::workbench
