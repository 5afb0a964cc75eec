// A text of limited size, as the fields that travel to a provider and back are.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kestrel::addin {

/// Stands for a character buffer of `size` bytes, terminator included, in a provider: the bytes are counted there, in
/// the system's code page, and Str() gives UTF-8.
class TBoundedText {
 public:
  explicit TBoundedText(std::size_t size) : size_(size) {}

  std::size_t Size() const { return size_; }
  const std::string& Str() const { return text_; }
  /// Takes what a buffer would; a NUL inside `text` ends it.
  void Set(std::string_view text);
  /// Takes all of it, up to a NUL.
  void SetUntruncated(std::string_view text);
  /// What a buffer holds of it: what fits with its terminator, cut at a character border.
  std::string Truncated() const;
  /// Whether a buffer holds all of it.  Text that the code page lacks does, too: it is refused for that.
  bool Fits() const;

 private:
  std::size_t size_;
  std::string text_;
};

}  // namespace kestrel::addin
