// What the add-in is busy with, and the one rule for what may start meanwhile.
//
// Dialogs, and providers in their calls, run message loops.  In these the user can choose another command or provider,
// and the host can close the project, while the code that shows the dialog is still on the call stack.
#pragma once

#include <deque>
#include <functional>
#include <vector>

namespace kestrel::addin {

/// What the add-in can be busy with, besides a call of the provider.
enum class TActivity { Command, MenuOpening, ProviderChoice, Notification };

/// User-interface thread only.
class TActivities {
 public:
  enum class TVerdict { Start, Wait, Refuse };

  /// `inProviderCall` tells whether a function of the provider is on the call stack.
  explicit TActivities(std::function<bool()> inProviderCall) : in_provider_call_(std::move(inProviderCall)) {}
  TActivities(const TActivities&) = delete;
  TActivities& operator=(const TActivities&) = delete;

  /// What becomes of `wanted` when it comes now.
  TVerdict Ask(TActivity wanted) const;
  /// Runs `body` as `wanted`, then the notifications that have waited.  Throws EAbort, without running it, unless it may
  /// start now.  What `body` throws passes.
  void Run(TActivity wanted, const std::function<void()>& body);
  /// Runs `handle` now, or when what is in its way has ended; in the order of the calls.  It must not throw.
  void Notify(std::function<void()> handle);
  /// Runs the notifications that have waited and may start now.
  void RunWaiting();

  bool InProviderCall() const { return in_provider_call_(); }
  /// For whoever is about to call the provider or to release it.  Throws EAbort while one of its functions runs: most
  /// providers are not made for a second call, and the library would go away under the first.
  void RequireNoProviderCall() const;

  /// Says that this goes on, for as long as it lives.
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
  std::function<bool()> in_provider_call_;
  std::vector<TActivity> running_;  // the innermost last
  std::deque<std::function<void()>> waiting_;
};

}  // namespace kestrel::addin
