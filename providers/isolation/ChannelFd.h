// POSIX: the descriptor through which the library and scc-provider-host communicate.
#pragma once

namespace kestrel::isolation {

constexpr int kChannelFd = 3;  ///< open in the host process when it starts

}  // namespace kestrel::isolation
