// The wire format between the library and the host process: frames, and the archives for their bodies.  It is the same for
// 32 and 64 bits: lengths have four bytes, addresses and handles eight.
#pragma once

#include <cereal/cereal.hpp>
#include <cereal/types/string.hpp>
#include <cereal/types/vector.hpp>
#include <chrono>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include "scc/sccdefs.h"

namespace kestrel::isolation {

/// Malformed data: the memory of the other side is damaged, or it is another program.
struct WireError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The entry points, in the order of the table.
enum class EntryPoint : std::uint8_t {
#define SCC_ENTRY_ARGUMENTS(name, ...) name,
#include "isolation/entry_arguments.def"
#undef SCC_ENTRY_ARGUMENTS
  Count
};
/// The exported name, e.g. "SccCheckout".
const char* NameOf(EntryPoint entry);

enum class FrameKind : std::uint32_t {
  // to the host
  Call,      ///< entry point, arguments
  Reply,     ///< the client's return value for a Query or ListItem
  Shutdown,  ///< ends the host in good order
  // to the library
  Hello,  ///< the first frame: empty, or why the provider cannot be loaded
  /// text of an exception (null for none), whether the host ends because of it, result, output arguments
  Answer,
  Message,   ///< for the text callback: kind, text; no reply
  Query,     ///< the same with a Reply
  ListItem,  ///< for the list callback; with a Reply
  /// number of windows that the provider shows; repeated every kWindowCountInterval while a call runs and there are any
  WindowCount
};

struct Frame {
  FrameKind Kind = FrameKind::Shutdown;
  std::string Body;
};

/// Precedes each body; Size is that of the body in bytes.
struct FrameHeader {
  std::uint32_t Size;
  FrameKind Kind;
};

constexpr std::chrono::milliseconds kWindowCountInterval{1000};
constexpr std::size_t kSmallFrameSize = 64 << 10;
constexpr std::size_t kMaxMessageSize = 16 << 20;
constexpr std::size_t kMaxNames = 65'536;
constexpr std::size_t kMaxNameBytes = 32 << 20;

/// Serialises the body of a frame.
class FrameWriter : public cereal::OutputArchive<FrameWriter, cereal::AllowEmptyClassElision> {
 public:
  FrameWriter() : OutputArchive(this) {}
  void Put(const void* bytes, std::size_t size) { Body.append(static_cast<const char*>(bytes), size); }

  std::string Body;
};

/// Deserialises the body of a frame.  Throws WireError if it is too short, before it allocates more than the rest of it.
class FrameReader : public cereal::InputArchive<FrameReader, cereal::AllowEmptyClassElision> {
 public:
  explicit FrameReader(std::string_view body) : InputArchive(this), rest_(body) {}
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
std::enable_if_t<std::is_arithmetic_v<T>> CEREAL_SAVE_FUNCTION_NAME(FrameWriter& out, const T& value) {
  out.Put(&value, sizeof value);
}
template <class T>
std::enable_if_t<std::is_arithmetic_v<T>> CEREAL_LOAD_FUNCTION_NAME(FrameReader& in, T& value) {
  in.Get(&value, sizeof value);
}
template <class T>
void CEREAL_SAVE_FUNCTION_NAME(FrameWriter& out, const cereal::BinaryData<T>& data) {
  out.Put(data.data, static_cast<std::size_t>(data.size));
}
template <class T>
void CEREAL_LOAD_FUNCTION_NAME(FrameReader& in, cereal::BinaryData<T>& data) {
  in.Get(data.data, static_cast<std::size_t>(data.size));
}
template <class T>
void CEREAL_SAVE_FUNCTION_NAME(FrameWriter& out, const cereal::SizeTag<T>& tag) {
  const auto size = static_cast<std::uint32_t>(tag.size);
  out.Put(&size, sizeof size);
}
// cereal's binary archive allocates for any length, but a damaged sender may send a wrong one.
template <class T>
void CEREAL_LOAD_FUNCTION_NAME(FrameReader& in, cereal::SizeTag<T>& tag) {
  std::uint32_t size = 0;
  in.Get(&size, sizeof size);
  if (size > in.Left()) throw WireError("length beyond the frame");
  tag.size = size;
}

template <class... Values>
std::string Serialize(const Values&... values) {
  FrameWriter out;
  (out(values), ...);
  return std::move(out.Body);
}

/// A text of the API, which may be a null pointer.
class NullableText {
 public:
  NullableText() = default;
  explicit NullableText(const char* text) : present_(text != nullptr), text_(text != nullptr ? text : "") {}
  NullableText(const char* bytes, std::size_t size) : present_(true), text_(bytes, size) {}

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

/// What SccAddFromScc did with the array of names that it was called with.
enum class ReturnedArray : std::uint8_t { Unchanged, Null, New };

/// An array of names in one block: for each a byte that is 0 for a null pointer, the name, and a terminator.
class NameList {
 public:
  void Add(const char* name);
  std::size_t Count() const { return count_; }
  /// Returns pointers to the names, followed by a null pointer.  They are valid until this object is changed, moved or
  /// destroyed.  Throws WireError if the block is not a list of Count() names.
  std::vector<const char*> Pointers() const;

  template <class Archive>
  void serialize(Archive& archive) {
    archive(count_, bytes_);
  }

 private:
  std::uint32_t count_ = 0;
  std::vector<char> bytes_;
};

}  // namespace kestrel::isolation

CEREAL_REGISTER_ARCHIVE(kestrel::isolation::FrameWriter)
CEREAL_REGISTER_ARCHIVE(kestrel::isolation::FrameReader)
CEREAL_SETUP_ARCHIVE_TRAITS(kestrel::isolation::FrameReader, kestrel::isolation::FrameWriter)
