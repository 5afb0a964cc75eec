// The kinds of arguments on the provider's side.  The constructor reads an argument from a call, Value() is what the provider
// gets, and WriteResult() adds the new value to the answer.
#pragma once

#include <array>
#include <cstring>
#include <map>
#include <memory>

#include "isolation/BufferSizes.h"
#include "isolation/OptionsTable.h"
#include "isolation/host/Callbacks.h"
#include "isolation/host/WindowWatch.h"

namespace kestrel::isolation::provider {

using scc::Long;

/// Shared by the arguments of one call.
struct Call {
  Long Count = 0;
  Long* ReturnedCount = nullptr;
};

template <class T>
T Read(FrameReader& in) {
  T value{};
  in(value);
  return value;
}

struct Context {
  Context(FrameReader& in, Call&)
      : context_(reinterpret_cast<void*>(static_cast<std::uintptr_t>(Read<std::uint64_t>(in)))) {}
  void* Value() { return context_; }
  void WriteResult(FrameWriter&) {}

 private:
  void* context_;
};

struct Window {
  Window(FrameReader& in, Call&) : window_(SetOwnerWindow(Read<std::uint64_t>(in))) {}
  scc::WindowHandle Value() { return window_; }
  void WriteResult(FrameWriter&) {}

 private:
  scc::WindowHandle window_;
};

struct Number {
  Number(FrameReader& in, Call&) : number_(Read<Long>(in)) {}
  Long Value() { return number_; }
  void WriteResult(FrameWriter&) {}

 private:
  Long number_;
};

struct Command : Number {
  using Number::Number;
  scc::SCCCommand Value() { return static_cast<scc::SCCCommand>(Number::Value()); }
};

struct Text {
  Text(FrameReader& in, Call&) { in(text_); }
  const char* Value() { return text_.Get(); }
  void WriteResult(FrameWriter&) {}

 private:
  NullableText text_;
};

struct Count : Number {
  Count(FrameReader& in, Call& call) : Number(in, call) { call.Count = Value(); }
};

struct Names {
  Names(FrameReader& in, Call&) {
    in(present_, list_);
    pointers_ = list_.Pointers();
  }
  const char** Value() { return present_ ? pointers_.data() : nullptr; }
  void WriteResult(FrameWriter&) {}

 private:
  bool present_ = false;
  NameList list_;
  std::vector<const char*> pointers_;
};

struct FileFlags {
  FileFlags(FrameReader& in, Call&) {
    in(present_, words_);
    words_.push_back(0);
  }
  Long* Value() { return present_ ? words_.data() : nullptr; }
  void WriteResult(FrameWriter&) {}

 private:
  bool present_ = false;
  std::vector<Long> words_;
};

/// The options blocks of the provider by number, and a copy of each of the client's cells.
class OptionBlocks {
 public:
  /// Larger than the cell, because providers may take it for an options block and read further.
  using CellCopy = std::array<void*, 16>;

  static void* At(std::uint32_t number) { return number != 0 ? blocks_.at(number - 1) : nullptr; }
  static std::uint32_t NumberOf(void* block);
  static CellCopy& CellOf(const OptionsKey& key) {
    CellCopy& cell = cells_[key.Cell];
    cell.front() = At(key.Block);
    return cell;
  }

 private:
  static inline std::vector<void*> blocks_;
  static inline std::map<std::uint64_t, CellCopy> cells_;
};

struct Options {
  Options(FrameReader& in, Call&) {
    const auto key = Read<OptionsKey>(in);
    options_ = key.Cell != 0 ? OptionBlocks::CellOf(key).data() : OptionBlocks::At(key.Block);
  }
  void* Value() { return options_; }
  void WriteResult(FrameWriter&) {}

 private:
  void* options_;
};

struct OptionsCell {
  OptionsCell(FrameReader& in, Call&) {
    const auto key = Read<OptionsKey>(in);
    cell_ = key.Cell != 0 ? OptionBlocks::CellOf(key).data() : nullptr;
  }
  void** Value() { return cell_; }
  void WriteResult(FrameWriter& out) { out(cell_ != nullptr ? OptionBlocks::NumberOf(*cell_) : 0U); }

 private:
  void** cell_;
};

struct TextOut {
  TextOut(FrameReader& in, Call&) : present_(Read<bool>(in)) {}
  scc::TTextOutProc Value() { return present_ ? TextOutProc : nullptr; }
  void WriteResult(FrameWriter&) {}

 private:
  bool present_;
};

struct Populate {
  Populate(FrameReader& in, Call&) : present_(Read<bool>(in)) {}
  scc::TPopListFunc Value() { return present_ ? PopulateProc : nullptr; }
  void WriteResult(FrameWriter&) {}

 private:
  bool present_;
};

struct CallerData {
  CallerData(FrameReader&, Call&) {}
  void* Value() { return nullptr; }
  void WriteResult(FrameWriter&) {}
};

struct NewContext {
  NewContext(FrameReader&, Call&) {}
  void** Value() { return &context_; }
  void WriteResult(FrameWriter& out) {
    out(static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(context_)));
  }

 private:
  void* context_ = nullptr;
};

/// Has eight bytes for providers that were built with a 64-bit `long`.
struct Word {
  Word(FrameReader& in, Call&) { in(present_, word_[0]); }
  Long* Value() { return present_ ? word_ : nullptr; }
  void WriteResult(FrameWriter& out) { out(word_[0]); }

 private:
  bool present_ = false;
  alignas(8) Long word_[2] = {};
};

template <std::size_t Size>
struct Buffer {
  Buffer(FrameReader& in, Call&) {
    NullableText text;
    in(text);
    present_ = text.Present();
    given_ = std::move(text.Bytes());
    given_.resize(kAddInTextSize);
    bytes_ = given_;
  }
  char* Value() { return present_ ? bytes_.data() : nullptr; }
  void WriteResult(FrameWriter& out) {
    std::size_t changed = bytes_.size();
    while (changed > 0 && bytes_[changed - 1] == given_[changed - 1]) --changed;
    // The client's buffer may hold anything behind its text, so the terminator is included.
    if (changed > 0 && changed < Size && bytes_[changed] == '\0') ++changed;
    bytes_.resize(changed);
    out(bytes_);
  }

 private:
  bool present_;
  std::string given_, bytes_;
};

struct Statuses {
  Statuses(FrameReader& in, Call& call) : count_(FileCount(call.Count)) {
    in(present_, words_);
    words_.resize(std::max(words_.size(), kMaxNames) + kAddInStatusCount - kMaxNames, kUnwritten);
  }
  Long* Value() { return present_ ? words_.data() : nullptr; }
  void WriteResult(FrameWriter& out) {
    std::size_t touched = words_.size();
    while (touched > count_ && words_[touched - 1] == kUnwritten) --touched;
    words_.resize(present_ ? touched : 0);
    out(words_);
  }

 private:
  std::size_t count_;
  bool present_ = false;
  std::vector<Long> words_;
};

struct ReturnedCount {
  ReturnedCount(FrameReader& in, Call& call) {
    in(present_, word_->front());
    call.ReturnedCount = Value();
  }
  Long* Value() { return present_ ? word_->data() : nullptr; }
  void WriteResult(FrameWriter&) {}

 private:
  bool present_ = false;
  std::unique_ptr<std::array<Long, 2>> word_ = std::make_unique<std::array<Long, 2>>();
};

struct ReturnedNames {
  ReturnedNames(FrameReader& in, Call& call) : count_(call.ReturnedCount) {
    in(present_, own_);
    pointers_ = own_.Pointers();
    array_ = count_ == nullptr ? returned_ : own_.Count() > 0 ? pointers_.data() : nullptr;
    given_ = array_;
  }
  const char*** Value() { return present_ ? &array_ : nullptr; }
  void WriteResult(FrameWriter& out) {
    NameList list;
    auto change = ReturnedArray::Unchanged;
    const Long count = count_ != nullptr ? *count_ : 0;
    if (array_ == nullptr || count_ == nullptr) {
      change = ReturnedArray::Null;
      returned_ = nullptr;
    } else if (array_ != given_) {
      change = ReturnedArray::New;
      returned_ = array_;
      for (std::size_t i = 0; i < std::min(FileCount(count), kMaxNames); ++i) list.Add(array_[i]);
    }
    out(change, list, count);
  }

 private:
  static inline const char** returned_ = nullptr;  // the provider's array until the client frees it

  Long* count_;
  bool present_ = false;
  NameList own_;
  std::vector<const char*> pointers_;
  const char** array_ = nullptr;
  const char** given_ = nullptr;
};

}  // namespace kestrel::isolation::provider
