#include "provider/BoundedText.h"

#include "system/Text.h"

namespace kestrel::addin {

void TBoundedText::SetUncut(std::string_view text) { text_ = text.substr(0, text.find('\0')); }

void TBoundedText::Set(std::string_view text) {
  SetUncut(text);
  text_ = Cut();
}

std::string TBoundedText::Cut() const {
  return Fits() ? text_ : FromCodePageLossy(TruncateInCodePage(*ToCodePageExact(text_), size_ - 1));
}

bool TBoundedText::Fits() const {
  const auto bytes = ToCodePageExact(text_);
  return !bytes || bytes->size() < size_;
}

}  // namespace kestrel::addin
