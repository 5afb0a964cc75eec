#include "CommandOptions.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace svnscc {

bool HasOptions(scc::SCCCommand command) {
  return command == scc::SCC_COMMAND_GET || command == scc::SCC_COMMAND_CHECKOUT ||
         command == scc::SCC_COMMAND_CHECKIN || command == scc::SCC_COMMAND_ADD;
}

CommandOptions* OptionBlocks::Make() {
  blocks_.push_back(std::make_unique<CommandOptions>());
  return blocks_.back().get();
}

CommandOptions* OptionBlocks::Live(const void* block) const {
  const auto found =
      std::find_if(blocks_.begin(), blocks_.end(), [&](const auto& b) { return b.get() == block; });
  return found != blocks_.end() ? found->get() : nullptr;
}

CommandOptions* OptionBlocks::Find(void* argument) const {
  // Without a block there is nothing to find, and no need to look where the argument points.
  if (argument == nullptr || blocks_.empty()) return nullptr;
  if (CommandOptions* block = Live(argument)) return block;
  const void* held = nullptr;
  std::memcpy(&held, argument, sizeof held);
  return Live(held);
}

CommandOptions OptionBlocks::Take(void* argument, scc::SCCCommand command) const {
  CommandOptions taken;
  CommandOptions* block = Find(argument);
  if (block == nullptr) return taken;
  switch (command) {
    case scc::SCC_COMMAND_GET:
      taken.GetRevision = block->GetRevision;
      break;
    case scc::SCC_COMMAND_CHECKOUT:
      taken.StealLocks = block->StealLocks;
      break;
    case scc::SCC_COMMAND_CHECKIN:
      taken.KeepUnchangedOut = block->KeepUnchangedOut;
      break;
    case scc::SCC_COMMAND_ADD:
      taken.WithoutNeedsLock = block->WithoutNeedsLock;
      break;
    default:
      break;
  }
  return taken;
}

}  // namespace svnscc
