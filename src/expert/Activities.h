// The running activities, the one rule for what may start meanwhile, and the queue of host notifications.
//
// Dialogs and provider calls run message loops, in which the user can start another command or choose another provider,
// and the host can close the project, while the code that shows the dialog is still on the call stack.
#pragma once

#include <deque>
#include <functional>
#include <vector>

namespace kestrel::addin {

/// What can be running, besides a provider call.
enum class TActivity { Command, MenuOpening, ProviderChoice, Notification };

/// User-interface thread only.
class TActivities {
 public:
  enum class TVerdict { Start, Wait, Refuse };

  /// `inProviderCall` returns whether a function of the provider is on the call stack.
  explicit TActivities(std::function<bool()> inProviderCall) : inProviderCall_(std::move(inProviderCall)) {}
  TActivities(const TActivities&) = delete;
  TActivities& operator=(const TActivities&) = delete;

  /// Whether `wanted` may start now.
  TVerdict Check(TActivity wanted) const;
  /// Runs `body` as `wanted`, then the queued notifications.  Throws EAbort, without running it, if it may not start now.
  /// Exceptions of `body` propagate.
  void Run(TActivity wanted, const std::function<void()>& body);
  /// Queues `handle` and runs the queue as far as allowed.  `handle` must not throw.
  void Notify(std::function<void()> handle);
  /// Runs the queued notifications that may start now, in order.
  void RunWaiting();

  bool InProviderCall() const { return inProviderCall_(); }
  /// Precondition of calling or releasing the provider.  Throws EAbort while one of its functions runs: most providers are
  /// not reentrant, and the library must not be unloaded while one of its functions is on the stack.
  void RequireNoProviderCall() const;

  /// Scoped: marks the activity as running.
  class TScope {
   public:
    TScope(TActivities& activities, TActivity running) : running_(activities.running_) {
      running_.push_back(running);
    }
    TScope(const TScope&) = delete;
    TScope& operator=(const TScope&) = delete;
    ~TScope() { running_.pop_back(); }

   private:
    std::vector<TActivity>& running_;
  };

 private:
  std::function<bool()> inProviderCall_;
  std::vector<TActivity> running_;  // the innermost last
  std::deque<std::function<void()>> waiting_;
};

}  // namespace kestrel::addin
