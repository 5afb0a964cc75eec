// One side of a DiffWindow, with filler lines where the other side has more.
#pragma once

#include "common/text/FileDiff.h"
#include "common/windows/WindowTools.h"

namespace kestrel {

enum class DiffSideOf { Left, Right };

class DiffPane : public TextPane {
 public:
  DiffPane(wxWindow* parent, DiffSideOf side);
  void ShowRows(const FileDiff& diff);
  /// Makes `other` follow when this pane is scrolled.
  void ScrollWith(DiffPane& other);

 private:
  void MarkRow(int row, const DiffRow& what, const FileDiff& diff);
  int NumberOf(const DiffRow& row) const { return side_ == DiffSideOf::Left ? row.Left : row.Right; }
  void CopyWithoutFillers(wxStyledTextEvent& event);
  void ScrollTo(wxPoint place);

  DiffSideOf side_;
  std::vector<bool> isFiller_;  // by row
  wxPoint scrolledTo_;          // last position passed to the other pane: x offset, first visible row
};

}  // namespace kestrel
