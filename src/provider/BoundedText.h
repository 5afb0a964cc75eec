// A text of limited size, as the fields that travel to a provider and back are.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Stands for a character buffer of `size` bytes, terminator included.
class TBoundedText {
 public:
  explicit TBoundedText(std::size_t size) : size_(size) {}

  std::size_t Size() const { return size_; }
  const std::string& Str() const { return text_; }
  /// Takes what fits with its terminator, cut at a character border; a NUL inside `text` ends it.
  void Set(std::string_view text);
  /// Takes what a provider left in the buffer: up to the first NUL, or all `size` bytes when it wrote no terminator.  The
  /// bytes are the provider's, Str() gives them as UTF-8.
  /// False when the text was longer and has been cut.
  bool TakeBack(std::string_view text);

 private:
  std::size_t size_;
  std::string text_;
};
