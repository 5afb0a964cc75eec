// The kinds of arguments on the client's side.  Write() adds an argument to a call, ReadResult() stores its new value from
// the answer, and Limit() is the greatest size of that value, in bytes.
#pragma once

#include <algorithm>
#include <cstring>

#include "isolation/BufferSizes.h"
#include "isolation/IsolationStrings.h"
#include "isolation/OwnerWindow.h"
#include "isolation/ProviderProxy.h"
#include "isolation/TryReadMemory.h"

namespace kestrel::isolation::client {

using scc::Long;

/// An argument without a result.
template <class Argument>
struct Input {
  using Arg = Argument;
  static std::size_t Limit(const ProviderProxy&) { return 0; }
  static void ReadResult(ProviderProxy&, FrameReader&, Arg) {}
};

struct Context : Input<void*> {
  static void Write(ProviderProxy& proxy, FrameWriter& out, Arg context) {
    out(context != nullptr ? proxy.Context : 0);
  }
};

struct Window : Input<scc::WindowHandle> {
  static void Write(ProviderProxy& proxy, FrameWriter& out, Arg window) {
    proxy.Owner = OwnerWindowId(window);
    out(proxy.Owner);
  }
};

struct Number : Input<Long> {
  static void Write(ProviderProxy&, FrameWriter& out, Arg number) { out(number); }
};

struct Command : Input<scc::SCCCommand> {
  static void Write(ProviderProxy&, FrameWriter& out, Arg command) { out(static_cast<Long>(command)); }
};

struct Text : Input<const char*> {
  static void Write(ProviderProxy&, FrameWriter& out, Arg text) { out(NullableText(text)); }
};

struct Count : Input<Long> {
  static void Write(ProviderProxy& proxy, FrameWriter& out, Arg count) {
    proxy.Count = count;
    out(count);
  }
};

struct Names : Input<const char**> {
  static void Write(ProviderProxy& proxy, FrameWriter& out, Arg names) {
    NameList list;
    for (std::size_t i = 0; names != nullptr && i < FileCount(proxy.Count); ++i) list.Add(names[i]);
    out(names != nullptr, list);
  }
};

/// One word for each file; some clients pass a single word for all files.
struct FileFlags : Input<Long*> {
  static void Write(ProviderProxy& proxy, FrameWriter& out, Arg flags) {
    std::vector<Long> words(flags != nullptr ? FileCount(proxy.Count) : 0);
    if (!words.empty() && !TryReadMemory(flags, words.data(), words.size() * sizeof(Long)))
      words.assign(words.size(), *flags);
    out(flags != nullptr, words);
  }
};

struct Options : Input<void*> {
  static void Write(ProviderProxy& proxy, FrameWriter& out, Arg options) {
    out(proxy.Options.KeyOf(options));
  }
};

struct OptionsCell : Input<void**> {
  static void Write(ProviderProxy& proxy, FrameWriter& out, Arg cell) { out(proxy.Options.KeyOfCell(cell)); }
  static void ReadResult(ProviderProxy& proxy, FrameReader& in, Arg cell) {
    std::uint32_t block = 0;
    in(block);
    if (cell != nullptr) *cell = proxy.Options.AddressOf(block);
  }
};

struct TextOut : Input<scc::TTextOutProc> {
  static void Write(ProviderProxy&, FrameWriter& out, Arg callback) { out(callback != nullptr); }
};

struct Populate : Input<scc::TPopListFunc> {
  static void Write(ProviderProxy& proxy, FrameWriter& out, Arg callback) {
    proxy.Populate = callback;
    out(callback != nullptr);
  }
  static void ReadResult(ProviderProxy& proxy, FrameReader&, Arg) { proxy.Populate = nullptr; }
};

struct CallerData : Input<void*> {
  static void Write(ProviderProxy& proxy, FrameWriter&, Arg data) { proxy.CallerData = data; }
};

/// The client gets a ProviderProxy, which keeps the provider's context.
struct NewContext : Input<void**> {
  static void Write(ProviderProxy&, FrameWriter&, Arg) {}
  static void ReadResult(ProviderProxy& proxy, FrameReader& in, Arg) { in(proxy.Context); }
};

/// One word, in and out.
struct Word : Input<Long*> {
  static void Write(ProviderProxy&, FrameWriter& out, Arg word) {
    out(word != nullptr, word != nullptr ? *word : 0);
  }
  static void ReadResult(ProviderProxy&, FrameReader& in, Arg word) {
    Long value = 0;
    in(value);
    if (word != nullptr) *word = value;
  }
};

/// A text that the provider may change, in a buffer of at least `Size` bytes.
template <std::size_t Size>
struct Buffer : Input<char*> {
  static std::size_t SizeFor(const ProviderProxy& proxy) {
    return proxy.HasAddInBuffers ? kAddInTextSize : Size;
  }
  static std::size_t Limit(const ProviderProxy&) { return kAddInTextSize; }
  static void Write(ProviderProxy& proxy, FrameWriter& out, Arg text) {
    const auto room = SizeFor(proxy);
    out(text != nullptr ? NullableText(text, proxy.HasAddInBuffers ? room : strnlen(text, room))
                        : NullableText());
  }
  /// The answer has the text up to the last changed byte.
  static void ReadResult(ProviderProxy& proxy, FrameReader& in, Arg text) {
    std::string changed;
    in(changed);
    if (text == nullptr) return;
    const auto room = SizeFor(proxy);
    std::memcpy(text, changed.data(), std::min(changed.size(), room));
    if (changed.size() > room) proxy.ReportOverrun();
  }
};

/// One status for each file, and the words that the provider wrote behind them.
struct Statuses : Input<Long*> {
  static std::size_t Limit(const ProviderProxy& proxy) {
    return (std::max(FileCount(proxy.Count), kAddInStatusCount) + kAddInStatusCount) * sizeof(Long);
  }
  static void Write(ProviderProxy& proxy, FrameWriter& out, Arg words) {
    const auto count = words != nullptr ? FileCount(proxy.Count) : 0;
    out(words != nullptr, std::vector<Long>(words, words + count));
  }
  static void ReadResult(ProviderProxy& proxy, FrameReader& in, Arg words) {
    std::vector<Long> changed;
    in(changed);
    const auto count = FileCount(proxy.Count);
    if (words == nullptr) return;
    if (changed.size() < count) throw WireError("too few words");
    std::copy_n(changed.begin(), count, words);
    const auto room = proxy.HasAddInBuffers ? kAddInStatusCount : count;
    if (changed.size() > room) proxy.ReportOverrun();
    for (std::size_t i = count; i < std::min(changed.size(), room); ++i)
      if (changed[i] != kUnwritten) words[i] = changed[i];
  }
};

/// The number of ReturnedNames; null to free them.
struct ReturnedCount : Input<Long*> {
  static void Write(ProviderProxy& proxy, FrameWriter& out, Arg count) {
    proxy.ReturnedCount = count;
    out(count != nullptr, count != nullptr ? *count : 0);
  }
};

/// The array of names of SccAddFromScc: the client's on the way in, the provider's on the way out.
struct ReturnedNames : Input<const char***> {
  static std::size_t Limit(const ProviderProxy&) { return kMaxNameBytes; }
  static void Write(ProviderProxy& proxy, FrameWriter& out, Arg names) {
    const bool own = proxy.ReturnedCount != nullptr && names != nullptr && *names != nullptr &&
                     *names != proxy.ReturnedPointers.data();
    NameList list;
    for (std::size_t i = 0; own && i < FileCount(*proxy.ReturnedCount); ++i) list.Add((*names)[i]);
    out(names != nullptr, list);
  }
  static void ReadResult(ProviderProxy& proxy, FrameReader& in, Arg names) {
    auto array = ReturnedArray::Unchanged;
    NameList list;
    Long count = 0;
    in(array, count, list);
    Long* const word = proxy.ReturnedCount;
    if (word == nullptr) proxy.ReturnedPointers.clear();
    if (names != nullptr && array == ReturnedArray::Null) *names = nullptr;
    if (names != nullptr && array == ReturnedArray::New) {
      if (list.Count() > kMaxNames) throw WireError("too many names");
      proxy.Returned = std::move(list);
      proxy.ReturnedPointers = proxy.Returned.Pointers();
      *names = proxy.ReturnedPointers.data();
    }
    // The client must not read beyond the names that there are.
    const Long most = array == ReturnedArray::New    ? static_cast<Long>(proxy.Returned.Count())
                      : array == ReturnedArray::Null ? 0
                      : word != nullptr              ? *word
                                                     : 0;
    if (word != nullptr) *word = std::clamp(count, 0, std::max(most, 0));
  }
};

}  // namespace kestrel::isolation::client
