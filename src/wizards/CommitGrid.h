// The grid of the commit browser and the drop-down that floats over its first column.
#pragma once

#include <wx/generic/grid.h>
#include <wx/odcombo.h>

#include <string>
#include <vector>

#include "wizards/CommitRows.h"

namespace kestrel::addin {

// The misspelling is the unit's own.
enum TCommitGridColoumn { cgcActivity, cgcStatus, cgcFileName };
inline constexpr int kCommitColumns = cgcFileName + 1;

/// The rows as the grid asks for them: only what is on the screen becomes text.  Without rows there is one empty one.
class TCommitTable final : public wxGridTableBase {
 public:
  /// `rows` is borrowed; files are shown as seen from `directory` while TrimPaths is set.
  TCommitTable(const std::vector<TCommitRowData>& rows, std::string directory);

  bool TrimPaths = true;
  int Highlighted = 0;  ///< the row that is shown as selected

  int GetNumberRows() override;
  int GetNumberCols() override { return kCommitColumns; }
  wxString GetValue(int row, int column) override;
  void SetValue(int, int, const wxString&) override {}  // activities are set through the drop-down
  wxString GetColLabelValue(int column) override;
  bool CanHaveAttributes() override { return true; }
  wxGridCellAttr* GetAttr(int row, int column, wxGridCellAttr::wxAttrKind kind) override;

 private:
  const std::vector<TCommitRowData>& rows_;
  const std::string directory_;
  wxGridCellAttrPtr plain_;
  wxGridCellAttrPtr highlighted_;
};

/// A grid of whole rows that the keyboard can leave: Tab goes to the next control, not to the next cell.
class TCommitGrid final : public wxGrid {
 public:
  explicit TCommitGrid(wxWindow* parent);
  /// Takes the table, with rows of that height.
  void Fill(TCommitTable* table, int rowHeight);
  /// Gives all columns the same width.
  void FitColumns();
  /// Where the cell is in the grid's own window as it is scrolled now.
  wxRect ShownRect(int row, int column) const;
  /// Moves the cursor as an arrow, page, Home or End key does; false for any other key.
  bool MoveWith(int key);
};

/// The list of activities, a child of the grid and not of its window of cells: GTK complains about hidden windows where
/// it scrolls.  It can be opened with an item pointed at that is not yet chosen.  While it is closed the wheel scrolls
/// the grid.
class TActivityComboBox final : public wxOwnerDrawnComboBox {
 public:
  explicit TActivityComboBox(TCommitGrid* parent);
  ~TActivityComboBox() override;
  /// Opens the list, if it is not open yet, and points at that activity.
  void OpenAt(TCommitActivity activity);
  /// What the list points at while it is open, else what is chosen.
  TCommitActivity Pointed() const;

 private:
  void OnWheel(wxMouseEvent& event);

  wxVListBoxComboPopup* list_;  // owned by the popup's window
  int wheelRotation_ = 0;       // since the last whole notch
};

}  // namespace kestrel::addin
