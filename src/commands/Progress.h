// What long work is doing, in a small window of its own.
#pragma once

#include <wx/modalhook.h>
#include <wx/weakref.h>

#include <chrono>
#include <functional>
#include <string>

#include "expert/ExpertForms.h"

class TProgressForm;

/// When the window is due: first after half a second of work, then ten times a second at most.
class TProgressClock {
 public:
  using TTime = std::chrono::steady_clock::time_point;

  explicit TProgressClock(TTime start) { Restart(start); }
  /// Whether to show the window, or to bring it up to date, at that moment.
  bool Due(TTime now);
  /// The work begins, or begins anew, at that moment.
  void Restart(TTime now);

 private:
  TTime next_;
};

/// The window takes neither the focus nor input, and is painted between the files, when no provider call is running.
/// Meanwhile keys and clicks wait, and no window can be closed.  It makes room for every dialog: while one is open no
/// work is done, and what follows it has its own first half second.
class TProgress final : public IProgress, private wxModalDialogHook {
 public:
  using TNow = std::function<TProgressClock::TTime()>;

  TProgress(const std::string& caption, std::size_t total, TNow now = &std::chrono::steady_clock::now);
  ~TProgress() override;

  void Step(std::size_t done, const std::string& what) override;

 private:
  int Enter(wxDialog* dialog) override;
  void Exit(wxDialog* dialog) override;
  void CloseForm();

  const std::string caption_;
  const std::size_t total_;
  const TNow now_;
  TProgressClock clock_;
  wxWeakRef<TProgressForm> form_;  // goes early when the host closes the window that it belongs to
};
