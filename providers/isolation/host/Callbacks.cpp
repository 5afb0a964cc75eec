#include "Callbacks.h"

#include <cstring>
#include <mutex>

#include "Link.h"

namespace isolation {
namespace {

// One question at a time, and none beyond the end of the call: so whoever asks reads the channel alone.
std::mutex asking;
bool answerable = false;

scc::Long Ask(Kind kind, const std::string& body, scc::Long otherwise) {
  const std::lock_guard lock(asking);
  if (!answerable) return otherwise;
  link::Write(kind, body);
  const auto reply = link::Read();
  if (reply.Of != Kind::Reply) return otherwise;
  scc::Long answer = otherwise;
  In{reply.Body}(answer);
  return answer;
}

/// A text as it may cross: a longer one would be taken for a damaged one.
MaybeText Within(const char* text, std::size_t limit) {
  return text != nullptr ? MaybeText(text, strnlen(text, limit)) : MaybeText();
}

}  // namespace

Answerable::Answerable() {
  const std::lock_guard lock(asking);
  answerable = true;
}

Answerable::~Answerable() {
  const std::lock_guard lock(asking);
  answerable = false;
}

scc::Long SCC_CALL TextOutProc(const char* text, scc::Dword kind) noexcept {
  // Later versions of the API pass addresses of structures with these.
  constexpr scc::Dword kFirstStructure = 8, kLastStructure = 11;
  if (kind >= kFirstStructure && kind <= kLastStructure) return scc::SCC_MSG_RTN_OK;
  const bool asks = kind >= scc::SCC_MSG_DOCANCEL && kind <= scc::SCC_MSG_STOPCANCEL;
  if (asks) return Ask(Kind::Ask, Body(kind, Within(text, kSmallFrame / 2)), scc::SCC_MSG_RTN_OK);
  link::Write(Kind::Line, Body(kind, Within(text, kLongestLine)));
  return scc::SCC_MSG_RTN_OK;
}

scc::Bool SCC_CALL PopulateProc(void*, scc::Bool addOrKeep, scc::Long status, const char* name) noexcept {
  return Ask(Kind::Item, Body(addOrKeep, status, Within(name, kSmallFrame / 2)), 0);
}

}  // namespace isolation
