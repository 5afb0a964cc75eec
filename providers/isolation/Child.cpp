#include "Child.h"

#include <algorithm>
#include <cstring>

namespace isolation {
namespace {

constexpr std::size_t kChunk = 256 << 10;

std::size_t LimitOf(Kind kind, std::size_t answerLimit) {
  switch (kind) {
    case Kind::Answer:
      return answerLimit;
    case Kind::Line:
      return kLongestLine + kSmallFrame;
    case Kind::Hello:
    case Kind::Ask:
    case Kind::Item:
    case Kind::Windows:
      return kSmallFrame;
    default:
      throw WireError("a frame that is not for the library");
  }
}

FrameHeader HeaderOf(const std::string& bytes) {
  FrameHeader header;
  std::memcpy(&header, bytes.data(), sizeof header);
  return header;
}

}  // namespace

Child::Child(const Place& place) : process_(Process::Start(place.Host, place.Provider)) {}

void Child::Send(Kind kind, const std::string& body) {
  if (out_.Empty()) out_ = {};
  const FrameHeader header{static_cast<std::uint32_t>(body.size()), kind};
  out_.Bytes.append(reinterpret_cast<const char*>(&header), sizeof header) += body;
}

std::size_t Child::Missing(std::size_t answerLimit) const {
  if (in_.size() < sizeof(FrameHeader)) return sizeof(FrameHeader) - in_.size();
  const auto header = HeaderOf(in_);
  if (header.Size > LimitOf(header.Of, answerLimit)) throw WireError("a frame that is too long");
  return sizeof header + header.Size - in_.size();
}

std::optional<Frame> Child::Receive(std::chrono::milliseconds wait, std::size_t answerLimit) {
  const auto end = std::chrono::steady_clock::now() + wait;
  for (;;) {
    const auto missing = Missing(answerLimit);
    if (missing == 0) break;
    if (ended_) return std::nullopt;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
    const auto before = in_.size();
    ended_ =
        !process_->Move(out_, in_, std::min(missing, kChunk), std::max(left, std::chrono::milliseconds(0)));
    if (in_.size() == before && !ended_ && left.count() <= 0) return std::nullopt;
  }
  Frame frame{HeaderOf(in_).Of, in_.substr(sizeof(FrameHeader))};
  in_.clear();
  return frame;
}

void Child::SayBye() {
  Send(Kind::Bye, {});
  Receive({}, 0);  // sends it
  process_->LetGo();
}

}  // namespace isolation
