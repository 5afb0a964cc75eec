#include "expert/FileListModel.h"

#include <algorithm>
#include <utility>

#include "expert/ProjectFiles.h"
#include "system/Paths.h"

namespace kestrel::addin {

namespace {

/// Replaces each line break, of any platform, by one blank.
void JoinLines(std::string& text) {
  for (std::size_t cr = text.find("\r\n"); cr != text.npos; cr = text.find("\r\n", cr)) text.erase(cr, 1);
  std::ranges::replace_if(
      text, [](char c) { return c == '\r' || c == '\n'; }, ' ');
}

}  // namespace

void TFileListModel::AddFile(const std::string& fileName, const std::string& status) {
  rows_.push_back({ExtractFileName(fileName), status, ExtractFileDir(fileName)});
}

std::string TFileListModel::GetFile(int index) const {
  if (index < 0 || static_cast<std::size_t>(index) >= rows_.size()) return {};
  const auto& row = rows_[static_cast<std::size_t>(index)];
  return IncludeTrailingPathDelimiter(row.Directory) + row.Name;
}

void TFileListModel::SetChecked(std::size_t row, bool checked) {
  if (rows_[row].Checked == checked) return;
  rows_[row].Checked = checked;
  checked ? ++checked_ : --checked_;
}

void TFileListModel::ChangeAllCheckedStates(bool checked) {
  for (auto& row : rows_) row.Checked = checked;
  checked_ = checked ? rows_.size() : 0;
}

std::string TFileListModel::TickCurrent(const std::string& currentFile) {
  auto& types = FileTypes();
  const bool form = types.GetKind(currentFile) == TFileKind::Form;
  const auto target = form ? types.GetUnit(currentFile) : currentFile;
  const auto file = FoldCase(target);
  for (std::size_t i = 0; i < rows_.size(); ++i)
    if (FoldCase(GetFile(static_cast<int>(i))) == file) SetChecked(i, true);
  if (rows_.size() == 1) ChangeAllCheckedStates(true);
  return target;
}

TFileListModel::TButtons TFileListModel::CheckState() const {
  const bool some = checked_ > 0;
  return {.Ok = some, .CheckAll = checked_ < rows_.size(), .UncheckAll = some};
}

TCommentEdit TruncateComment(TCommentEdit edit) {
  edit.After = TruncateUtf8(edit.After, kMaxComment);
  edit.Before = TruncateUtf8(edit.Before, kMaxComment - edit.After.size());
  return edit;
}

TCommentEdit FitComment(TCommentEdit edit) {
  JoinLines(edit.Before);
  JoinLines(edit.After);
  return TruncateComment(std::move(edit));
}

}  // namespace kestrel::addin
