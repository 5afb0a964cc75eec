#include "isolation/host/Callbacks.h"

#include <atomic>
#include <cstring>
#include <mutex>

#include "isolation/host/Channel.h"

namespace kestrel::isolation {
namespace {

// Queries are serialised and refused outside of a call, so that only one thread reads the channel.
std::mutex askMutex;
std::atomic<bool> callRunning = false;

scc::Long Ask(FrameKind kind, const std::string& body, scc::Long otherwise) {
  const std::lock_guard lock(askMutex);
  if (!callRunning) return otherwise;
  channel::Write(kind, body);
  const auto reply = channel::Read();
  if (reply.Kind != FrameKind::Reply) return otherwise;
  scc::Long answer = otherwise;
  FrameReader{reply.Body}(answer);
  return answer;
}

/// Truncates a text to the size that the client accepts.
NullableText Truncated(const char* text, std::size_t limit) {
  return text != nullptr ? NullableText(text, strnlen(text, limit)) : NullableText();
}

}  // namespace

CallScope::CallScope() {
  const std::lock_guard lock(askMutex);
  callRunning = true;
}

CallScope::~CallScope() {
  const std::lock_guard lock(askMutex);
  callRunning = false;
}

bool IsCallRunning() { return callRunning; }

scc::Long SCC_CALL TextOutProc(const char* text, scc::Dword kind) noexcept {
  // Later versions of the API pass addresses of structures with these.
  constexpr scc::Dword kFirstStructure = 8, kLastStructure = 11;
  if (kind >= kFirstStructure && kind <= kLastStructure) return scc::SCC_MSG_RTN_OK;
  const bool asks = kind >= scc::SCC_MSG_DOCANCEL && kind <= scc::SCC_MSG_STOPCANCEL;
  if (asks)
    return Ask(FrameKind::Query, Serialize(kind, Truncated(text, kSmallFrameSize / 2)), scc::SCC_MSG_RTN_OK);
  channel::Write(FrameKind::Message, Serialize(kind, Truncated(text, kMaxMessageSize)));
  return scc::SCC_MSG_RTN_OK;
}

scc::Bool SCC_CALL PopulateProc(void*, scc::Bool addOrKeep, scc::Long status, const char* name) noexcept {
  return Ask(FrameKind::ListItem, Serialize(addOrKeep, status, Truncated(name, kSmallFrameSize / 2)), 0);
}

}  // namespace kestrel::isolation
