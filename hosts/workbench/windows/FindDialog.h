// Find and replace in the editor in front.
#pragma once

#include <wx/fdrepdlg.h>
#include <wx/weakref.h>

#include <functional>
#include <string>

class wxStyledTextCtrl;

namespace kestrel::workbench {

class TFindReplace final {
 public:
  /// `editor` returns the editor to search, or null; `status` shows a line to the user.
  TFindReplace(wxWindow* parent, std::function<wxStyledTextCtrl*()> editor,
               std::function<void(const std::string&)> status);
  TFindReplace(const TFindReplace&) = delete;
  TFindReplace& operator=(const TFindReplace&) = delete;
  /// Deletes the dialog if it is open.
  ~TFindReplace();
  void Show(bool replace);
  /// Finds the last text again, or asks for one.
  void FindNext();

 private:
  bool Step();
  void ReplaceOne();
  void ReplaceAll();
  int SearchFlags() const;
  bool SelectionMatches(wxStyledTextCtrl& editor) const;

  wxWindow* parent_;
  std::function<wxStyledTextCtrl*()> editor_;
  std::function<void(const std::string&)> status_;
  wxFindReplaceData data_{wxFR_DOWN};
  wxWeakRef<wxFindReplaceDialog> dialog_;
};

}  // namespace kestrel::workbench
