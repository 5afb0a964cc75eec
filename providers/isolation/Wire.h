// What crosses between the library and the process of the provider: frames, and the archives that fill them.  The same
// bytes for 32 and 64 bits: lengths take four bytes, addresses and handles eight.
#pragma once

#include <cereal/cereal.hpp>
#include <cereal/types/string.hpp>
#include <cereal/types/vector.hpp>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include "provider/sccdefs.h"

namespace isolation {

/// The other side sent what it never sends: its memory is damaged, or it is another program.
struct WireError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The entry points, by their place in the table.
enum class Entry : std::uint8_t {
#define SCC_ISOLATED(name, ...) name,
#include "Entries.def"
#undef SCC_ISOLATED
  Count
};
/// The exported name, e.g. "SccCheckout".
const char* NameOf(Entry entry);

enum class Kind : std::uint32_t {
  Hello,  ///< to the library, first of all: empty, or why the provider cannot be loaded
  Call,   ///< to the provider: entry, arguments
  /// to the library: what an exception said (else empty), whether it is the last, result, arguments that may have changed
  Answer,
  Line,     ///< to the library: a line of text, kind first
  Ask,      ///< to the library: a message whose answer counts, like Line
  Item,     ///< to the library: a call of the list callback
  Reply,    ///< to the provider: the client's answer to Ask or Item
  Windows,  ///< to the library: how many windows the provider shows now
  Bye       ///< to the provider: end in good order
};

struct Frame {
  Kind Of = Kind::Bye;
  std::string Body;
};

/// In front of each body.
struct FrameHeader {
  std::uint32_t Size;
  Kind Of;
};

constexpr std::size_t kSmallFrame = 64 << 10;
constexpr std::size_t kLongestLine = 16 << 20;
constexpr std::size_t kMostNames = 65'536;
constexpr std::size_t kMostNameBytes = 32 << 20;

/// Writes a body.
class Out : public cereal::OutputArchive<Out, cereal::AllowEmptyClassElision> {
 public:
  Out() : OutputArchive(this) {}
  void Put(const void* bytes, std::size_t size) { Body.append(static_cast<const char*>(bytes), size); }

  std::string Body;
};

/// Reads a body.  Throws WireError where it ends too early, and before anything is allocated that is longer than the rest.
class In : public cereal::InputArchive<In, cereal::AllowEmptyClassElision> {
 public:
  explicit In(std::string_view body) : InputArchive(this), rest_(body) {}
  void Get(void* place, std::size_t size) {
    if (size > rest_.size()) throw WireError("frame too short");
    rest_.copy(static_cast<char*>(place), size);
    rest_.remove_prefix(size);
  }
  std::size_t Left() const { return rest_.size(); }

 private:
  std::string_view rest_;
};

template <class T>
std::enable_if_t<std::is_arithmetic_v<T>> CEREAL_SAVE_FUNCTION_NAME(Out& out, const T& value) {
  out.Put(&value, sizeof value);
}
template <class T>
std::enable_if_t<std::is_arithmetic_v<T>> CEREAL_LOAD_FUNCTION_NAME(In& in, T& value) {
  in.Get(&value, sizeof value);
}
template <class T>
void CEREAL_SAVE_FUNCTION_NAME(Out& out, const cereal::BinaryData<T>& data) {
  out.Put(data.data, static_cast<std::size_t>(data.size));
}
template <class T>
void CEREAL_LOAD_FUNCTION_NAME(In& in, cereal::BinaryData<T>& data) {
  in.Get(data.data, static_cast<std::size_t>(data.size));
}
template <class T>
void CEREAL_SAVE_FUNCTION_NAME(Out& out, const cereal::SizeTag<T>& tag) {
  const auto size = static_cast<std::uint32_t>(tag.size);
  out.Put(&size, sizeof size);
}
// cereal's own binary archive takes any length and allocates for it; the sender's memory may be damaged.
template <class T>
void CEREAL_LOAD_FUNCTION_NAME(In& in, cereal::SizeTag<T>& tag) {
  std::uint32_t size = 0;
  in.Get(&size, sizeof size);
  if (size > in.Left()) throw WireError("length beyond the frame");
  tag.size = size;
}

template <class... Values>
std::string Body(const Values&... values) {
  Out out;
  (out(values), ...);
  return std::move(out.Body);
}

/// A text that may be missing: a null pointer stays one.
class MaybeText {
 public:
  MaybeText() = default;
  explicit MaybeText(const char* text) : present_(text != nullptr), text_(text != nullptr ? text : "") {}
  MaybeText(const char* bytes, std::size_t size) : present_(true), text_(bytes, size) {}

  bool Present() const { return present_ != 0; }
  const char* Get() const { return Present() ? text_.c_str() : nullptr; }
  std::string& Bytes() { return text_; }

  template <class Archive>
  void serialize(Archive& archive) {
    archive(present_, text_);
  }

 private:
  std::uint8_t present_ = 0;
  std::string text_;
};

/// What became of the array of names that SccAddFromScc was called with.
enum class HandedArray : std::uint8_t { Unchanged, Null, New };

/// An array of names in one piece: each with a byte in front that tells it from a null pointer, and a terminator.
class NameList {
 public:
  void Add(const char* name);
  std::size_t Count() const { return count_; }
  /// Pointers to the names, and a null pointer behind the last.  They live as long as this object stays where it is.
  /// Throws WireError for bytes that are no list of Count() names.
  std::vector<const char*> Pointers() const;

  template <class Archive>
  void serialize(Archive& archive) {
    archive(count_, bytes_);
  }

 private:
  std::uint32_t count_ = 0;
  std::vector<char> bytes_;
};

}  // namespace isolation

CEREAL_REGISTER_ARCHIVE(isolation::Out)
CEREAL_REGISTER_ARCHIVE(isolation::In)
CEREAL_SETUP_ARCHIVE_TRAITS(isolation::In, isolation::Out)
