// A list of lines that asks its owner for what it shows, so that tens of thousands of them open and scroll at once.
#pragma once

#include <functional>
#include <string>

#include "ui/VirtualList.h"

namespace kestrel::addin {

class TLinesView final : public TVirtualList {
 public:
  /// Where the lines come from; asked for the visible ones only.
  struct TSource {
    std::function<std::size_t()> Count;
    std::function<const std::string&(std::size_t)> Line;
    /// Both empty for a list without boxes.
    std::function<bool(std::size_t)> IsTicked;
    std::function<void(std::size_t, bool)> SetTicked;
  };

  TLinesView(wxWindow* parent, TSource source);
  /// Shows what the source has now.
  void UpdateLines();
  /// Scrolls to the last line.
  void ShowLast();
  /// Gives the selected rows the opposite tick of the focused one.
  void ToggleSelected();
  void SelectAll();
  /// The selected lines, or all when none is selected.
  void CopySelected() const;

 private:
  wxString OnGetItemText(long item, long column) const override;
  bool OnGetItemIsChecked(long item) const override;
  void FitColumn();

  TSource source_;
  std::size_t measured_ = 0;  // lines that the width is known for
  int widest_ = 0;
};

}  // namespace kestrel::addin
