#include "subversion/svn/CommandOptions.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace kestrel::svnscc {

namespace {

/// Copies what `command` heeds.
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
  // Without a block there is nothing to find, and no need to look where the argument points.
  if (argument == nullptr || blocks_.empty()) return nullptr;
  if (CommandOptions* block = Live(argument)) return block;
  const void* held = nullptr;
  std::memcpy(&held, argument, sizeof held);
  return Live(held);
}

void OptionBlocks::Forget() {
  for (const auto& block : blocks_) *block = {};
  running_ = taken_ = std::nullopt;
}

void OptionBlocks::EndRun() {
  if (!running_) return;
  for (const auto& block : blocks_) CopyOption(*running_, {}, *block);
  running_.reset();
}

CommandOptions OptionBlocks::Take(void* argument, scc::SCCCommand command) {
  taken_ = command;
  CommandOptions taken;
  if (const CommandOptions* block = Find(argument)) CopyOption(command, *block, taken);
  return taken;
}

}  // namespace kestrel::svnscc
