// What the file-list and comment dialogs show and answer, without a window: a file command fills it, a dialog edits it,
// the command reads it again.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "provider/sccapiintf.h"
#include "system/Text.h"
#include "ui/ModalResult.h"

namespace kestrel::addin {

/// The candidate files of one command.  Up to kMaxFiles rows; every operation but the All ones is constant time.
class TFileListModel {
 public:
  /// Which of the two boxes under the list the command shows.
  enum class ExtraBox { None, KeepCheckedOut, CheckOutAfterAdd };
  /// What the buttons may do.
  struct TButtons {
    bool Ok = false;
    bool CheckAll = false;
    bool UncheckAll = false;
    bool operator==(const TButtons&) const = default;
  };

  std::string Caption;
  std::string HelpKeyword;
  TCommandOptions CommandKind = coGet;
  bool HasOptions = false;  ///< the provider offers an options dialog for this command
  ExtraBox Extra = ExtraBox::None;
  bool KeepCheckedOut = true;
  bool CheckOutAfterAdd = true;

  void AddFile(const std::string& fileName, const std::string& status);
  std::size_t Count() const { return rows_.size(); }
  /// The full path of a row; empty for an index outside the list.
  std::string GetFile(int index) const;
  const std::string& NameOf(std::size_t row) const { return rows_[row].Name; }
  const std::string& StatusOf(std::size_t row) const { return rows_[row].Status; }
  const std::string& DirectoryOf(std::size_t row) const { return rows_[row].Directory; }

  bool IsChecked(std::size_t row) const { return rows_[row].Checked; }
  void SetChecked(std::size_t row, bool checked);
  int ItemsChecked() const { return static_cast<int>(checked_); }
  void ChangeAllCheckedStates(bool checked);

  /// First ticks: every row that is `currentFile`, or the only row.  A form file stands for its unit; returns the file
  /// that was meant.
  std::string TickCurrent(const std::string& currentFile);
  /// Empty lists leave the buttons as they were, that is disabled.
  TButtons CheckState() const;

 private:
  struct TRow {
    std::string Name;
    std::string Status;
    std::string Directory;  // without trailing delimiter
    bool Checked = false;
  };
  std::vector<TRow> rows_;
  std::size_t checked_ = 0;
};

/// One comment asked for.
struct TCommentModel {
  std::string Caption;  ///< empty keeps the dialog's own
  std::string
      Text;  ///< in: what is offered; out: what the user typed, after Cancel too; at most kMaxComment bytes
  std::vector<std::string> Recent;  ///< earlier comments at hand, the newest first
  bool ShowApplyToAll = false;
  bool ApplyToAll = true;
};

/// A comment while it is edited: the text on both sides of the caret.
struct TCommentEdit {
  std::string Before;
  std::string After;
  bool operator==(const TCommentEdit&) const = default;
};
/// What a memo may hold of `edit`: what stands before the caret (typed or pasted just now) is cut at a character border
/// so that the whole fits kMaxComment bytes.  What stood behind the caret gives way only when it is too long by itself.
TCommentEdit CutComment(TCommentEdit edit);
/// The same for the comment dialog, whose comments are one line: line breaks become blanks.
TCommentEdit FitComment(TCommentEdit edit);

}  // namespace kestrel::addin
