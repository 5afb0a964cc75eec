#include "isolation/ProviderProxy.h"

#include <set>
#include <utility>

#include "isolation/IsolationStrings.h"
#include "isolation/Waiting.h"
#include "isolation/WindowId.h"

using namespace std::chrono_literals;

namespace kestrel::isolation {
namespace {

constexpr int kMaxFruitlessStarts = 3;

/// Never destroyed: clients may uninitialise providers during static destruction.
struct ProxySet {
  std::mutex Mutex;
  std::set<void*> All;
};
ProxySet& AllProxies() {
  static auto& proxies = *new ProxySet;
  return proxies;
}

std::string FileNameOf(const std::string& path) { return path.substr(path.find_last_of("/\\") + 1); }

}  // namespace

ProviderProxy::ProviderProxy() : config_(ReadProxyConfig(OwnConfigFile())) {
  const std::lock_guard lock(AllProxies().Mutex);
  AllProxies().All.insert(this);
}

ProviderProxy::~ProviderProxy() {
  const std::lock_guard lock(AllProxies().Mutex);
  AllProxies().All.erase(this);
}

ProviderProxy* ProviderProxy::FromContext(void* context) {
  const std::lock_guard lock(AllProxies().Mutex);
  return AllProxies().All.contains(context) ? static_cast<ProviderProxy*>(context) : nullptr;
}

ProviderProxy* ProviderProxy::Any() {
  const std::lock_guard lock(AllProxies().Mutex);
  return AllProxies().All.empty() ? nullptr : static_cast<ProviderProxy*>(*AllProxies().All.begin());
}

ProviderProxy::CallLock::CallLock(ProviderProxy& proxy)
    : proxy_(proxy), granted_(proxy.owner_.load() != std::this_thread::get_id()) {
  if (!granted_) return;
  proxy_.busy_.lock();
  proxy_.owner_ = std::this_thread::get_id();
}

ProviderProxy::CallLock::~CallLock() {
  if (!granted_) return;
  proxy_.owner_ = std::thread::id();
  proxy_.busy_.unlock();
}

std::string ProviderProxy::ProviderName() const { return Name.empty() ? FileNameOf(config_.Provider) : Name; }

void ProviderProxy::Report(scc::MessageKind kind, const std::string& text) {
  if (text == lastReported_) return;  // later calls fail for the same reason
  lastReported_ = text;
  if (listening_)
    TextOut(text.c_str(), kind);
  else
    queued_.emplace_back(kind, text);
}

void ProviderProxy::SetTextOut(scc::TTextOutProc textOut) {
  TextOut = textOut;
  listening_ = textOut != nullptr;
  if (!listening_) return;
  for (const auto& [kind, text] : std::exchange(queued_, {})) TextOut(text.c_str(), kind);
}

void ProviderProxy::ShowQueued() {
  std::string lines;
  for (const auto& [kind, text] : queued_) lines += text + "\n";
  if (!lines.empty() && ShowMessageBox(ProviderName(), lines)) queued_.clear();
}

bool ProviderProxy::IsRunning() {
  failure_.clear();
  if (connection_ != nullptr)
    Step(0ms, 0);  // receives messages sent since the last call, and notices the end of the process
  if (connection_ != nullptr && (connection_->Ended() || !failure_.empty())) connection_.reset();
  return connection_ != nullptr;
}

void ProviderProxy::EnsureRunning() {
  if (IsRunning()) return;
  Start();
  if (Initialized) RestoreState();
}

void ProviderProxy::Start() {
  if (config_.Provider.empty() || config_.Host.empty())
    throw CallFailed(Format(sNoProvider, {OwnConfigFile()}));
  if (fruitlessStarts_ >= kMaxFruitlessStarts) throw CallFailed(Format(sNotRestarted, {ProviderName()}));
  if (!unloadable_.empty()) throw CallFailed(unloadable_);
  Options.InvalidateBlocks();
  Context = 0;
  answer_.reset();
  windows_ = 0;
  try {
    connection_ = std::make_unique<HostConnection>(config_);
  } catch (const std::exception& error) {
    throw CallFailed(Format(sNotStarted, {ProviderName(), error.what()}));
  }
  ++fruitlessStarts_;
  std::string fault;
  const auto hello = AwaitAnswer("LoadLibrary", kSmallFrameSize);
  FrameReader{hello}(fault);
  if (fault.empty()) return;
  unloadable_ = Format(sNotLoaded, {config_.Provider, fault});  // also for later calls
  End();
  throw CallFailed(unloadable_);
}

void ProviderProxy::RestoreState() {
  Muted = true;
  scc::Long result = 0;
  try {
    result = RestoreProvider(*this);
  } catch (...) {
    Muted = false;
    throw;
  }
  Muted = false;
  if (result < 0) {
    const auto sentence = Format(sNotReopened, {ProviderName(), static_cast<long long>(result)});
    End();
    throw CallFailed(sentence);
  }
  Report(scc::SCC_MSG_WARNING, Format(Opened ? sRestartedReopened : sRestarted, {ProviderName()}));
}

std::string ProviderProxy::Execute(EntryPoint entry, const std::string& body, std::size_t answerLimit) {
  connection_->Send(FrameKind::Call, body);
  auto answer = AwaitAnswer(NameOf(entry), answerLimit);
  if (!Muted) {
    fruitlessStarts_ = 0;
    lastReported_.clear();
  }
  return answer;
}

/// False also if the provider hangs with a window open.
bool ProviderProxy::ShowsLiveWindow() const {
  return windows_ > 0 && std::chrono::steady_clock::now() - windowsReported_ < 3 * kWindowCountInterval;
}

std::string ProviderProxy::AwaitAnswer(const char* call, std::size_t answerLimit) {
  call_ = call;
  windowsReported_ = std::chrono::steady_clock::now();
  answer_.reset();
  failure_.clear();
  stopped_ = false;
  lastLine_.clear();
  WaitForCall({[&](std::chrono::milliseconds wait) { return Step(wait, answerLimit); },
               [this] { return ShowsLiveWindow(); }, [this] { return lastLine_; },
               [this] {
                 stopped_ = true;
                 connection_->Kill();
               },
               ProviderName(), call});
  if (answer_) return *std::move(answer_);
  const auto sentence = DescribeFailure(call);
  connection_.reset();
  if (windows_ > 0) ReleaseOwner(Owner);
  throw CallFailed(sentence);
}

std::string ProviderProxy::DescribeFailure(const char* call) {
  if (stopped_) {
    fruitlessStarts_ = 0;  // not the fault of the provider
    return Format(sStopped, {ProviderName(), call});
  }
  if (!failure_.empty()) return Format(sInvalidAnswer, {ProviderName(), call, failure_});
  const auto how = connection_->ExitDescription();
  return how.empty() ? Format(sEnded, {ProviderName(), call})
                     : Format(sEndedWith, {ProviderName(), call, how});
}

void ProviderProxy::ReportOverrun() {
  Report(scc::SCC_MSG_WARNING, Format(sOverrun, {ProviderName(), call_}));
}

void ProviderProxy::ReportException(const std::string& what) {
  Report(scc::SCC_MSG_ERROR, Format(sException, {ProviderName(), call_, what}));
}

std::string ProviderProxy::FailCall(const std::string& why) {
  failure_ = why;
  const auto sentence = DescribeFailure(call_);
  connection_.reset();
  return sentence;
}

bool ProviderProxy::Step(std::chrono::milliseconds wait, std::size_t answerLimit) {
  try {
    const auto frame = connection_->Receive(wait, answerLimit);
    return frame ? HandleFrame(*frame) : connection_->Ended();
  } catch (const std::exception& error) {
    failure_ = error.what();
  } catch (...) {
    failure_ = "unknown exception";
  }
  connection_->Kill();
  return true;
}

bool ProviderProxy::HandleFrame(const Frame& frame) {
  switch (frame.Kind) {
    case FrameKind::Hello:
    case FrameKind::Answer:
      answer_ = frame.Body;
      return true;
    case FrameKind::Message:
      ForwardMessage(frame.Body);
      return false;
    case FrameKind::Query:
      connection_->Send(FrameKind::Reply, Serialize(ForwardMessage(frame.Body)));
      return false;
    case FrameKind::ListItem:
      connection_->Send(FrameKind::Reply, Serialize(ForwardListItem(frame.Body)));
      return false;
    case FrameKind::WindowCount:
      FrameReader{frame.Body}(windows_);
      windowsReported_ = std::chrono::steady_clock::now();
      return false;
    default:
      throw WireError("a frame that is not for the library");
  }
}

scc::Long ProviderProxy::ForwardMessage(const std::string& line) {
  scc::Dword kind = 0;
  NullableText text;
  FrameReader{line}(kind, text);
  if (text.Present()) lastLine_ = text.Get();
  if (Muted || TextOut == nullptr) return scc::SCC_MSG_RTN_OK;
  return TextOut(text.Get(), kind);
}

scc::Long ProviderProxy::ForwardListItem(const std::string& item) {
  scc::Bool add = 0;
  scc::Long status = 0;
  NullableText name;
  FrameReader{item}(add, status, name);
  return Populate != nullptr ? Populate(CallerData, add, status, name.Get()) : 0;
}

void ProviderProxy::End() {
  try {
    if (connection_ != nullptr && !connection_->Ended()) connection_->Shutdown();
  } catch (const WireError&) {  // it ends anyway
  }
  connection_.reset();
}

}  // namespace kestrel::isolation
