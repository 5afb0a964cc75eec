// Helpers for calling a provider.  All arguments are passed as copies, so that a provider can damage nothing else.
#pragma once

#include <array>
#include <cfenv>
#include <cstddef>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "provider/BoundedText.h"
#include "provider/sccapi.h"
#include "provider/sccapiintf.h"
#include "system/SehFrame.h"
#include "system/Text.h"

namespace kestrel::addin {

/// Sets the name used in messages about the provider.
void SetProviderName(const std::string& name);
/// The current sink, or null.
IProviderSink* ProviderSink();
/// Sends a line to the sink, if there is one.  Ignores exceptions of the sink.
void WriteProviderLine(TSeverity severity, const std::string& text) noexcept;
/// Writes a warning that the provider wrote past a buffer passed to `entry`, unless `overrun` is None.
void ReportOverrun(const char* entry, TOverrun overrun) noexcept;
/// Maximum length in bytes of a provider's line.  Longer ones are truncated and marked.
inline constexpr std::size_t kMaxTextLine = 4096;

/// Converts to the code page of providers.  Throws EAbort, naming the text, if a character is missing there: with a
/// substitute the provider would work on another file.
std::string ForProvider(std::string_view text);

/// Buffer for an in/out text.  It is much larger than any field, zeroed, and followed by a canary; the destructor reports
/// a damaged canary.
class TScratchBuffer {
 public:
  static constexpr std::size_t kRoom = 4096;
  static constexpr std::size_t kCanarySize = 1024;

  /// `entry`, the entry point's name for reports, is borrowed.
  TScratchBuffer(const char* entry, std::string_view text);
  TScratchBuffer(const char* entry, const TBoundedText& field) : TScratchBuffer(entry, field.Str()) {}
  ~TScratchBuffer();
  TScratchBuffer(const TScratchBuffer&) = delete;
  TScratchBuffer& operator=(const TScratchBuffer&) = delete;

  char* Data() { return bytes_.data(); }
  /// The text up to the terminator or the end of the room, in the code page.
  std::string_view Text() const;
  /// The new text for the field: unchanged if the provider left it unchanged, otherwise truncated to the field with a
  /// warning.  Throws EAbort if it cannot be passed back later (see FromCodePageExact).
  std::string TextFor(const TBoundedText& field) const;

 private:
  const char* entry_;
  std::string given_;
  std::vector<char> bytes_;
};

/// A 32-bit out parameter.  Providers that were built with a 64-bit `long` write eight bytes, hence the spare word.
struct TOutParam32 {
  alignas(std::int64_t) scc::Long Value = 0;
  scc::Long Spare = 0;
};

/// The file names of one call: a null-terminated array of pointers to copies.
class TFileArray {
 public:
  explicit TFileArray(const TStringList& files);
  TFileArray(const TFileArray&) = delete;
  TFileArray& operator=(const TFileArray&) = delete;

  scc::Long Count() const { return static_cast<scc::Long>(names_.size() - 1); }
  const char** Data() { return names_.data(); }

 private:
  std::string texts_;  // all copies, each with its terminator
  std::vector<const char*> names_;
};

/// Returns `path`.  Throws EAbort, naming it, if it is too long for a provider: truncated it would name another directory.
const TBoundedText& RequireFits(const TBoundedText& path);

/// A comment for a provider: at most kMaxComment bytes, truncated without splitting a character.
class TProviderComment {
 public:
  /// Throws EAbort like ForProvider(): a typed comment is never altered.
  explicit TProviderComment(std::string_view typed);
  /// If nothing was typed, the text is `otherwise` formatted with the date, converted lossily: the date is in the user's
  /// locale, which the code page need not support.
  TProviderComment(std::string_view typed, const TResString& otherwise);
  const char* Data() const { return bytes_.data(); }

 private:
  void Set(std::string_view text);

  std::array<char, kMaxComment + 1> bytes_{};  // zeroed, because a provider may copy all of it
};

/// Result of a call: the provider's code, or the text of an exception or fault.
struct TAnswer {
  scc::Long Code = scc::SCC_E_NONSPECIFICERROR;
  std::string Fault;
};

/// The text of the exception being handled; never empty.
std::string CurrentFault();

/// Throws EAbort with `message` if there are no files.
void RequireFiles(const TStringList& files, const TResString& message);
/// Throws EAbort for more than kMaxFiles files.
void RequireAtMostMaxFiles(const TStringList& files);

/// Scoped: saves and restores the floating-point environment.  Runtimes of other languages change the precision or enable
/// traps, some as soon as they are loaded.
class TScopedFpEnv {
 public:
  TScopedFpEnv() noexcept;
  ~TScopedFpEnv();
  TScopedFpEnv(const TScopedFpEnv&) = delete;
  TScopedFpEnv& operator=(const TScopedFpEnv&) = delete;

 private:
  std::fenv_t environment_;
};

/// Scoped: ProviderCallInProgress() returns true.  The constructor throws EAbort if it does already.
class TScopedProviderCall {
 public:
  TScopedProviderCall();
  ~TScopedProviderCall();
  TScopedProviderCall(const TScopedProviderCall&) = delete;
  TScopedProviderCall& operator=(const TScopedProviderCall&) = delete;
};

/// Throws EAbort for an entry point that ended with a structured exception of that name (see CallWithSehFrame).
[[noreturn]] void ThrowFault(scc::TEntry entry, const std::string& fault);

/// Calls an entry point.  Returns SCC_E_OPNOTSUPPORTED if the library lacks it or is not loaded.  Throws EAbort if it
/// crashes.
template <class... Parameters, class... Arguments>
scc::Long Invoke(scc::Long(SCC_CALL* entry)(Parameters...), Arguments... arguments) {
  if (!scc::hSosScc || !entry) return scc::SCC_E_OPNOTSUPPORTED;
  const TScopedProviderCall mark;
  const TScopedFpEnv floatingPoint;
  scc::Long result = scc::SCC_E_NONSPECIFICERROR;
  const auto fault = CallWithSehFrame([&] { result = entry(arguments...); });
  ShowProviderLines();  // written by other threads
  if (!fault.empty()) ThrowFault(reinterpret_cast<scc::TEntry>(entry), fault);
  return result;
}

/// Runs a call with its preparations; catches every exception.
template <class Body>
TAnswer CallCatching(Body&& body) {
  try {
    return {body(), {}};
  } catch (...) {
    return {scc::SCC_E_NONSPECIFICERROR, CurrentFault()};
  }
}

/// CallCatching() that sets `messages`.  Returns the provider's code, or `faultCode` after an exception.
template <class Body>
scc::Long RunWithMessages(TStateMessages& messages, Body&& body,
                          scc::Long faultCode = scc::SCC_E_NONSPECIFICERROR) {
  const TAnswer answer = CallCatching(body);
  if (answer.Fault.empty()) {
    DecodeReturnCode(answer.Code, messages);
    return answer.Code;
  }
  messages = {"", "", answer.Fault};
  return faultCode;
}

/// CallCatching() that writes an exception to the sink, prefixed with the entry point's name.
template <class Body>
scc::Long RunLogged(const char* entry, Body&& body) {
  const TAnswer answer = CallCatching(body);
  if (!answer.Fault.empty()) WriteProviderLine(TSeverity::Error, std::string(entry) + "; " + answer.Fault);
  return answer.Code;
}

inline scc::WindowHandle ToWindow(TWindowHandle window) {
  return reinterpret_cast<scc::WindowHandle>(window);
}

}  // namespace kestrel::addin
