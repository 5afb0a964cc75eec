// The kinds of arguments on the client's side.  Give puts an argument into a call, Take changes what the answer says;
// Limit is what it may take there, in bytes.
#pragma once

#include <algorithm>
#include <cstring>

#include "IsolationStrings.h"
#include "OwnMemory.h"
#include "Owner.h"
#include "Rooms.h"
#include "Session.h"

namespace isolation::client {

using scc::Long;

/// Nothing of it comes back.
template <class Argument>
struct Input {
  using Arg = Argument;
  static std::size_t Limit(const Session&) { return 0; }
  static void Take(Session&, In&, Arg) {}
};

struct Context : Input<void*> {
  static void Give(Session& session, Out& out, Arg context) { out(context != nullptr ? session.Context : 0); }
};

struct Window : Input<scc::WindowHandle> {
  static void Give(Session&, Out& out, Arg window) { out(static_cast<std::uint64_t>(OwnerFor(window))); }
};

struct Number : Input<Long> {
  static void Give(Session&, Out& out, Arg number) { out(number); }
};

struct Command : Input<scc::SCCCommand> {
  static void Give(Session&, Out& out, Arg command) { out(static_cast<Long>(command)); }
};

struct Text : Input<const char*> {
  static void Give(Session&, Out& out, Arg text) { out(MaybeText(text)); }
};

struct Count : Input<Long> {
  static void Give(Session& session, Out& out, Arg count) {
    session.Count = count;
    out(count);
  }
};

struct Names : Input<const char**> {
  static void Give(Session& session, Out& out, Arg names) {
    NameList list;
    for (std::size_t i = 0; names != nullptr && i < CountOf(session.Count); ++i) list.Add(names[i]);
    out(names != nullptr, list);
  }
};

/// One word for each file; some clients have only one for all.
struct FileFlags : Input<Long*> {
  static void Give(Session& session, Out& out, Arg flags) {
    std::vector<Long> words(flags != nullptr ? CountOf(session.Count) : 0);
    if (!words.empty() && !ReadOwnMemory(flags, words.data(), words.size() * sizeof(Long)))
      words.assign(words.size(), *flags);
    out(flags != nullptr, words);
  }
};

struct Options : Input<void*> {
  static void Give(Session& session, Out& out, Arg options) { out(session.Options.Of(options)); }
};

struct OptionsCell : Input<void**> {
  static void Give(Session& session, Out& out, Arg cell) { out(session.Options.OfCell(cell)); }
  static void Take(Session& session, In& in, Arg cell) {
    std::uint32_t block = 0;
    in(block);
    if (cell != nullptr) *cell = session.Options.AddressOf(block);
  }
};

struct TextOut : Input<scc::TTextOutProc> {
  static void Give(Session&, Out& out, Arg callback) { out(callback != nullptr); }
};

struct Populate : Input<scc::TPopListFunc> {
  static void Give(Session& session, Out& out, Arg callback) {
    session.Populate = callback;
    out(callback != nullptr);
  }
  static void Take(Session& session, In&, Arg) { session.Populate = nullptr; }
};

struct CallerData : Input<void*> {
  static void Give(Session& session, Out&, Arg data) { session.CallerData = data; }
};

/// The client's is a session; the provider's own stays in it.
struct NewContext : Input<void**> {
  static void Give(Session&, Out&, Arg) {}
  static void Take(Session& session, In& in, Arg) { in(session.Context); }
};

/// One word in and out.
struct Word : Input<Long*> {
  static void Give(Session&, Out& out, Arg word) { out(word != nullptr, word != nullptr ? *word : 0); }
  static void Take(Session&, In& in, Arg word) {
    Long value = 0;
    in(value);
    if (word != nullptr) *word = value;
  }
};

/// A text that the provider may change.
template <std::size_t Size>
struct Buffer : Input<char*> {
  static std::size_t RoomIn(const Session& session) { return session.RoomIsKnown ? kAddInText : Size; }
  static std::size_t Limit(const Session&) { return kAddInText; }
  static void Give(Session& session, Out& out, Arg text) {
    const auto room = RoomIn(session);
    out(text != nullptr ? MaybeText(text, session.RoomIsKnown ? room : strnlen(text, room)) : MaybeText());
  }
  /// What comes is the text up to the last byte that changed.
  static void Take(Session& session, In& in, Arg text) {
    std::string changed;
    in(changed);
    if (text == nullptr) return;
    const auto room = RoomIn(session);
    std::memcpy(text, changed.data(), std::min(changed.size(), room));
    if (changed.size() > room) session.WarnOfOverrun();
  }
};

/// A word for each file, and what the provider wrote behind them.
struct Statuses : Input<Long*> {
  static std::size_t Limit(const Session& session) {
    return (std::max(CountOf(session.Count), kAddInWords) + kAddInWords) * sizeof(Long);
  }
  static void Give(Session& session, Out& out, Arg words) {
    const auto count = words != nullptr ? CountOf(session.Count) : 0;
    out(words != nullptr, std::vector<Long>(words, words + count));
  }
  static void Take(Session& session, In& in, Arg words) {
    std::vector<Long> changed;
    in(changed);
    const auto count = CountOf(session.Count);
    if (words == nullptr) return;
    if (changed.size() < count) throw WireError("too few words");
    std::copy_n(changed.begin(), count, words);
    const auto room = session.RoomIsKnown ? kAddInWords : count;
    if (changed.size() > room) session.WarnOfOverrun();
    for (std::size_t i = count; i < std::min(changed.size(), room); ++i)
      if (changed[i] != kUntouched) words[i] = changed[i];
  }
};

/// How many names HandedNames has; a null pointer gives them back.
struct HandedCount : Input<Long*> {
  static void Give(Session& session, Out& out, Arg count) {
    session.HandedCount = count;
    out(count != nullptr, count != nullptr ? *count : 0);
  }
};

/// An array of the client's own goes in, one of the provider's comes back.
struct HandedNames : Input<const char***> {
  static std::size_t Limit(const Session&) { return kMostNameBytes; }
  static void Give(Session& session, Out& out, Arg names) {
    const bool own = session.HandedCount != nullptr && names != nullptr && *names != nullptr &&
                     *names != session.HandedPointers.data();
    NameList list;
    for (std::size_t i = 0; own && i < CountOf(*session.HandedCount); ++i) list.Add((*names)[i]);
    out(names != nullptr, list);
  }
  static void Take(Session& session, In& in, Arg names) {
    auto array = HandedArray::Unchanged;
    NameList list;
    Long count = 0;
    in(array, count, list);
    Long* const word = session.HandedCount;
    if (word == nullptr) session.HandedPointers.clear();
    if (names != nullptr && array == HandedArray::Null) *names = nullptr;
    if (names != nullptr && array == HandedArray::New) {
      if (list.Count() > kMostNames) throw WireError("too many names");
      session.Handed = std::move(list);
      session.HandedPointers = session.Handed.Pointers();
      *names = session.HandedPointers.data();
    }
    // Whatever the provider says, the client reads no further than there are names.
    const Long most = array == HandedArray::New    ? static_cast<Long>(session.Handed.Count())
                      : array == HandedArray::Null ? 0
                      : word != nullptr            ? *word
                                                   : 0;
    if (word != nullptr) *word = std::clamp(count, 0, std::max(most, 0));
  }
};

}  // namespace isolation::client
