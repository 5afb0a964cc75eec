// The kinds of arguments on the provider's side.  Each is made from the call, is what the provider is called with, and
// writes into the answer what came of it.
#pragma once

#include <array>
#include <cstring>
#include <map>
#include <memory>

#include "Callbacks.h"
#include "HostOwner.h"
#include "Options.h"
#include "Rooms.h"

namespace isolation::provider {

using scc::Long;

/// What the arguments of one call know of each other.
struct Call {
  Long Count = 0;
  Long* HandedCount = nullptr;
};

template <class T>
T Read(In& in) {
  T value{};
  in(value);
  return value;
}

struct Context {
  Context(In& in, Call&)
      : context_(reinterpret_cast<void*>(static_cast<std::uintptr_t>(Read<std::uint64_t>(in)))) {}
  void* Get() { return context_; }
  void Return(Out&) {}

 private:
  void* context_;
};

struct Window {
  Window(In& in, Call&) : window_(TakeOwner(Read<std::uint64_t>(in))) {}
  scc::WindowHandle Get() { return window_; }
  void Return(Out&) {}

 private:
  scc::WindowHandle window_;
};

struct Number {
  Number(In& in, Call&) : number_(Read<Long>(in)) {}
  Long Get() { return number_; }
  void Return(Out&) {}

 private:
  Long number_;
};

struct Command : Number {
  using Number::Number;
  scc::SCCCommand Get() { return static_cast<scc::SCCCommand>(Number::Get()); }
};

struct Text {
  Text(In& in, Call&) { in(text_); }
  const char* Get() { return text_.Get(); }
  void Return(Out&) {}

 private:
  MaybeText text_;
};

struct Count : Number {
  Count(In& in, Call& call) : Number(in, call) { call.Count = Get(); }
};

struct Names {
  Names(In& in, Call&) {
    in(present_, list_);
    pointers_ = list_.Pointers();
  }
  const char** Get() { return present_ ? pointers_.data() : nullptr; }
  void Return(Out&) {}

 private:
  bool present_ = false;
  NameList list_;
  std::vector<const char*> pointers_;
};

struct FileFlags {
  FileFlags(In& in, Call&) {
    in(present_, words_);
    words_.push_back(0);
  }
  Long* Get() { return present_ ? words_.data() : nullptr; }
  void Return(Out&) {}

 private:
  bool present_ = false;
  std::vector<Long> words_;
};

/// The blocks that the provider has made, by number, and a twin for each cell of the client.
class OptionBlocks {
 public:
  /// What providers take for the client's cell may be read further than the pointer in it.
  using Twin = std::array<void*, 16>;

  static void* At(std::uint32_t number) { return number != 0 ? blocks_.at(number - 1) : nullptr; }
  static std::uint32_t NumberOf(void* block);
  static Twin& TwinOf(const OptionsKey& key) {
    Twin& twin = twins_[key.Cell];
    twin.front() = At(key.Block);
    return twin;
  }

 private:
  static inline std::vector<void*> blocks_;
  static inline std::map<std::uint64_t, Twin> twins_;
};

struct Options {
  Options(In& in, Call&) {
    const auto key = Read<OptionsKey>(in);
    options_ = key.Cell != 0 ? OptionBlocks::TwinOf(key).data() : OptionBlocks::At(key.Block);
  }
  void* Get() { return options_; }
  void Return(Out&) {}

 private:
  void* options_;
};

struct OptionsCell {
  OptionsCell(In& in, Call&) {
    const auto key = Read<OptionsKey>(in);
    cell_ = key.Cell != 0 ? OptionBlocks::TwinOf(key).data() : nullptr;
  }
  void** Get() { return cell_; }
  void Return(Out& out) { out(cell_ != nullptr ? OptionBlocks::NumberOf(*cell_) : 0U); }

 private:
  void** cell_;
};

struct TextOut {
  TextOut(In& in, Call&) : present_(Read<bool>(in)) {}
  scc::TTextOutProc Get() { return present_ ? TextOutProc : nullptr; }
  void Return(Out&) {}

 private:
  bool present_;
};

struct Populate {
  Populate(In& in, Call&) : present_(Read<bool>(in)) {}
  scc::TPopListFunc Get() { return present_ ? PopulateProc : nullptr; }
  void Return(Out&) {}

 private:
  bool present_;
};

struct CallerData {
  CallerData(In&, Call&) {}
  void* Get() { return nullptr; }
  void Return(Out&) {}
};

struct NewContext {
  NewContext(In&, Call&) {}
  void** Get() { return &context_; }
  void Return(Out& out) { out(static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(context_))); }

 private:
  void* context_ = nullptr;
};

/// Providers built where `long` has 64 bits write eight bytes.
struct Word {
  Word(In& in, Call&) { in(present_, word_[0]); }
  Long* Get() { return present_ ? word_ : nullptr; }
  void Return(Out& out) { out(word_[0]); }

 private:
  bool present_ = false;
  alignas(8) Long word_[2] = {};
};

template <std::size_t Size>
struct Buffer {
  Buffer(In& in, Call&) {
    MaybeText text;
    in(text);
    present_ = text.Present();
    given_ = std::move(text.Bytes());
    given_.resize(kAddInText);
    bytes_ = given_;
  }
  char* Get() { return present_ ? bytes_.data() : nullptr; }
  void Return(Out& out) {
    std::size_t changed = bytes_.size();
    while (changed > 0 && bytes_[changed - 1] == given_[changed - 1]) --changed;
    // What the client's buffer has behind its text is not known, so the terminator goes along.
    if (changed > 0 && changed < Size && bytes_[changed] == '\0') ++changed;
    bytes_.resize(changed);
    out(bytes_);
  }

 private:
  bool present_;
  std::string given_, bytes_;
};

struct Statuses {
  Statuses(In& in, Call& call) : count_(CountOf(call.Count)) {
    in(present_, words_);
    words_.resize(std::max(words_.size(), kMostNames) + kAddInWords - kMostNames, kUntouched);
  }
  Long* Get() { return present_ ? words_.data() : nullptr; }
  void Return(Out& out) {
    std::size_t touched = words_.size();
    while (touched > count_ && words_[touched - 1] == kUntouched) --touched;
    words_.resize(present_ ? touched : 0);
    out(words_);
  }

 private:
  std::size_t count_;
  bool present_ = false;
  std::vector<Long> words_;
};

struct HandedCount {
  HandedCount(In& in, Call& call) {
    in(present_, word_->front());
    call.HandedCount = Get();
  }
  Long* Get() { return present_ ? word_->data() : nullptr; }
  void Return(Out&) {}

 private:
  bool present_ = false;
  std::unique_ptr<std::array<Long, 2>> word_ = std::make_unique<std::array<Long, 2>>();
};

struct HandedNames {
  HandedNames(In& in, Call& call) : count_(call.HandedCount) {
    in(present_, own_);
    pointers_ = own_.Pointers();
    array_ = count_ == nullptr ? handed_ : own_.Count() > 0 ? pointers_.data() : nullptr;
    given_ = array_;
  }
  const char*** Get() { return present_ ? &array_ : nullptr; }
  void Return(Out& out) {
    NameList list;
    auto became = HandedArray::Unchanged;
    const Long count = count_ != nullptr ? *count_ : 0;
    if (array_ == nullptr || count_ == nullptr) {
      became = HandedArray::Null;
      handed_ = nullptr;
    } else if (array_ != given_) {
      became = HandedArray::New;
      handed_ = array_;
      for (std::size_t i = 0; i < std::min(CountOf(count), kMostNames); ++i) list.Add(array_[i]);
    }
    out(became, list, count);
  }

 private:
  static inline const char** handed_ = nullptr;  // the provider's, until the client gives it back

  Long* count_;
  bool present_ = false;
  NameList own_;
  std::vector<const char*> pointers_;
  const char** array_ = nullptr;
  const char** given_ = nullptr;
};

}  // namespace isolation::provider
