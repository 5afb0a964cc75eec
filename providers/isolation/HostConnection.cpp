#include "isolation/HostConnection.h"

#include <algorithm>
#include <cstring>

namespace kestrel::isolation {
namespace {

constexpr std::size_t kChunk = 256 << 10;

std::size_t LimitOf(FrameKind kind, std::size_t answerLimit) {
  switch (kind) {
    case FrameKind::Answer:
      return answerLimit;
    case FrameKind::Message:
      return kMaxMessageSize + kSmallFrameSize;
    case FrameKind::Hello:
    case FrameKind::Query:
    case FrameKind::ListItem:
    case FrameKind::WindowCount:
      return kSmallFrameSize;
    default:
      throw WireError("a frame that is not for the library");
  }
}

FrameHeader HeaderOf(const std::string& bytes) {
  FrameHeader header;
  std::memcpy(&header, bytes.data(), sizeof header);
  return header;
}

std::vector<std::string> Arguments(const ProxyConfig& config) {
  std::vector<std::string> arguments{config.Provider};
  if (config.SearchPath) arguments.emplace_back(kSearchPathOption);
  return arguments;
}

}  // namespace

HostConnection::HostConnection(const ProxyConfig& config)
    : process_(Process::Start(config.Host, Arguments(config))) {}

void HostConnection::Send(FrameKind kind, const std::string& body) {
  if (out_.Empty()) out_ = {};
  const FrameHeader header{static_cast<std::uint32_t>(body.size()), kind};
  out_.Bytes.append(reinterpret_cast<const char*>(&header), sizeof header) += body;
}

std::size_t HostConnection::MissingBytes(std::size_t answerLimit) const {
  if (in_.size() < sizeof(FrameHeader)) return sizeof(FrameHeader) - in_.size();
  const auto header = HeaderOf(in_);
  if (header.Size > LimitOf(header.Kind, answerLimit)) throw WireError("a frame that is too long");
  return sizeof header + header.Size - in_.size();
}

std::optional<Frame> HostConnection::Receive(std::chrono::milliseconds wait, std::size_t answerLimit) {
  const auto end = std::chrono::steady_clock::now() + wait;
  for (;;) {
    const auto missing = MissingBytes(answerLimit);
    if (missing == 0) break;
    if (ended_) return std::nullopt;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
    const auto before = in_.size();
    ended_ = !process_->Transfer(out_, in_, std::min(missing, kChunk),
                                 std::max(left, std::chrono::milliseconds(0)));
    if (in_.size() == before && !ended_ && left.count() <= 0) return std::nullopt;
  }
  Frame frame{HeaderOf(in_).Kind, in_.substr(sizeof(FrameHeader))};
  in_.clear();
  return frame;
}

void HostConnection::Shutdown() {
  Send(FrameKind::Shutdown, {});
  Receive({}, 0);  // sends it
  process_->Detach();
}

}  // namespace kestrel::isolation
