// One side of a difference window: its lines at the rows where the other side has theirs.
#pragma once

#include "common/text/FileDiff.h"
#include "common/windows/WindowTools.h"

namespace kestrel {

enum class DiffSideOf { Left, Right };

class DiffPane : public TextPane {
 public:
  DiffPane(wxWindow* parent, DiffSideOf side);
  void ShowRows(const FileDiff& diff);
  /// The panes scroll together from now on.
  void ScrollWith(DiffPane& other);

 private:
  void MarkRow(int row, const DiffRow& what, const FileDiff& diff);
  int NumberOf(const DiffRow& row) const { return side_ == DiffSideOf::Left ? row.Left : row.Right; }
  void CopyWithoutFillers(wxStyledTextEvent& event);
  void ScrollTo(wxPoint place);

  DiffSideOf side_;
  std::vector<bool> isFiller_;  // by row
  wxPoint scrolledTo_;          // what the other pane knows: pixels to the right, first row shown
};

}  // namespace kestrel
