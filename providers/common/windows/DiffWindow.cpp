#include "common/windows/DiffWindow.h"

#include <wx/accel.h>

#include "common/windows/DiffPane.h"
#include "common/windows/WindowStrings.h"
#include "toolkit/WxText.h"

namespace kestrel {
namespace {

std::unique_ptr<FileDiff> DiffOf(const DiffSide& left, const DiffSide& right, const DiffOptions& options,
                                 LineMatcher matchCommon) {
  if (left.Text.IsBinary || right.Text.IsBinary) return nullptr;
  return std::make_unique<FileDiff>(ToUtf8(left.Text.Bytes), ToUtf8(right.Text.Bytes), options,
                                    std::move(matchCommon));
}

std::string Count(const TResString& text, std::size_t a, std::size_t b) {
  return Format(text.Text, {static_cast<long long>(a), static_cast<long long>(b)});
}

/// Appends a sentence about the line ends if they differ.
std::string Joined(std::string text, LineEnds ends) {
  switch (ends) {
    case LineEnds::OtherStyle:
      return text + " " + sEndsDiffer.Text;
    case LineEnds::LeftUnended:
      return text + " " + sLeftUnended.Text;
    case LineEnds::RightUnended:
      return text + " " + sRightUnended.Text;
    default:
      return text;
  }
}

}  // namespace

DiffWindow::DiffWindow(wxWindow* parent, const std::string& name, DiffSide left, DiffSide right,
                       const DiffOptions& options, LineMatcher matchCommon)
    : ToolWindow(parent, Format(sDiffTitle.Text, {name})),
      left_(std::move(left)),
      right_(std::move(right)),
      diff_(DiffOf(left_, right_, options, std::move(matchCommon))) {
  auto* all = new wxBoxSizer(wxVERTICAL);
  const int gap = FromDIP(8);
  all->Add(CreateTools(options), wxSizerFlags().Expand().Border(wxALL, gap));
  if (diff_ != nullptr) all->Add(CreatePanes(), wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, gap));
  auto* line = new wxBoxSizer(wxHORIZONTAL);
  message_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                              wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
  message_->SetName("message");
  line->Add(message_, wxSizerFlags(1).CenterVertical().Border(wxRIGHT, gap));
  auto* close = new wxButton(this, wxID_CANCEL, ToWx(sClose));
  line->Add(close, wxSizerFlags().CenterVertical());
  all->Add(line, wxSizerFlags(diff_ == nullptr ? 1 : 0).Expand().Border(wxALL, gap));
  UseSizer(all, diff_ != nullptr ? wxSize(1000, 640) : wxSize(520, 160), wxSize(420, 120));
  BindKeys();
  if (diff_ == nullptr) {
    close->SetFocus();
    ShowState();
  } else {
    ShowRows();
    rightPane_->SetFocus();
  }
}

DiffWindow::~DiffWindow() = default;

wxSizer* DiffWindow::CreateTools(const DiffOptions& options) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  previous_ = AddButton(row, sPreviousDifference, [this] { GoTo(diff_->Previous(CurrentRow())); });
  previous_->SetToolTip(ToWx(sPreviousHint));
  next_ = AddButton(row, sNextDifference, [this] { GoTo(diff_->Next(CurrentRow())); });
  next_->SetToolTip(ToWx(sNextHint));
  row->AddStretchSpacer();
  ignoreCase_ = new wxCheckBox(this, wxID_ANY, ToWx(sIgnoreCase));
  ignoreCase_->SetValue(options.IgnoreCase);
  ignoreSpace_ = new wxCheckBox(this, wxID_ANY, ToWx(sIgnoreSpace));
  ignoreSpace_->SetValue(options.IgnoreSpace);
  for (wxCheckBox* box : {ignoreCase_, ignoreSpace_}) {
    box->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { Compare(); });
    row->Add(box, wxSizerFlags().CenterVertical().Border(wxLEFT, FromDIP(10)));
  }
  if (diff_ == nullptr) row->ShowItems(false);
  return row;
}

wxSizer* DiffWindow::CreatePanes() {
  auto* grid = new wxFlexGridSizer(2, FromDIP(wxSize(6, 4)));
  grid->AddGrowableCol(0, 1);
  grid->AddGrowableCol(1, 1);
  grid->AddGrowableRow(1);
  grid->SetFlexibleDirection(wxBOTH);
  grid->SetNonFlexibleGrowMode(wxFLEX_GROWMODE_ALL);
  for (const DiffSide* side : {&left_, &right_})
    grid->Add(new wxStaticText(this, wxID_ANY, wxControl::EscapeMnemonics(ToWx(side->Title)),
                               wxDefaultPosition, wxSize(1, -1), wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END),
              wxSizerFlags().Expand());
  leftPane_ = new DiffPane(this, DiffSideOf::Left);
  rightPane_ = new DiffPane(this, DiffSideOf::Right);
  leftPane_->ScrollWith(*rightPane_);
  rightPane_->ScrollWith(*leftPane_);
  for (DiffPane* pane : {leftPane_, rightPane_}) {
    pane->SetMinSize(FromDIP(wxSize(120, 80)));
    grid->Add(pane, wxSizerFlags().Expand());
    // Previous and Next depend on the caret.  The event comes during a paint, so other windows are updated later.
    pane->Bind(wxEVT_STC_UPDATEUI, [this](wxStyledTextEvent& event) {
      event.Skip();
      if ((event.GetUpdated() & wxSTC_UPDATE_SELECTION) != 0) CallAfter([this] { ShowState(); });
    });
  }
  return grid;
}

void DiffWindow::BindKeys() {
  const std::array<wxAcceleratorEntry, 4> keys{wxAcceleratorEntry(wxACCEL_NORMAL, WXK_F8, next_->GetId()),
                                               wxAcceleratorEntry(wxACCEL_SHIFT, WXK_F8, previous_->GetId()),
                                               wxAcceleratorEntry(wxACCEL_ALT, WXK_DOWN, next_->GetId()),
                                               wxAcceleratorEntry(wxACCEL_ALT, WXK_UP, previous_->GetId())};
  SetAcceleratorTable(wxAcceleratorTable(static_cast<int>(keys.size()), keys.data()));
}

bool DiffWindow::Same() const {
  return diff_ != nullptr ? diff_->Same() : left_.Text.Bytes == right_.Text.Bytes;
}

void DiffWindow::Compare() {
  const wxBusyCursor busy;
  diff_->Compare({ignoreCase_->GetValue(), ignoreSpace_->GetValue()});
  ShowRows();
}

void DiffWindow::ShowRows() {
  for (DiffPane* pane : {leftPane_, rightPane_}) pane->ShowRows(*diff_);
  const auto& differences = diff_->Differences();
  GoTo(differences.empty() ? std::nullopt : std::optional(differences.front()));
  ShowState();
}

std::size_t DiffWindow::CurrentRow() const {
  DiffPane* pane = leftPane_->HasFocus() ? leftPane_ : rightPane_;
  return static_cast<std::size_t>(pane->GetCurrentLine());
}

void DiffWindow::GoTo(std::optional<std::size_t> row) {
  if (!row) return;
  const int line = static_cast<int>(*row);
  for (DiffPane* pane : {leftPane_, rightPane_}) {
    pane->GotoLine(line);
    const int third = pane->LinesOnScreen() / 3;
    if (line < pane->GetFirstVisibleLine() + 1 || line > pane->GetFirstVisibleLine() + 2 * third)
      pane->SetFirstVisibleLine(std::max(0, line - third));
  }
  ShowState();
}

void DiffWindow::ShowState() {
  message_->SetLabel(ToWx(Sentence()));
  if (diff_ == nullptr) return;
  previous_->Enable(diff_->Previous(CurrentRow()).has_value());
  next_->Enable(diff_->Next(CurrentRow()).has_value());
}

std::string DiffWindow::Sentence() const {
  if (diff_ == nullptr)
    return Same() ? std::string(sBinarySame)
                  : Count(sBinaryDiffer, left_.Text.Bytes.size(), right_.Text.Bytes.size());
  const auto& all = diff_->Differences();
  const bool ignores = ignoreCase_->GetValue() || ignoreSpace_->GetValue();
  if (all.empty() && !diff_->Same()) return Joined(sOnlyEnds, diff_->Ends());
  if (all.empty())
    return left_.Text.Bytes != right_.Text.Bytes && ignores ? sNoneWithOptions : sNoDifferences;
  const auto here = std::find(all.begin(), all.end(), CurrentRow());
  const std::string where =
      here != all.end() ? Count(sDifferenceOf, static_cast<std::size_t>(here - all.begin()) + 1, all.size())
      : all.size() == 1 ? std::string(sOneDifference)
                        : Count(sDifferences, all.size(), 0);
  return ignoreSpace_->GetValue() ? where : Joined(where, diff_->Ends());
}

}  // namespace kestrel
