// The windows of the file commands that the expert is given in the IDE.
#pragma once

#include "commands/Progress.h"
#include "expert/ExpertUi.h"

namespace kestrel::addin {

/// Wizards are windows of a layer above, which completes this class.
class TWxExpertUi : public IExpertUi {
 public:
  std::unique_ptr<IMessageWindow> CreateMessageWindow() override;
  void ShowMsgDialog(const std::string& title, const std::string& text, TMsgType kind) override;
  void ShowBox(const std::string& text, TMsgType kind) override;
  int ShowFileList(TCommandContext& context, TFileListModel& model) override;
  int ShowComments(TCommentModel& model) override;
  std::unique_ptr<IProgress> StartProgress(const std::string& caption, std::size_t total) override;

 private:
  TCallPace pace_;
};

}  // namespace kestrel::addin
