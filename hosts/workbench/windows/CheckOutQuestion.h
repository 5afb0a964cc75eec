// Asks whether to check a read-only file out when the user types into it.
#pragma once

#include <wx/event.h>

#include <set>
#include <string>
#include <vector>

#include "hosts/common/Notifications.h"
#include "workbench/model/FileStates.h"

class wxWindow;

namespace kestrel::workbench {

class TEditorBook;

/// Asks once per file until it has been writable.  Keys that arrive before the question are entered after a check-out.
class TCheckOutQuestion {
 public:
  /// All are borrowed.  `parent` is the parent of the question.
  TCheckOutQuestion(wxWindow& parent, TEditorBook& book, const TFileStateServices& states,
                    const TPackageCaller& caller)
      : parent_(parent), book_(book), states_(states), caller_(caller) {}

  /// The user typed `key` into that read-only file.  Returns whether the question is asked, which happens later: the
  /// editor control must not change while it handles a key.
  bool OnTyping(const std::string& fileName, const wxKeyEvent& key);
  /// The file is writable, or closed.
  void Forget(const std::string& fileName);

 private:
  void Ask(const std::string& fileName);
  bool IsWanted(const std::string& fileName) const;
  bool CheckOut(const std::string& fileName) const;

  wxWindow& parent_;
  TEditorBook& book_;
  const TFileStateServices& states_;
  const TPackageCaller& caller_;
  std::set<std::string> asked_;   // folded names
  std::string asking_;            // the file whose question is due
  std::vector<wxKeyEvent> keys_;  // typed into it so far
};

}  // namespace kestrel::workbench
