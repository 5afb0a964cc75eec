// A virtual list of lines, with or without check boxes.
#pragma once

#include <functional>
#include <string>

#include "ui/VirtualList.h"

namespace kestrel::addin {

class TLinesView final : public TVirtualList {
 public:
  /// The owner of the lines.
  struct TSource {
    std::function<std::size_t()> Count;
    std::function<const std::string&(std::size_t)> Line;
    /// Both empty for a list without check boxes.
    std::function<bool(std::size_t)> IsTicked;
    std::function<void(std::size_t, bool)> SetTicked;
  };

  TLinesView(wxWindow* parent, TSource source);
  /// Updates the list from the source.
  void UpdateLines();
  void ShowLast();
  /// Copies the selected lines, or all if none is selected, to the clipboard.
  void CopySelected() const;

 private:
  wxString OnGetItemText(long item, long column) const override;
  bool OnGetItemIsChecked(long item) const override;
  void SetItemChecked(long item, bool check) override;
  void FitColumn();

  TSource source_;
  std::size_t measured_ = 0;  // number of lines included in widest_
  int widest_ = 0;
};

}  // namespace kestrel::addin
