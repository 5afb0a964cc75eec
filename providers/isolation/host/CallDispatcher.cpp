#include "isolation/host/CallDispatcher.h"

#include <array>
#include <tuple>

#include "isolation/OptionsTable.h"
#include "isolation/host/ProviderArguments.h"
#include "system/SehFrame.h"

namespace kestrel::isolation {
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

/// Returns the provider's function, or null.
template <class Function>
Function* Find(EntryPoint entry) {
  return reinterpret_cast<Function*>(FindSymbol(library, NameOf(entry)));
}

bool faulted = false;

constexpr const char* kUnknownException = "an exception of an unknown kind";

/// Runs the provider's code; returns the text of an exception, or null.
template <class Action>
NullableText RunCatching(Action action) {
  try {
    const auto fault = CallWithSehFrame(action);
    faulted = faulted || !fault.empty();
    return fault.empty() ? NullableText() : NullableText(fault.c_str());
  } catch (const std::exception& error) {
    return NullableText(error.what() != nullptr && *error.what() != '\0' ? error.what() : kUnknownException);
  } catch (...) {
    return NullableText(kUnknownException);
  }
}

template <EntryPoint Called, class... Kinds>
std::string Invoke(FrameReader& in) {
  using Function = scc::Long SCC_CALL(decltype(std::declval<Kinds&>().Value())...);
  provider::Call call;
  std::tuple<Kinds...> arguments{Kinds(in, call)...};  // braces: constructed from left to right
  scc::Long result = scc::SCC_E_OPNOTSUPPORTED;
  NullableText thrown;
  if (auto* const function = Find<Function>(Called)) {
    result = scc::SCC_E_NONSPECIFICERROR;
    const CallScope scope;
    thrown = RunCatching([&] {
      result = std::apply([&](auto&... argument) { return function(argument.Value()...); }, arguments);
    });
  }
  FrameWriter out;
  out(thrown, faulted, result);
  std::apply([&](auto&... argument) { (argument.WriteResult(out), ...); }, arguments);
  return std::move(out.Body);
}

}  // namespace

std::string LoadProvider(const std::string& path, TDependencySearch search) {
  std::string error;
  library = LoadModule(path, &error, search);
  return library != nullptr ? std::string() : error;
}

bool HasFaulted() { return faulted; }

std::string DispatchCall(const std::string& call) {
  using namespace provider;
  static constexpr std::string (*kEntries[])(FrameReader&) = {
#define SCC_ENTRY_ARGUMENTS(name, ...) Invoke<EntryPoint::name __VA_OPT__(, ) __VA_ARGS__>,
#include "isolation/entry_arguments.def"
#undef SCC_ENTRY_ARGUMENTS
  };
  FrameReader in(call);
  const auto entry = Read<std::uint8_t>(in);
  if (entry >= std::size(kEntries)) throw WireError("no such entry point");
  return kEntries[entry](in);
}

}  // namespace kestrel::isolation
