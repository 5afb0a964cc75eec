#include "common/windows/DiffPane.h"

#include "toolkit/WxText.h"

namespace kestrel {
namespace {

// Markers of a row: a sign in the margin, and the background of the text.
enum Mark { kChangedBack, kAddedBack, kRemovedBack, kFillerBack, kChangedSign, kAddedSign, kRemovedSign };
enum Margin { kNumbers, kSigns };
constexpr int kChangedPart = wxSTC_INDIC_CONTAINER;
constexpr int kSignMask = 1 << kChangedSign | 1 << kAddedSign | 1 << kRemovedSign;

struct Look {
  int mark;
  int symbol;
  wxColour colour;
  double share;
};

const std::array<Look, 7>& Looks() {
  static const wxColour blue(40, 110, 220);
  static const wxColour green(30, 160, 60);
  static const wxColour red(220, 60, 50);
  static const std::array<Look, 7> looks{{
      {kChangedBack, wxSTC_MARK_BACKGROUND, blue, 0.14},
      {kAddedBack, wxSTC_MARK_BACKGROUND, green, 0.2},
      {kRemovedBack, wxSTC_MARK_BACKGROUND, red, 0.17},
      {kFillerBack, wxSTC_MARK_BACKGROUND, wxColour(128, 128, 128), 0.16},
      {kChangedSign, wxSTC_MARK_CHARACTER + '*', blue, 1},
      {kAddedSign, wxSTC_MARK_CHARACTER + '+', green, 1},
      {kRemovedSign, wxSTC_MARK_CHARACTER + '-', red, 1},
  }};
  return looks;
}

}  // namespace

DiffPane::DiffPane(wxWindow* parent, DiffSideOf side)
    : TextPane(parent, side == DiffSideOf::Left ? "left" : "right"), side_(side) {
  const wxColour base = StyleGetBackground(wxSTC_STYLE_DEFAULT);
  SetMarginType(kNumbers, wxSTC_MARGIN_RTEXT);
  SetMarginMask(kNumbers, 0);
  SetMarginType(kSigns, wxSTC_MARGIN_SYMBOL);
  SetMarginMask(kSigns, kSignMask);
  SetMarginWidth(kSigns, FromDIP(16));
  for (const Look& look : Looks()) {
    const wxColour colour = Blend(base, look.colour, look.share);
    MarkerDefine(look.mark, look.symbol, colour, look.symbol == wxSTC_MARK_BACKGROUND ? colour : base);
  }
  IndicatorSetStyle(kChangedPart, wxSTC_INDIC_FULLBOX);
  IndicatorSetForeground(kChangedPart, Looks().front().colour);
  IndicatorSetAlpha(kChangedPart, 70);
  IndicatorSetOutlineAlpha(kChangedPart, 0);
  IndicatorSetUnder(kChangedPart, true);
  SetCaretLineVisible(true);
  SetCaretLineVisibleAlways(true);
  SetCaretLineBackground(StyleGetForeground(wxSTC_STYLE_DEFAULT));
  SetCaretLineBackAlpha(28);
  Bind(wxEVT_STC_CLIPBOARD_COPY, &DiffPane::CopyWithoutFillers, this);
}

void DiffPane::ShowRows(const FileDiff& diff) {
  const auto& rows = diff.Rows();
  std::string text;
  isFiller_.clear();
  for (const DiffRow& row : rows) {
    if (!isFiller_.empty()) text += '\n';
    text += side_ == DiffSideOf::Left ? diff.LeftText(row) : diff.RightText(row);
    isFiller_.push_back(NumberOf(row) == DiffRow::kNoLine);
  }
  ShowText(text);
  MarkerDeleteAll(-1);
  MarginTextClearAll();
  SetIndicatorCurrent(kChangedPart);
  for (int i = 0; i < static_cast<int>(rows.size()); ++i) MarkRow(i, rows[static_cast<std::size_t>(i)], diff);
}

void DiffPane::MarkRow(int row, const DiffRow& what, const FileDiff& diff) {
  const int number = NumberOf(what);
  if (number == DiffRow::kNoLine) {
    MarkerAdd(row, kFillerBack);
    return;
  }
  MarginSetText(row, wxString::Format("%d ", number + 1));
  MarginSetStyle(row, wxSTC_STYLE_LINENUMBER);
  if (what.Kind == DiffKind::Same) return;
  const int kind = static_cast<int>(what.Kind) - static_cast<int>(DiffKind::Changed);
  MarkerAdd(row, kChangedBack + kind);
  MarkerAdd(row, kChangedSign + kind);
  if (what.Kind != DiffKind::Changed) return;
  const auto [left, right] = ChangedParts(diff.LeftText(what), diff.RightText(what));
  const Span part = side_ == DiffSideOf::Left ? left : right;
  IndicatorFillRange(PositionFromLine(row) + static_cast<int>(part.Start), static_cast<int>(part.Length));
}

void DiffPane::ScrollWith(DiffPane& other) {
  Bind(wxEVT_STC_UPDATEUI, [this, &other](wxStyledTextEvent& event) {
    event.Skip();
    const wxPoint place(GetXOffset(), GetFirstVisibleLine());
    if (std::exchange(scrolledTo_, place) == place) return;
    // The event comes during a paint of this pane, when the other one must not be changed.
    CallAfter([this, &other] { other.ScrollTo(scrolledTo_); });
  });
}

void DiffPane::ScrollTo(wxPoint place) {
  scrolledTo_ = place;
  if (GetFirstVisibleLine() != place.y) SetFirstVisibleLine(place.y);
  if (GetXOffset() != place.x) SetXOffset(place.x);
}

void DiffPane::CopyWithoutFillers(wxStyledTextEvent& event) {
  const int first = LineFromPosition(GetSelectionStart());
  const auto lines = wxSplit(event.GetString(), '\n', '\0');
  wxString text;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const auto row = static_cast<std::size_t>(first) + i;
    if (row < isFiller_.size() && isFiller_[row]) continue;
    text += lines[i];
    if (i + 1 < lines.size()) text += '\n';
  }
  event.SetString(text);
}

}  // namespace kestrel
