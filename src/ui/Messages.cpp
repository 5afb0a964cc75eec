#include "ui/Messages.h"

#include <array>

namespace kestrel::addin {

std::string MessageTimeStamp(const std::tm& localTime) {
  std::array<char, 64> moment{};
  std::array<char, 64> half{};
  std::strftime(moment.data(), moment.size(), "%m/%d/%Y %I:%M:%S ", &localTime);
  // Many locales have no designator; without one a time on the 12-hour clock is ambiguous.
  if (std::strftime(half.data(), half.size(), "%p", &localTime) == 0)
    return std::string(moment.data()) + (localTime.tm_hour < 12 ? "AM" : "PM");
  return std::string(moment.data()) + half.data();
}

}  // namespace kestrel::addin
