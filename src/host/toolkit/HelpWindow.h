// The help pages of docs/help.  User-interface thread only.
#pragma once

#include <memory>
#include <string>

class wxHelpControllerBase;

namespace kestrel {

/// Shows them in the toolkit's help window or, where the toolkit was built without one, in the desktop's browser.
class THelpWindow {
 public:
  /// `folder` holds topics.ini and the pages.  A missing folder is a help without pages.
  explicit THelpWindow(std::string folder);
  ~THelpWindow();

  /// Shows the page of a topic: of a keyword, or of the number that an options page has.  The empty topic is the contents.
  /// Returns false if there is no such page.  While a modal dialog is open the window is modal, too, and this returns when
  /// it is closed.
  bool Show(const std::string& topic);
  /// Closes the window.  Call before the main window is destroyed.
  void Close();

 private:
  std::string folder_;
  std::unique_ptr<wxHelpControllerBase> window_;
};

/// The file name of a topic's page in the help folder; empty if there is none.
std::string HelpPageOf(const std::string& folder, const std::string& topic);

}  // namespace kestrel
