// Text limited by the size of a provider's buffer.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kestrel::addin {

/// UTF-8 text for a provider's buffer of `size` bytes, terminator included.  Bytes are counted in the active code page.
class TBoundedText {
 public:
  explicit TBoundedText(std::size_t size) : size_(size) {}

  std::size_t Size() const { return size_; }
  const std::string& Str() const { return text_; }
  /// Sets the text up to its first NUL, truncated to the buffer.
  void Set(std::string_view text);
  /// Sets the text up to its first NUL.
  void SetUntruncated(std::string_view text);
  /// The text truncated to the buffer, without splitting a character.
  std::string Truncated() const;
  /// Whether the text fits the buffer.  True for text that the code page lacks, which is rejected for that reason later.
  bool Fits() const;

 private:
  std::size_t size_;
  std::string text_;
};

}  // namespace kestrel::addin
