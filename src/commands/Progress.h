// What long work is doing, in a small window of its own.
#pragma once

#include <wx/modalhook.h>
#include <wx/weakref.h>

#include <chrono>
#include <functional>
#include <map>
#include <string>

#include "expert/ExpertUi.h"
#include "expert/ProgressClock.h"

namespace kestrel::addin {

class TProgressForm;

/// What calls took, so that the next of their kind is known to be long before it starts.
class TCallPace {
 public:
  using TDuration = TProgressClock::TTime::duration;

  /// Whether such a call on that many files is expected to take half a second or more.
  bool IsLong(const std::string& call, std::size_t files, TDuration perFileAtFirst) const;
  /// One on that many files (at least one) took so long.
  void Took(const std::string& call, std::size_t files, TDuration whole);

 private:
  std::map<std::string, TDuration> perFile_;
};

/// Paints what is due and lets windows appear and go, for that long.  Meanwhile keys and clicks wait, and no window can
/// be closed.
void PaintWindows(std::chrono::milliseconds duration);

/// The window takes neither the focus nor input, and is painted between the files and whenever a provider says
/// something.  It makes room for every dialog, also for one that a provider opens: while one is open nothing is shown,
/// and what follows it has its own first half second.
class TProgress final : public IProgress, private wxModalDialogHook {
 public:
  using TNow = std::function<TProgressClock::TTime()>;

  /// `pace` is borrowed.
  TProgress(const std::string& caption, std::size_t total, TCallPace& pace,
            TNow now = &std::chrono::steady_clock::now);
  ~TProgress() override;

  void Step(std::size_t done, const std::string& what) override;
  void BeginCall(const std::string& what, std::chrono::microseconds perFile) override;

 private:
  int Enter(wxDialog* dialog) override;
  void Exit(wxDialog* dialog) override;
  TProgressForm& Form();
  void CloseForm();

  const std::string caption_;
  const std::size_t total_;
  TCallPace& pace_;
  const TNow now_;
  TProgressClock clock_;
  int dialogs_ = 0;   // open now
  std::string call_;  // that one call does it all: what kind; its time counts unless a user had to answer
  TProgressClock::TTime called_;
  wxWeakRef<TProgressForm> form_;  // goes early when the host closes the window that it belongs to
};

}  // namespace kestrel::addin
