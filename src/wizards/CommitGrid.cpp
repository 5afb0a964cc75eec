#include "wizards/CommitGrid.h"

#include <wx/settings.h>

#include <algorithm>
#include <array>

#include "system/Paths.h"
#include "toolkit/WxText.h"
#include "wizards/CommitBrowserStrings.h"

namespace kestrel::addin {

namespace {

constexpr std::array kColumnLabels{sActionColumn, sStateColumn, sFileNameColumn};
static_assert(kColumnLabels.size() == kCommitColumns);

wxGridCellAttrPtr NewAttr() {
  wxGridCellAttrPtr attr(new wxGridCellAttr);
  attr->SetReadOnly();
  attr->SetAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
  attr->SetFitMode(wxGridFitMode::Ellipsize(wxELLIPSIZE_MIDDLE));
  return attr;
}

}  // namespace

TCommitTable::TCommitTable(const std::vector<TCommitRowData>& rows, std::string directory)
    : rows_(rows), directory_(std::move(directory)), plain_(NewAttr()), highlighted_(NewAttr()) {
  highlighted_->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT));
  highlighted_->SetTextColour(wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHTTEXT));
}

int TCommitTable::GetNumberRows() { return std::max(1, static_cast<int>(rows_.size())); }

wxString TCommitTable::GetValue(int row, int column) {
  const auto index = static_cast<std::size_t>(row);
  if (index >= rows_.size()) return {};
  const auto& data = rows_[index];
  switch (column) {
    case cgcActivity:
      return ToWx(ActivityToString(data.Activity));
    case cgcStatus:
      return ToWx(data.Status);
    default:
      return ToWx(TrimPaths ? RelativePath(directory_, data.FileName) : data.FileName);
  }
}

wxString TCommitTable::GetColLabelValue(int column) {
  return ToWx(kColumnLabels[static_cast<std::size_t>(column)]);
}

wxGridCellAttr* TCommitTable::GetAttr(int row, int, wxGridCellAttr::wxAttrKind) {
  auto& attr = row == Highlighted ? highlighted_ : plain_;
  attr->IncRef();  // the caller releases it
  return attr.get();
}

TCommitGrid::TCommitGrid(wxWindow* parent) : wxGrid(parent, wxID_ANY) {
  HideRowLabels();
  DisableDragRowSize();
  SetColLabelSize(wxGRID_AUTOSIZE);
  ShowScrollbars(wxSHOW_SB_NEVER, wxSHOW_SB_ALWAYS);
  Bind(wxEVT_GRID_TABBING, [this](wxGridEvent& event) {
    Navigate(event.ShiftDown() ? wxNavigationKeyEvent::IsBackward : wxNavigationKeyEvent::IsForward);
  });
}

void TCommitGrid::Fill(TCommitTable* table, int rowHeight) {
  SetDefaultRowSize(rowHeight);
  AssignTable(table, wxGridSelectNone);
  SetGridCursor(0, cgcActivity);
}

void TCommitGrid::FitColumns() {
  constexpr int kLine = 1;
  const int width = GetGridWindow()->GetClientSize().GetWidth() / kCommitColumns - kLine;
  for (int column = 0; column < kCommitColumns; ++column) SetColSize(column, std::max(width, kLine));
}

wxRect TCommitGrid::ShownRect(int row, int column) const {
  const auto cell = CellToRect(row, column);
  return {GetGridWindow()->GetPosition() + CalcScrolledPosition(cell.GetTopLeft()), cell.GetSize()};
}

bool TCommitGrid::MoveWith(int key) {
  const int column = GetGridCursorCol();
  switch (key) {
    case WXK_UP:
      return MoveCursorUp(false), true;
    case WXK_DOWN:
      return MoveCursorDown(false), true;
    case WXK_LEFT:
      return MoveCursorLeft(false), true;
    case WXK_RIGHT:
      return MoveCursorRight(false), true;
    case WXK_PAGEUP:
      return MovePageUp(), true;
    case WXK_PAGEDOWN:
      return MovePageDown(), true;
    case WXK_HOME:
      return GoToCell(0, column), true;
    case WXK_END:
      return GoToCell(GetNumberRows() - 1, column), true;
    default:
      return false;
  }
}

TActivityComboBox::TActivityComboBox(TCommitGrid* parent) : list_(new wxVListBoxComboPopup) {
  Hide();  // before Create(), so that it never appears
  Create(parent, wxID_ANY, {}, wxDefaultPosition, wxDefaultSize, 0, nullptr, wxCB_READONLY | wxWANTS_CHARS);
  SetPopupControl(list_);
  for (int value = 0; value < kCommitActivities; ++value)
    Append(ToWx(ActivityToString(static_cast<TCommitActivity>(value))));
  Bind(wxEVT_MOUSEWHEEL, &TActivityComboBox::OnWheel, this);
}

// The base class would close the list in its destructor, with virtual calls to destroyed parts.
TActivityComboBox::~TActivityComboBox() { Dismiss(); }

void TActivityComboBox::OpenAt(TCommitActivity activity) {
  if (!IsPopupShown()) Popup();
  static_cast<wxVListBox*>(list_)->SetSelection(activity);  // that of the popup class would commit it
}

TCommitActivity TActivityComboBox::Pointed() const {
  const int item = IsPopupShown() ? static_cast<const wxVListBox*>(list_)->GetSelection() : GetSelection();
  return static_cast<TCommitActivity>(std::max(0, item));
}

// By default the wheel would select the next item, unnoticed by a user who wants to scroll.
void TActivityComboBox::OnWheel(wxMouseEvent& event) {
  if (IsPopupShown()) return event.Skip();
  wheelRotation_ += event.GetWheelRotation();
  const int notches = wheelRotation_ / event.GetWheelDelta();
  wheelRotation_ %= event.GetWheelDelta();
  if (event.IsPageScroll())
    GetParent()->ScrollPages(-notches);
  else
    GetParent()->ScrollLines(-notches * event.GetLinesPerAction());
}

}  // namespace kestrel::addin
