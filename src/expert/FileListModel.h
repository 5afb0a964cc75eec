// Models of the file-list and comment dialogs: a file command fills them, a dialog edits them, the command reads the result.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "provider/sccapiintf.h"
#include "system/Text.h"
#include "ui/ModalResult.h"

namespace kestrel::addin {

/// The candidate files of one command.  Up to kMaxFiles rows.  Row operations take constant time.
class TFileListModel {
 public:
  /// The check box under the list.
  enum class ExtraBox { None, KeepCheckedOut, CheckOutAfterAdd };
  /// Which buttons are enabled.
  struct TButtons {
    bool Ok = false;
    bool CheckAll = false;
    bool UncheckAll = false;
    bool operator==(const TButtons&) const = default;
  };

  std::string Caption;
  std::string HelpKeyword;
  TCommandOptions CommandKind = coGet;
  bool HasOptions = false;  ///< the provider has an options dialog for this command
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

  /// Ticks the rows of `currentFile`, or the only row.  A form file stands for its unit.  Returns the file looked for.
  std::string TickCurrent(const std::string& currentFile);
  /// All disabled for an empty list.
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

/// One request for a comment.
struct TCommentModel {
  std::string Caption;  ///< empty for the default
  std::string Text;  ///< in: the initial text; out: the user's, also after Cancel; at most kMaxComment bytes
  std::vector<std::string> Recent;  ///< earlier comments, newest first
  bool ShowApplyToAll = false;
  bool ApplyToAll = true;
};

/// A comment being edited: the text on both sides of the caret.
struct TCommentEdit {
  std::string Before;
  std::string After;
  bool operator==(const TCommentEdit&) const = default;
};
/// Truncates `edit` to kMaxComment bytes at a character border: first the text before the caret, which was just typed or
/// pasted, then the text behind it if that alone is too long.
TCommentEdit TruncateComment(TCommentEdit edit);
/// The same for the comment dialog, whose comments are one line: also replaces line breaks by blanks.
TCommentEdit FitComment(TCommentEdit edit);

}  // namespace kestrel::addin
