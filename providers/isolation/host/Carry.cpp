#include "Carry.h"

#include <array>
#include <tuple>

#include "Options.h"
#include "Provider.h"
#include "host/Guard.h"

namespace isolation {
namespace provider {

std::uint32_t OptionBlocks::NumberOf(void* block) {
  if (block == nullptr) return 0;
  const auto known = std::find(blocks_.begin(), blocks_.end(), block);
  const auto place = known - blocks_.begin();
  if (known == blocks_.end()) blocks_.push_back(block);
  return static_cast<std::uint32_t>(place + 1);
}

}  // namespace provider

namespace {

TModuleHandle library;

/// The provider's function, null where it has none.
template <class Function>
Function* Find(Entry entry) {
  return reinterpret_cast<Function*>(FindSymbol(library, NameOf(entry)));
}

bool damaged = false;

constexpr const char* kUnknownException = "an exception of an unknown kind";

/// Runs the provider's code; what it threw, or a missing text.
template <class Body>
MaybeText Guarded(Body body) {
  try {
    const auto fault = CallWithSehFrame(body);
    damaged = damaged || !fault.empty();
    return fault.empty() ? MaybeText() : MaybeText(fault.c_str());
  } catch (const std::exception& error) {
    return MaybeText(error.what() != nullptr && *error.what() != '\0' ? error.what() : kUnknownException);
  } catch (...) {
    return MaybeText(kUnknownException);
  }
}

template <Entry Called, class... Kinds>
std::string CarryOut(In& in) {
  using Function = scc::Long SCC_CALL(decltype(std::declval<Kinds&>().Get())...);
  provider::Call call;
  std::tuple<Kinds...> arguments{Kinds(in, call)...};  // in braces they are made from left to right
  scc::Long result = scc::SCC_E_OPNOTSUPPORTED;
  MaybeText thrown;
  if (auto* const function = Find<Function>(Called)) {
    result = scc::SCC_E_NONSPECIFICERROR;
    const Answerable answerable;
    thrown = Guarded([&] {
      result = std::apply([&](auto&... argument) { return function(argument.Get()...); }, arguments);
    });
  }
  Out out;
  out(thrown, damaged, result);
  std::apply([&](auto&... argument) { (argument.Return(out), ...); }, arguments);
  return std::move(out.Body);
}

}  // namespace

std::string LoadProvider(const std::string& path) {
  std::string error;
  library = LoadModule(path, &error);
  return library != nullptr ? std::string() : error;
}

bool IsDamaged() { return damaged; }

std::string Carry(const std::string& call) {
  using namespace provider;
  static constexpr std::string (*kEntries[])(In&) = {
#define SCC_ISOLATED(name, ...) CarryOut<Entry::name __VA_OPT__(, ) __VA_ARGS__>,
#include "Entries.def"
#undef SCC_ISOLATED
  };
  In in(call);
  const auto entry = Read<std::uint8_t>(in);
  if (entry >= std::size(kEntries)) throw WireError("no such entry point");
  return kEntries[entry](in);
}

}  // namespace isolation
