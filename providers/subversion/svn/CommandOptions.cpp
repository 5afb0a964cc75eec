#include "subversion/svn/CommandOptions.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace kestrel::svnscc {

namespace {

/// Copies the options of `command`.
void CopyOption(scc::SCCCommand command, const CommandOptions& from, CommandOptions& to) {
  switch (command) {
    case scc::SCC_COMMAND_GET:
      to.GetRevision = from.GetRevision;
      break;
    case scc::SCC_COMMAND_CHECKOUT:
      to.StealLocks = from.StealLocks;
      break;
    case scc::SCC_COMMAND_CHECKIN:
      to.KeepUnchangedOut = from.KeepUnchangedOut;
      break;
    case scc::SCC_COMMAND_ADD:
      to.WithoutNeedsLock = from.WithoutNeedsLock;
      break;
    default:
      break;
  }
}

}  // namespace

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
  // Without blocks, the argument need not be read.
  if (argument == nullptr || blocks_.empty()) return nullptr;
  if (CommandOptions* block = Live(argument)) return block;
  const void* held = nullptr;
  std::memcpy(static_cast<void*>(&held), argument, sizeof held);
  return Live(held);
}

void OptionBlocks::Reset() {
  for (const auto& block : blocks_) *block = {};
  previous_ = current_ = std::nullopt;
}

void OptionBlocks::EndRun() {
  if (!previous_) return;
  for (const auto& block : blocks_) CopyOption(*previous_, {}, *block);
  previous_.reset();
}

CommandOptions OptionBlocks::Use(void* argument, scc::SCCCommand command) {
  current_ = command;
  CommandOptions options;
  if (const CommandOptions* block = Find(argument)) CopyOption(command, *block, options);
  return options;
}

}  // namespace kestrel::svnscc
