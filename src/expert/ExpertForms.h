// The windows that the expert needs, declared by the layer that uses them.  The package entry supplies the real ones;
// tests and benchmarks supply scripted ones.
#pragma once

#include <memory>
#include <string>

#include "expert/FileListModel.h"
#include "ui/Messages.h"

class TSccExpert;

/// All modal operations return when the user has closed the window.  User-interface thread only.
class IExpertForms {
 public:
  virtual ~IExpertForms() = default;
  virtual std::unique_ptr<IMessageWindow> CreateMessageWindow() = 0;
  /// A titled box with icon, beep and read-only text.
  virtual void ShowMsgDialog(const std::string& title, const std::string& text, TMsgType kind) = 0;
  /// A standard box with an OK button, for failures before the system's own windows exist and for provider notices.
  virtual void ShowBox(const std::string& text, TMsgType kind) = 0;
  /// mrOk or mrCancel; the model holds the user's choice.
  virtual int ShowFileList(TSccExpert& expert, TFileListModel& model) = 0;
  virtual int ShowComments(TCommentModel& model) = 0;
};
