// The grid of the commit browser and the drop-down list that is shown over its first column.
#pragma once

#include <wx/generic/grid.h>
#include <wx/odcombo.h>

#include <string>
#include <vector>

#include "wizards/CommitRows.h"

namespace kestrel::addin {

// The spelling is part of the package's interface.
enum TCommitGridColoumn { cgcActivity, cgcStatus, cgcFileName };
inline constexpr int kCommitColumns = cgcFileName + 1;

/// The rows of the grid, converted to text only when visible.  Without rows it shows one empty row.
class TCommitTable final : public wxGridTableBase {
 public:
  /// `rows` is borrowed.  File names are shown relative to `directory` if TrimPaths is set.
  TCommitTable(const std::vector<TCommitRowData>& rows, std::string directory);

  bool TrimPaths = true;
  int Highlighted = 0;  ///< the row that is shown as selected

  int GetNumberRows() override;
  int GetNumberCols() override { return kCommitColumns; }
  wxString GetValue(int row, int column) override;
  void SetValue(int, int, const wxString&) override {}  // activities are set by the drop-down list
  wxString GetColLabelValue(int column) override;
  bool CanHaveAttributes() override { return true; }
  wxGridCellAttr* GetAttr(int row, int column, wxGridCellAttr::wxAttrKind kind) override;

 private:
  const std::vector<TCommitRowData>& rows_;
  const std::string directory_;
  wxGridCellAttrPtr plain_;
  wxGridCellAttrPtr highlighted_;
};

/// A grid in which Tab moves to the next control instead of the next cell.
class TCommitGrid final : public wxGrid {
 public:
  explicit TCommitGrid(wxWindow* parent);
  /// Sets the table, which the grid then owns, and the height of the rows.
  void Fill(TCommitTable* table, int rowHeight);
  /// Gives all columns the same width.
  void FitColumns();
  /// The visible position of a cell in the grid's client coordinates.
  wxRect ShownRect(int row, int column) const;
  /// Moves the cursor for an arrow, page, Home or End key; returns false for any other key.
  bool MoveWith(int key);
};

/// The drop-down list of activities.  It is a child of the grid and not of its cell window, because GTK warns about hidden
/// children of scrolled windows.  It is owner-drawn because its popup can preselect an item without committing it.  While
/// it is closed the wheel scrolls the grid.
class TActivityComboBox final : public wxOwnerDrawnComboBox {
 public:
  explicit TActivityComboBox(TCommitGrid* parent);
  ~TActivityComboBox() override;
  /// Opens the list, if necessary, and preselects `activity`.
  void OpenAt(TCommitActivity activity);
  /// The preselected activity while the list is open, otherwise the chosen one.
  TCommitActivity Pointed() const;

 private:
  void OnWheel(wxMouseEvent& event);

  wxVListBoxComboPopup* list_;  // owned by the popup's window
  int wheelRotation_ = 0;       // remainder of less than a notch
};

}  // namespace kestrel::addin
