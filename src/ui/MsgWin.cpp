#include "ui/MsgWin.h"

#include <wx/clipbrd.h>
#include <wx/wx.h>

#include <algorithm>
#include <ctime>
#include <utility>

#include "toolkit/WindowSize.h"
#include "toolkit/WxText.h"
#include "ui/Icons.h"
#include "ui/ModalForm.h"
#include "ui/MsgWinStrings.h"

namespace kestrel::addin {

TMsgWinForm* MsgWinForm = nullptr;

namespace {

enum TColumn { colMessage, colDate };
constexpr int kMessageWidth = 400;
constexpr int kDateWidth = 226;
constexpr int kNoImage = -1;
constexpr const char* kHelpKeyword = "HC_TeamMessages";
static_assert(kLineIcons.size() == mwtStatus + 1);
constexpr long kBorder =
    wxCAPTION | wxSYSTEM_MENU | wxMINIMIZE_BOX | wxCLOSE_BOX | wxRESIZE_BORDER | wxCLIP_CHILDREN;

std::string Now() {
  const auto now = std::time(nullptr);
  return MessageTimeStamp(*std::localtime(&now));
}

/// The text in one line: line breaks and tabs become blanks.
wxString OneLine(const std::string& text) {
  auto line = text;
  std::ranges::replace_if(
      line, [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
  return ToWx(line);
}

}  // namespace

TMessageListView::TMessageListView(wxWindow* parent)
    : wxListView(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxLC_REPORT | wxLC_VIRTUAL) {
  wxVector<wxBitmapBundle> icons;
  for (const char* svg : kLineIcons)
    icons.push_back(wxBitmapBundle::FromSVG(svg, {kLineIconSize, kLineIconSize}));
  SetSmallImages(icons);
  AppendColumn(ToWx(sMessageColumn), wxLIST_FORMAT_LEFT, FromDIP(kMessageWidth));
  AppendColumn(ToWx(sDateColumn), wxLIST_FORMAT_LEFT, FromDIP(kDateWidth));
}

void TMessageListView::Append(TMsgWinType kind, const std::string& text) {
  lines_.push_back({kind, text, Now()});
  if (std::exchange(growing_, true)) return;
  // Updates the count once for all lines of a command, because some systems redraw the scroll bar each time.
  CallAfter([this] {
    growing_ = false;
    SetItemCount(static_cast<long>(lines_.size()));
  });
}

void TMessageListView::Clear() {
  lines_.clear();
  SetItemCount(0);
  Refresh();
}

void TMessageListView::SelectAll() { SetItemState(-1, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED); }

wxString TMessageListView::SelectedText() const {
  std::string text;
  for (long i = GetFirstSelected(); i >= 0; i = GetNextSelected(i)) {
    const auto& line = lines_[static_cast<std::size_t>(i)];
    text += line.Text + '\t' + line.Date + '\n';
  }
  return ToWx(text);
}

wxPoint TMessageListView::FocusedPosition() const {
  wxRect row;
  const long item = GetFocusedItem();
  if (item >= 0 && IsVisible(item)) GetItemRect(item, row);
  return ClientToScreen(row.GetBottomLeft() + FromDIP(wxPoint(16, 0)));
}

void TMessageListView::FitColumns() {
  const int scrollBar = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this);
  const int left = GetClientSize().GetWidth() - GetColumnWidth(colDate) - scrollBar;
  SetColumnWidth(colMessage, std::max(FromDIP(kMessageWidth), left));
}

wxString TMessageListView::OnGetItemText(long item, long column) const {
  const auto& line = lines_[static_cast<std::size_t>(item)];
  return column == colMessage ? OneLine(line.Text) : ToWx(line.Date);
}

int TMessageListView::OnGetItemImage(long item) const { return lines_[static_cast<std::size_t>(item)].Kind; }

int TMessageListView::OnGetItemColumnImage(long item, long column) const {
  return column == colMessage ? OnGetItemImage(item) : kNoImage;
}

TMsgWinForm::TMsgWinForm(const std::string& helpFile)
    : wxFrame(nullptr, wxID_ANY, ToWx(sMsgWinCaption), wxDefaultPosition, wxDefaultSize, kBorder),
      MessageListView(new TMessageListView(this)),
      HelpFile(helpFile) {
  SetMinSize(FromDIP(wxSize(240, 120)));
  SetOuterSize(*this, FromDIP(wxSize(654, 240)));
  CentreOnScreen();
  ClearMessages.Name = "ClearMessages";
  ClearMessages.Caption = sClearMessages;
  ClearMessages.OnExecute = [this] { ClearMessagesExecute(); };
  for (const auto* action : VCMActionList) {
    const auto* item = VCMPopupMenu.Append(wxID_ANY, ToWx(action->Caption));
    Bind(
        wxEVT_MENU, [action](wxCommandEvent&) { action->OnExecute(); }, item->GetId());
  }

  Bind(wxEVT_CONTEXT_MENU, &TMsgWinForm::ShowPopupMenu, this);
  Bind(wxEVT_CHAR_HOOK, &TMsgWinForm::FormKeyDown, this);
  Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) { Hide(); });
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    CallAfter([this] { MessageListView->FitColumns(); });
  });
  MsgWinForm = this;
}

TMsgWinForm::~TMsgWinForm() { MsgWinForm = nullptr; }

void TMsgWinForm::SendMessage(TMsgWinType kind, const std::string& text) {
  MessageListView->Append(kind, text);
}

void TMsgWinForm::ShowWindow(bool show) {
  Show(show);
  if (!show) return;
  if (IsIconized()) Iconize(false);
  Raise();
  MessageListView->SetFocus();
}

void TMsgWinForm::ClearMessagesExecute() { MessageListView->Clear(); }

void TMsgWinForm::FormKeyDown(wxKeyEvent& event) {
  const int key = event.GetKeyCode();
  if (key == WXK_ESCAPE)
    Hide();
  else if (key == WXK_F1)
    ShowHelpTopic(kHelpKeyword);
  else if (event.ControlDown() && key == 'C')
    CopySelection();
  else if (event.ControlDown() && key == 'A')
    MessageListView->SelectAll();
  else
    event.Skip();
}

void TMsgWinForm::ShowPopupMenu(wxContextMenuEvent& event) {
  // From the keyboard the menu opens at the focused line.
  const bool byKeyboard = event.GetPosition() == wxDefaultPosition;
  PopupMenu(&VCMPopupMenu,
            byKeyboard ? ScreenToClient(MessageListView->FocusedPosition()) : wxDefaultPosition);
}

void TMsgWinForm::CopySelection() const {
  const auto text = MessageListView->SelectedText();
  const wxClipboardLocker clipboard;
  if (text.empty() || !clipboard) return;
  wxTheClipboard->SetData(new wxTextDataObject(text));
}

}  // namespace kestrel::addin
