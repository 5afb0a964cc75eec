// Browsing a repository: a tree of its folders, and the entries of one.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "common/text/Contents.h"
#include "common/text/Properties.h"
#include "common/windows/FolderTree.h"
#include "common/windows/HistoryWindow.h"
#include "common/windows/WindowTools.h"

namespace kestrel {

/// The repository that a window browses.  Paths are those inside it, with "/" between the names and empty for the root.
/// Every function but the const ones may contact the repository; the window shows the text of an exception.
class RepositorySource {
 public:
  struct Entry {
    std::string Name;
    bool IsFolder;
    std::string Revision;
    std::string User;
    std::string Date;
    long long Size;  // bytes, of a file
    std::string LockOwner;
  };

  virtual ~RepositorySource() = default;
  /// Opens what the address `text` names; returns the path inside the repository.  After a failure nothing is open.
  virtual std::string Open(const std::string& text) = 0;
  virtual bool IsOpen() const = 0;
  /// Of the repository that is open, without escapes.
  virtual std::string Address() const = 0;
  /// Addresses that the user opened before, most recent first.
  virtual std::vector<std::string> RecentAddresses() const = 0;
  /// Sorted for display.
  virtual std::vector<Entry> FetchEntries(const std::string& path) = 0;
  /// Forgets what was fetched.
  virtual void Refresh() = 0;
  virtual Contents FetchContents(const std::string& path) = 0;
  virtual std::unique_ptr<HistorySource> FetchHistory(const std::string& path, bool isFolder) = 0;
  virtual NodeProperties FetchProperties(const std::string& path) = 0;
};

class RepositoryWindow : public ToolWindow {
 public:
  /// Opens `address` if it is not empty, at the entry it names.  `provider` is the title of error messages.  `source`
  /// lives longer than the window.
  RepositoryWindow(wxWindow* parent, const std::string& provider, const std::string& title,
                   RepositorySource& source, const std::string& address);

 private:
  wxSizer* CreateAddress(const std::string& address);
  wxWindow* CreateLists();
  wxSizer* CreateButtons();
  void BindKeys();

  void Open();
  void Reload();
  std::vector<std::string> FetchFolders(const std::string& path);
  /// Shows the folder at `path` and selects `entry` in it; if `path` is a file, shows its folder and selects the file.
  void GoTo(const std::string& path, const std::string& entry = "");
  void ShowFolder(const std::string& path);
  void ShowState();

  void Activate();
  void ShowTextOf();
  void ShowHistoryOf();
  void ShowPropertiesOf();
  const RepositorySource::Entry* Chosen() const;
  /// The chosen entry's path, or the folder's.
  std::string ChosenPath() const;
  /// Runs `body`; false after an exception, whose text becomes the message.
  template <class Body>
  bool RunAndShowError(Body&& body);

  std::string provider_;
  RepositorySource& source_;
  std::string folder_;
  std::vector<RepositorySource::Entry> entries_;  // of the folder
  std::string problem_;
  wxComboBox* address_ = nullptr;
  FolderTree* tree_ = nullptr;
  RowList* list_ = nullptr;
  wxStaticText* message_ = nullptr;
  wxButton* text_ = nullptr;
  wxButton* history_ = nullptr;
  wxButton* properties_ = nullptr;
  wxButton* refresh_ = nullptr;
};

}  // namespace kestrel
