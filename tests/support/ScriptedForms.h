// The add-in's windows as a script: a test says what the user does in each, and reads what was shown.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "expert/ExpertUi.h"

namespace kestrel::addin {

struct TShownBox {
  std::string Title;
  std::string Text;
  TMsgType Kind;
  bool operator==(const TShownBox&) const = default;
};
inline void PrintTo(const TShownBox& box, std::ostream* out) { *out << box.Title << ": " << box.Text; }

class TScriptedForms final : public IExpertUi {
 public:
  /// What the user does in the next dialogs of each kind; answers mrOk or mrCancel.  A dialog without a script answers
  /// mrCancel and is noted in Unexpected.
  std::deque<std::function<int(TFileListModel&)>> OnFileList;
  std::deque<std::function<int(TCommentModel&)>> OnComments;
  std::deque<std::function<int(TCommandContext&)>> OnCommitBrowser;
  std::deque<std::function<int(TCommandContext&)>> OnPlaceProject;
  std::deque<std::function<int(TCommandContext&)>> OnPullProject;
  std::string PulledProject;  ///< what the pull wizard answers after mrOk
  /// Runs while a message dialog is shown, as the host's message loop would.
  std::function<void()> WhileBoxShown;
  bool Recording = true;  ///< off: boxes and lines are not kept, for measurements

  std::vector<TShownBox> Boxes;
  std::vector<std::string> PlainBoxes;
  std::vector<std::pair<TMsgWinType, std::string>> Lines;
  std::vector<std::string> Unexpected;
  bool WindowShown = false;
  std::vector<std::function<void()>>
      Soon;  ///< what the message window is to call on the user-interface thread

  /// The texts of one kind of line.
  std::vector<std::string> LinesOf(TMsgWinType kind) const;

  std::unique_ptr<IMessageWindow> CreateMessageWindow() override;
  void ShowMsgDialog(const std::string& title, const std::string& text, TMsgType kind) override;
  void ShowBox(const std::string& text, TMsgType) override { PlainBoxes.push_back(text); }
  int ShowFileList(TCommandContext& context, TFileListModel& model) override;
  int ShowComments(TCommentModel& model) override;
  void ShowCommitBrowser(TCommandContext& context) override;
  void ShowPlaceProject(TCommandContext& context) override;
  std::string ShowPullProject(TCommandContext& context) override;
  std::unique_ptr<IProgress> StartProgress(const std::string& caption, std::size_t total) override;

  /// Captions of the progress shown, each with how many of how many files were reported.  Of one call: what it was said
  /// to do, then each file with how many were done.
  std::vector<std::string> Progress;
};

}  // namespace kestrel::addin
