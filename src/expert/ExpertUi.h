// The windows that the expert needs, declared by the layer that uses them.  The package entry supplies the real ones;
// tests and benchmarks supply scripted ones.
#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "expert/FileListModel.h"
#include "ui/Messages.h"

namespace kestrel::addin {

struct TCommandContext;

/// Says what long work is doing; the work ends with the object.
class IProgress {
 public:
  virtual ~IProgress() = default;
  /// `done` of the total is done and `what` (a file) comes next.  Called for every file: must be cheap.
  virtual void Step(std::size_t done, const std::string& what) = 0;
  /// One call that does all of the total comes next, perhaps without a word until it is over; `what` says what it does.
  /// Shows the window at once when such calls take long: by what they took before, the first time by `perFile`.
  /// Does nothing where progress has no window of its own.
  virtual void BeginCall(const std::string& /*what*/, std::chrono::microseconds /*perFile*/) {}
};

/// All modal operations return when the user has closed the window.  User-interface thread only.
class IExpertUi {
 public:
  virtual ~IExpertUi() = default;
  virtual std::unique_ptr<IMessageWindow> CreateMessageWindow() = 0;
  /// A titled box with icon, beep and read-only text.
  virtual void ShowMsgDialog(const std::string& title, const std::string& text, TMsgType kind) = 0;
  /// A standard box with an OK button, for failures before the system's own windows exist and for provider notices.
  virtual void ShowBox(const std::string& text, TMsgType kind) = 0;
  /// mrOk or mrCancel; the model holds the user's choice.
  virtual int ShowFileList(TCommandContext& context, TFileListModel& model) = 0;
  virtual int ShowComments(TCommentModel& model) = 0;
  /// Throws EAbort, with no window shown, when the current project cannot be browsed.
  virtual void ShowCommitBrowser(TCommandContext& context) = 0;
  /// Starts showing progress under that caption: nothing for the first half second, then a small window that takes
  /// neither the focus nor any input.  Never nullptr.
  virtual std::unique_ptr<IProgress> StartProgress(const std::string& caption, std::size_t total) = 0;
  /// The wizard that puts the current project under source control.  It leaves the provider project open when that
  /// succeeded (TProviderContext::SetOpenProjectFile).
  virtual void ShowPlaceProject(TCommandContext& context) = 0;
  /// The wizard that fetches a project.  Returns the project file that the user wants to have opened, or nothing.
  virtual std::string ShowPullProject(TCommandContext& context) = 0;
};

}  // namespace kestrel::addin
