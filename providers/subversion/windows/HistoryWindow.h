// The history of a file or folder, and what can be done with its revisions.
#pragma once

#include "common/windows/DiffWindow.h"
#include "common/windows/WindowTools.h"
#include "subversion/svn/History.h"

namespace svnscc {

class HistoryWindow : public ToolWindow {
 public:
  /// `path` is the local file, empty when there is none; `name` is for people.  `history` has its first page.
  HistoryWindow(wxWindow* parent, ProviderContext& context, History& history, std::string path,
                std::string name, bool isFolder);
  /// Whether the local file was replaced.
  bool HasChangedFile() const { return changedFile_; }

 private:
  wxSizer* CreateButtons();
  void ShowState();
  void ShowTextOf();
  void CompareWithPrevious();
  void CompareWithLocal();
  void Get();
  void More();
  void Compare(DiffSide left, DiffSide right);
  DiffSide SideOf(std::size_t row);
  /// Runs what asks the repository; a failure is shown.
  template <class Body>
  void Try(Body&& body);
  std::size_t Row() const { return static_cast<std::size_t>(list_->Selected()); }

  ProviderContext& context_;
  History& history_;
  std::string path_;
  std::string name_;
  bool isFolder_;
  bool changedFile_ = false;
  RowList* list_ = nullptr;
  wxTextCtrl* comment_ = nullptr;
  wxStaticText* message_ = nullptr;
  wxButton* text_ = nullptr;
  wxButton* previous_ = nullptr;
  wxButton* local_ = nullptr;
  wxButton* get_ = nullptr;
  wxButton* more_ = nullptr;
};

}  // namespace svnscc
