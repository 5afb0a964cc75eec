#include "expert/Activities.h"

#include <algorithm>
#include <array>

#include "expert/SccExpertStrings.h"
#include "host/Errors.h"
#include "provider/ProviderStrings.h"

namespace kestrel::addin {

namespace {

using TVerdict = TActivities::TVerdict;

/// What happens while an activity runs: to an activity of the user, and to a notification of the host.
struct TRule {
  TVerdict OfUser, OfHost;
};
// By TActivity.  A command selects its provider project again after each dialog, so notifications need not wait for its
// end.
constexpr std::array kRules{
    TRule{TVerdict::Refuse, TVerdict::Start},  // Command
    TRule{TVerdict::Refuse, TVerdict::Wait},   // MenuOpening
    TRule{TVerdict::Refuse, TVerdict::Wait},   // ProviderChoice
    TRule{TVerdict::Refuse, TVerdict::Wait},   // Notification
};
constexpr TRule kInProviderCall{TVerdict::Refuse, TVerdict::Wait};

}  // namespace

TVerdict TActivities::Check(TActivity wanted) const {
  const auto of = wanted == TActivity::Notification ? &TRule::OfHost : &TRule::OfUser;
  auto verdict = inProviderCall_() ? kInProviderCall.*of : TVerdict::Start;
  for (const auto running : running_)
    verdict = std::max(verdict, kRules[static_cast<std::size_t>(running)].*of);
  return verdict;
}

void TActivities::Run(TActivity wanted, const std::function<void()>& body) {
  if (Check(wanted) != TVerdict::Start) throw EAbort(sCommandRunning);
  try {
    const TScope running(*this, wanted);
    body();
  } catch (...) {
    RunWaiting();
    throw;
  }
  RunWaiting();
}

void TActivities::Notify(std::function<void()> handle) {
  waiting_.push_back(std::move(handle));
  RunWaiting();
}

void TActivities::RunWaiting() {
  while (!waiting_.empty() && Check(TActivity::Notification) == TVerdict::Start) {
    const auto handle = std::move(waiting_.front());
    waiting_.pop_front();
    const TScope handling(*this, TActivity::Notification);
    handle();
  }
}

void TActivities::RequireNoProviderCall() const {
  if (inProviderCall_()) throw EAbort(sProviderBusy);
}

}  // namespace kestrel::addin
