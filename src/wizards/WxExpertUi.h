// The windows that the expert shows in the IDE.
#pragma once

#include "commands/Progress.h"
#include "expert/ExpertUi.h"

namespace kestrel::addin {

class TWxExpertUi final : public IExpertUi {
 public:
  std::unique_ptr<IMessageWindow> CreateMessageWindow() override;
  void ShowMsgDialog(const std::string& title, const std::string& text, TMsgType kind) override;
  void ShowBox(const std::string& text, TMsgType kind) override;
  int ShowFileList(TCommandContext& context, TFileListModel& model) override;
  int ShowComments(TCommentModel& model) override;
  void ShowCommitBrowser(TCommandContext& context) override;
  std::unique_ptr<IProgress> StartProgress(const std::string& caption, std::size_t total) override;
  void ShowPlaceProject(TCommandContext& context) override;
  std::string ShowPullProject(TCommandContext& context) override;

 private:
  TCallPace pace_;
};

}  // namespace kestrel::addin
