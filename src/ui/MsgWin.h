// The message window: a running log, one line a message.
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

/// The lines.  The list control asks for what it shows, so that a long log costs no more than a short one.
class TMessageListView final : public wxListView {
 public:
  explicit TMessageListView(wxWindow* parent);
  void Append(TMsgWinType kind, const std::string& text);
  void Clear();
  void SelectAll();
  /// The selected lines as text, message and date separated by a tab.
  wxString SelectedText() const;
  /// Where the focused line is on the screen; the list's top without a line in view.
  wxPoint FocusedPosition() const;
  /// Lets the messages have the width that the dates leave.
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
  bool growing_ = false;  ///< there are lines that the control does not know of yet
};

/// Modeless; hidden until it is asked for, and hidden again by Escape or its close button, never destroyed by them.
class TMsgWinForm final : public wxFrame, public IMessageWindow {
 public:
  /// `helpFile` is the full path of the help file of this window, or empty.
  explicit TMsgWinForm(const std::string& helpFile);
  ~TMsgWinForm() override;

  using IMessageWindow::SendMessage;
  void SendMessage(TMsgWinType kind, const std::string& text) override;
  void CallSoon(std::function<void()> body) override { CallAfter(std::move(body)); }
  void ShowWindow(bool show) override;
  /// A log that is still open does not keep the host running.
  bool ShouldPreventAppExit() const override { return false; }

  void ClearMessagesExecute();
  void FormKeyDown(wxKeyEvent& event);

  TMessageListView* const MessageListView;
  TAction ClearMessages;
  const std::vector<TAction*> VCMActionList{&ClearMessages};
  wxMenu VCMPopupMenu;  ///< an item for each action
  const std::string HelpFile;
  static constexpr int HelpContext = 25016;

 private:
  void ShowPopupMenu(wxContextMenuEvent& event);
  void CopySelection() const;
};

/// The message window, or nullptr.  Its owner is whoever created it.
extern TMsgWinForm* MsgWinForm;

}  // namespace kestrel::addin
