// The message window: a log with one line per message.
#pragma once

#include <wx/frame.h>
#include <wx/listctrl.h>
#include <wx/menu.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "host/Menus.h"
#include "ui/Messages.h"

namespace kestrel::addin {

/// The list of lines.  It is virtual, so that a long log is as fast as a short one.
class TMessageListView final : public wxListView {
 public:
  explicit TMessageListView(wxWindow* parent);
  void Append(TMsgWinType kind, const std::string& text);
  void Clear();
  void SelectAll();
  /// The selected lines, message and date separated by a tab.
  wxString SelectedText() const;
  /// The screen position of the focused line, or of the list's top if that line is not visible.
  wxPoint FocusedPosition() const;
  /// Widens the message column to fill the list.
  void FitColumns();

 protected:
  wxString OnGetItemText(long item, long column) const override;
  int OnGetItemImage(long item) const override;
  int OnGetItemColumnImage(long item, long column) const override;

 private:
  struct TLine {
    TMsgWinType Kind;
    std::string Text;
    std::string Date;
  };
  std::vector<TLine> lines_;
  bool growing_ = false;  ///< the control's item count is not up to date
};

/// Modeless and hidden at first.  Escape and the close button hide it.
class TMsgWinForm final : public wxFrame, public IMessageWindow {
 public:
  /// `helpFile` is the full path of this window's help file, or empty.
  explicit TMsgWinForm(const std::string& helpFile);
  ~TMsgWinForm() override;

  using IMessageWindow::SendMessage;
  void SendMessage(TMsgWinType kind, const std::string& text) override;
  void CallSoon(std::function<void()> body) override { CallAfter(std::move(body)); }
  void ShowWindow(bool show) override;
  bool ShouldPreventAppExit() const override { return false; }

  void ClearMessagesExecute();
  void FormKeyDown(wxKeyEvent& event);

  TMessageListView* const MessageListView;
  TAction ClearMessages;
  const std::vector<TAction*> VCMActionList{&ClearMessages};
  wxMenu VCMPopupMenu;  ///< one item per action
  const std::string HelpFile;
  static constexpr int HelpContext = 25016;

 private:
  void ShowPopupMenu(wxContextMenuEvent& event);
  void CopySelection() const;
};

/// The message window, or null.  Owned by its creator.
extern TMsgWinForm* MsgWinForm;

}  // namespace kestrel::addin
