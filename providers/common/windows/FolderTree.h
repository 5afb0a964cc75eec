// A tree of folders, each fetched when it is expanded.
#pragma once

#include <wx/treectrl.h>
#include <wx/wx.h>

#include <functional>
#include <string>
#include <vector>

namespace kestrel {

/// Paths are as in RepositoryPath.h.
class FolderTree : public wxTreeCtrl {
 public:
  /// Returns the names of the folders in the folder at `path`; must not throw.
  using Fetch = std::function<std::vector<std::string>(const std::string& path)>;

  FolderTree(wxWindow* parent, Fetch fetch);
  /// Replaces all items by an expanded root.
  void ShowRoot(const std::string& label);
  std::string PathOf(const wxTreeItemId& item) const;
  /// Fetches the folders in `item` and adds the new ones.
  void Fill(const wxTreeItemId& item);
  /// Selects the folder at `path`, or the nearest one above it.  Returns the rest of the path.
  std::string SelectPath(const std::string& path);

 private:
  wxTreeItemId ChildNamed(const wxTreeItemId& parent, const wxString& name) const;
  Fetch fetch_;
};

}  // namespace kestrel
