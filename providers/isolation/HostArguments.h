// What the library and the program that it starts have agreed on.
#pragma once

namespace isolation {

constexpr int kChannelFd = 3;  ///< POSIX: the program's end of the channel

}  // namespace isolation
