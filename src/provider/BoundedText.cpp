#include "provider/BoundedText.h"

#include "system/Text.h"

namespace kestrel::addin {

void TBoundedText::SetUntruncated(std::string_view text) { text_ = text.substr(0, text.find('\0')); }

void TBoundedText::Set(std::string_view text) {
  SetUntruncated(text);
  text_ = Truncated();
}

std::string TBoundedText::Truncated() const {
  const auto bytes = ToCodePageExact(text_);
  return bytes && bytes->size() >= size_ ? FromCodePageLossy(TruncateInCodePage(*bytes, size_ - 1)) : text_;
}

bool TBoundedText::Fits() const {
  const auto bytes = ToCodePageExact(text_);
  return !bytes || bytes->size() < size_;
}

}  // namespace kestrel::addin
