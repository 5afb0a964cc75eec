// The windows that the expert shows, as an interface.  The package entry supplies the real ones, tests and benchmarks
// scripted ones.
#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "expert/FileListModel.h"
#include "ui/Messages.h"

namespace kestrel::addin {

struct TCommandContext;

/// Shows the progress of long work; scoped to it.
class IProgress {
 public:
  virtual ~IProgress() = default;
  /// `done` files are done and file `what` is next.  Called for every file: must be cheap.
  virtual void Step(std::size_t done, const std::string& what) = 0;
  /// Announces one provider call for all files; it may report nothing until it returns.  `what` describes the call.  Shows
  /// the window at once if the call is expected to take long, judging by earlier calls or, the first time, by `perFile`.
  /// Does nothing where progress has no window of its own.
  virtual void BeginCall(const std::string& /*what*/, std::chrono::microseconds /*perFile*/) {}
};

/// Modal operations return when the user has closed the window.  User-interface thread only.
class IExpertUi {
 public:
  virtual ~IExpertUi() = default;
  virtual std::unique_ptr<IMessageWindow> CreateMessageWindow() = 0;
  /// A modal box with title, icon, beep and read-only text.
  virtual void ShowMsgDialog(const std::string& title, const std::string& text, TMsgType kind) = 0;
  /// A standard box with an OK button, for failures at start-up and for provider notices.
  virtual void ShowBox(const std::string& text, TMsgType kind) = 0;
  /// Returns mrOk or mrCancel; the model holds the user's choice.
  virtual int ShowFileList(TCommandContext& context, TFileListModel& model) = 0;
  virtual int ShowComments(TCommentModel& model) = 0;
  /// Throws EAbort, without showing a window, when the current project cannot be browsed.
  virtual void ShowCommitBrowser(TCommandContext& context) = 0;
  /// Shows nothing for the first half second, then a small window that takes neither the focus nor input.  Never null.
  virtual std::unique_ptr<IProgress> StartProgress(const std::string& caption, std::size_t total) = 0;
  /// Places the current project under source control.  On success the provider project stays open
  /// (TProviderContext::SetOpenProjectFile).
  virtual void ShowPlaceProject(TCommandContext& context) = 0;
  /// Fetches a project.  Returns the project file that the user wants to open; empty for none.
  virtual std::string ShowPullProject(TCommandContext& context) = 0;
};

}  // namespace kestrel::addin
