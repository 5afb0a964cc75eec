#include "Session.h"

#include <set>
#include <utility>

#include "IsolationStrings.h"
#include "Waiting.h"

using namespace std::chrono_literals;

namespace isolation {
namespace {

constexpr int kMostFruitless = 3;

/// Never destroyed: clients may still end sessions when the process ends.
struct Sessions {
  std::mutex Mutex;
  std::set<void*> All;
};
Sessions& TheSessions() {
  static auto& sessions = *new Sessions;
  return sessions;
}

std::string FileNameOf(const std::string& path) { return path.substr(path.find_last_of("/\\") + 1); }

}  // namespace

Session::Session() : place_(ReadPlace(OwnPlaceFile())) {
  const std::lock_guard lock(TheSessions().Mutex);
  TheSessions().All.insert(this);
}

Session::~Session() {
  const std::lock_guard lock(TheSessions().Mutex);
  TheSessions().All.erase(this);
}

Session* Session::Of(void* context) {
  const std::lock_guard lock(TheSessions().Mutex);
  return TheSessions().All.contains(context) ? static_cast<Session*>(context) : nullptr;
}

Session* Session::Any() {
  const std::lock_guard lock(TheSessions().Mutex);
  return TheSessions().All.empty() ? nullptr : static_cast<Session*>(*TheSessions().All.begin());
}

Session::Turn::Turn(Session& session)
    : session_(session), granted_(session.owner_.load() != std::this_thread::get_id()) {
  if (!granted_) return;
  session_.busy_.lock();
  session_.owner_ = std::this_thread::get_id();
}

Session::Turn::~Turn() {
  if (!granted_) return;
  session_.owner_ = std::thread::id();
  session_.busy_.unlock();
}

std::string Session::ProviderName() const { return Name.empty() ? FileNameOf(place_.Provider) : Name; }

void Session::Say(scc::MessageKind kind, const std::string& text) {
  if (text == said_) return;  // the next call fails for the same reason
  said_ = text;
  if (listener_)
    TextOut(text.c_str(), kind);
  else
    unsaid_.emplace_back(kind, text);
}

void Session::Listen(scc::TTextOutProc textOut) {
  TextOut = textOut;
  listener_ = textOut != nullptr;
  if (!listener_) return;
  for (const auto& [kind, text] : std::exchange(unsaid_, {})) TextOut(text.c_str(), kind);
}

bool Session::IsAlive() {
  failure_.clear();
  if (child_ != nullptr) Step(0ms, 0);  // lines that were written since the last call, and its end
  if (child_ != nullptr && (child_->Ended() || !failure_.empty())) child_.reset();
  return child_ != nullptr;
}

void Session::Require() {
  if (IsAlive()) return;
  Start();
  if (Initialized) TellAgain();
}

void Session::Start() {
  if (place_.Provider.empty() || place_.Host.empty()) throw CallFailed(Format(sNoPlace, {OwnPlaceFile()}));
  if (fruitless_ >= kMostFruitless) throw CallFailed(Format(sGivenUp, {ProviderName()}));
  if (!unloadable_.empty()) throw CallFailed(unloadable_);
  Options.Forget();
  Context = 0;
  answer_.reset();
  windows_ = 0;
  try {
    child_ = std::make_unique<Child>(place_);
  } catch (const std::exception& error) {
    throw CallFailed(Format(sNotStarted, {ProviderName(), error.what()}));
  }
  ++fruitless_;
  std::string fault;
  const auto hello = Await("LoadLibrary", kSmallFrame);
  In{hello}(fault);
  if (fault.empty()) return;
  unloadable_ = Format(sNotLoaded, {place_.Provider, fault});  // the next time, too
  End();
  throw CallFailed(unloadable_);
}

void Session::TellAgain() {
  Silent = true;
  scc::Long result = 0;
  try {
    result = Replay(*this);
  } catch (...) {
    Silent = false;
    throw;
  }
  Silent = false;
  if (result < 0) {
    const auto sentence = Format(sNotReopened, {ProviderName(), static_cast<long long>(result)});
    End();
    throw CallFailed(sentence);
  }
  Say(scc::SCC_MSG_WARNING, Format(Opened ? sStartedAgain : sStartedAgainClosed, {ProviderName()}));
}

std::string Session::Carry(Entry entry, const std::string& body, std::size_t answerLimit) {
  child_->Send(Kind::Call, body);
  auto answer = Await(NameOf(entry), answerLimit);
  if (!Silent) {
    fruitless_ = 0;
    said_.clear();
  }
  return answer;
}

std::string Session::Await(const char* call, std::size_t answerLimit) {
  call_ = call;
  answer_.reset();
  failure_.clear();
  stopped_ = false;
  lastLine_.clear();
  Until({[&](std::chrono::milliseconds wait) { return Step(wait, answerLimit); },
         [this] { return windows_ > 0; }, [this] { return lastLine_; },
         [this] {
           stopped_ = true;
           child_->Kill();
         },
         ProviderName(), call});
  if (answer_) return *std::move(answer_);
  const auto sentence = SentenceOfEnd(call);
  child_.reset();
  throw CallFailed(sentence);
}

std::string Session::SentenceOfEnd(const char* call) {
  if (stopped_) {
    fruitless_ = 0;  // the user's doing
    return Format(sStopped, {ProviderName(), call});
  }
  if (!failure_.empty()) return Format(sGarbled, {ProviderName(), call, failure_});
  const auto how = child_->HowItEnded();
  return how.empty() ? Format(sEnded, {ProviderName(), call})
                     : Format(sEndedHow, {ProviderName(), call, how});
}

void Session::WarnOfOverrun() { Say(scc::SCC_MSG_WARNING, Format(sWroteBehind, {ProviderName(), call_})); }

void Session::SayThrown(const std::string& what) {
  Say(scc::SCC_MSG_ERROR, Format(sThrew, {ProviderName(), call_, what}));
}

std::string Session::Condemn(const std::string& why) {
  failure_ = why;
  const auto sentence = SentenceOfEnd(call_);
  child_.reset();
  return sentence;
}

bool Session::Step(std::chrono::milliseconds wait, std::size_t answerLimit) {
  try {
    const auto frame = child_->Receive(wait, answerLimit);
    return frame ? Take(*frame) : child_->Ended();
  } catch (const std::exception& error) {
    failure_ = error.what();
  } catch (...) {
    failure_ = "unknown exception";
  }
  child_->Kill();
  return true;
}

bool Session::Take(const Frame& frame) {
  switch (frame.Of) {
    case Kind::Hello:
    case Kind::Answer:
      answer_ = frame.Body;
      return true;
    case Kind::Line:
      Pass(frame.Body);
      return false;
    case Kind::Ask:
      child_->Send(Kind::Reply, Body(Pass(frame.Body)));
      return false;
    case Kind::Item:
      child_->Send(Kind::Reply, Body(PassItem(frame.Body)));
      return false;
    case Kind::Windows:
      In{frame.Body}(windows_);
      return false;
    default:
      throw WireError("a frame that is not for the library");
  }
}

scc::Long Session::Pass(const std::string& line) {
  scc::Dword kind = 0;
  MaybeText text;
  In{line}(kind, text);
  if (text.Present()) lastLine_ = text.Get();
  if (Silent || TextOut == nullptr) return scc::SCC_MSG_RTN_OK;
  return TextOut(text.Get(), kind);
}

scc::Long Session::PassItem(const std::string& item) {
  scc::Bool add = 0;
  scc::Long status = 0;
  MaybeText name;
  In{item}(add, status, name);
  return Populate != nullptr ? Populate(CallerData, add, status, name.Get()) : 0;
}

void Session::End() {
  try {
    if (child_ != nullptr && !child_->Ended()) child_->SayBye();
  } catch (const WireError&) {  // its last words do not matter
  }
  child_.reset();
}

}  // namespace isolation
