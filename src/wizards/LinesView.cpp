#include "wizards/LinesView.h"

#include <wx/clipbrd.h>
#include <wx/settings.h>

#include <algorithm>

#include "toolkit/WxText.h"

namespace kestrel::addin {

namespace {

constexpr int kMargins = 16;

std::size_t Row(long item) { return static_cast<std::size_t>(item); }

}  // namespace

TLinesView::TLinesView(wxWindow* parent, TSource source)
    : TVirtualList(parent, wxLC_NO_HEADER), source_(std::move(source)) {
  if (source_.IsTicked) EnableCheckBoxes();
  AppendColumn(wxString());
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    CallAfter([this] { FitColumn(); });
  });
  const auto toggled = [this](wxListEvent& event) {
    SetItemChecked(event.GetIndex(), event.GetEventType() == wxEVT_LIST_ITEM_CHECKED);
    RefreshItem(event.GetIndex());
  };
  Bind(wxEVT_LIST_ITEM_CHECKED, toggled);
  Bind(wxEVT_LIST_ITEM_UNCHECKED, toggled);
}

wxString TLinesView::OnGetItemText(long item, long) const { return ToWx(source_.Line(Row(item))); }
bool TLinesView::OnGetItemIsChecked(long item) const {
  return source_.IsTicked && source_.IsTicked(Row(item));
}
void TLinesView::SetItemChecked(long item, bool check) { source_.SetTicked(Row(item), check); }

void TLinesView::UpdateLines() {
  const auto count = source_.Count();
  if (count < measured_) {
    measured_ = 0;
    widest_ = 0;
  }
  std::size_t longest =
      0;  // in bytes; only lines that set a new record are measured, because measuring is slow
  for (auto row = measured_; row < count; ++row)
    if (const auto& line = source_.Line(row); line.size() > longest) {
      longest = line.size();
      widest_ = std::max(widest_, GetTextExtent(ToWx(line)).GetWidth());
    }
  measured_ = count;
  SetItemCount(static_cast<long>(count));
  if (source_.IsTicked && count > 0 && GetFocusedItem() < 0) Focus(0);  // so that Space toggles it
  FitColumn();
  Refresh();
}

void TLinesView::FitColumn() {
  const int bar = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this);
  const int box = source_.IsTicked ? FromDIP(24) : 0;
  const int width =
      std::max(widest_ + box + FromDIP(kMargins), GetClientSize().GetWidth() - std::max(bar, 0));
  if (width != GetColumnWidth(0)) SetColumnWidth(0, width);
}

void TLinesView::ShowLast() {
  if (GetItemCount() > 0) EnsureVisible(GetItemCount() - 1);
}

void TLinesView::CopySelected() const {
  std::string text;
  const bool all = GetSelectedItemCount() == 0;
  for (std::size_t row = 0; row < source_.Count(); ++row)
    if (all || IsSelected(static_cast<long>(row))) text += source_.Line(row) + "\n";
  wxClipboardLocker locker;
  if (!!locker) wxTheClipboard->SetData(new wxTextDataObject(ToWx(text)));
}

}  // namespace kestrel::addin
