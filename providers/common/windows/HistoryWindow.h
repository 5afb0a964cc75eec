// The revisions of a file or folder: show, compare, get.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "common/windows/DiffWindow.h"
#include "common/windows/WindowTools.h"

namespace kestrel {

/// What a history window shows, newest revision first, with its first page.  Every function but the const ones may contact
/// the repository; the window shows the text of an exception that one throws.
class HistorySource {
 public:
  struct Revision {
    std::string Name;
    std::string Date;
    std::string User;
    std::string Comment;
  };

  virtual ~HistorySource() = default;
  virtual std::size_t Count() const = 0;
  virtual Revision At(std::size_t index) const = 0;
  virtual bool HasMore() const = 0;
  /// Appends a page.
  virtual void LoadMore() = 0;
  virtual bool IsFolder() const = 0;
  /// The file as that revision left it.  Files only, as all that follow.
  virtual Contents FetchContents(std::size_t index) = 0;
  /// Compares revisions.
  virtual LineMatcher Matcher() const = 0;

  /// Whether the revisions are those of a file on this computer.  The functions below need one.
  virtual bool HasLocalFile() const = 0;
  virtual bool IsOnDisk() const = 0;
  virtual Contents ReadLocalContents() = 0;
  virtual bool IsEdited() = 0;
  /// Makes the local file what it was in that revision.  Returns a sentence that says so.
  virtual std::string ReplaceLocalFile(std::size_t index) = 0;
};

class HistoryWindow : public ToolWindow {
 public:
  /// `provider` is the title of error messages, `name` the file's in the title.  `source` lives longer than the window.
  HistoryWindow(wxWindow* parent, const std::string& provider, HistorySource& source, std::string name);
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
  using Sides = std::pair<DiffSide, DiffSide>;
  void Compare(const std::function<Sides()>& fetch);
  DiffSide SideOf(std::size_t row);
  /// Runs `body` if a revision is selected; shows the text of an exception.
  template <class Body>
  void RunAndShowError(Body&& body);
  std::size_t Row() const { return static_cast<std::size_t>(list_->Selected()); }

  std::string provider_;
  HistorySource& source_;
  std::string name_;
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

}  // namespace kestrel
