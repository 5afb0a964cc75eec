// What a call needs on its way to a provider and back.  Everything that crosses is handed over as a copy, and whatever
// the provider does with it stays in that copy.
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
#include "system/Guard.h"
#include "system/Text.h"

namespace kestrel::addin {

/// The name that lines about the provider carry.
void SetProviderName(const std::string& name);
/// The installed sink, or nullptr.
IProviderSink* ProviderSink();
/// Sends a line to the sink, if there is one.  A sink that fails has nowhere else to report it.
void WriteProviderLine(TSeverity severity, const std::string& text) noexcept;
/// Warns that the provider wrote behind a buffer handed to `entry`, if it did.
void ReportOverrun(const char* entry, TOverrun overrun) noexcept;
/// The most bytes of one line of a provider's that are shown.  More is cut, with a mark: no window is made for a line of
/// megabytes.
inline constexpr std::size_t kMaxTextLine = 4096;

/// The text as providers read it.  Throws EAbort, naming it, when the active code page lacks a character of it: with
/// another one in its place a provider would work on another file.
std::string ForProvider(std::string_view text);

/// An in/out text on its way through a provider.  The room is far larger than any field, zeroed, and followed by guard
/// bytes; damage to them is reported when the object goes.
class TScratchBuffer {
 public:
  static constexpr std::size_t kRoom = 4096;
  static constexpr std::size_t kCanarySize = 1024;

  /// `entry` names the entry point in the report and outlives the object.
  TScratchBuffer(const char* entry, std::string_view text);
  TScratchBuffer(const char* entry, const TBoundedText& field) : TScratchBuffer(entry, field.Str()) {}
  ~TScratchBuffer();
  TScratchBuffer(const TScratchBuffer&) = delete;
  TScratchBuffer& operator=(const TScratchBuffer&) = delete;

  char* Data() { return bytes_.data(); }
  /// What stands there now, up to the terminator or the end of the room.
  std::string_view Text() const;
  /// What the field has to hold now: its own text, when the provider left that as it was.  Warns when the provider's was
  /// longer than the field.  Throws EAbort when it cannot be given back as it came (see FromCodePageExact).
  std::string TextFor(const TBoundedText& field) const;

 private:
  const char* entry_;
  std::string given_;
  std::vector<char> bytes_;
};

/// A word that a provider fills.  Providers built where `long` has 64 bits write eight bytes: the spare word takes them.
struct TOutParam32 {
  alignas(std::int64_t) scc::Long Value = 0;
  scc::Long Spare = 0;
};

/// The file names of one call as the API wants them: an array of pointers to copies, a null pointer behind the last.
class TFileArray {
 public:
  explicit TFileArray(const TStringList& files);
  TFileArray(const TFileArray&) = delete;
  TFileArray& operator=(const TFileArray&) = delete;

  scc::Long Count() const { return static_cast<scc::Long>(names_.size() - 1); }
  const char** Data() { return names_.data(); }

 private:
  std::string texts_;  // all copies one behind the other
  std::vector<const char*> names_;
};

/// The path; throws EAbort, naming it, when it is too long for a provider: cut it would be another folder's.
const TBoundedText& RequireFits(const TBoundedText& path);

/// A comment as it may reach a provider: at most kMaxComment bytes, cut at a character border.
class TProviderComment {
 public:
  /// Throws EAbort as ForProvider does: what the user typed is not changed.
  explicit TProviderComment(std::string_view typed);
  /// The date, put into `otherwise`, when nothing was typed.  In its words the active code page may lack characters: the
  /// user's locale need not be the system's.
  TProviderComment(std::string_view typed, const TResString& otherwise);
  const char* Data() const { return bytes_.data(); }

 private:
  void Set(std::string_view text);

  std::array<char, kMaxComment + 1> bytes_{};  // zeros behind the text: a provider may copy all of it
};

/// How a call ended: the provider's code, or the text of the exception or fault that it let out.
struct TAnswer {
  scc::Long Code = scc::SCC_E_NONSPECIFICERROR;
  std::string Fault;
};

/// The text of the exception being handled; never empty.
std::string CurrentFault();

/// Throws EAbort with `message` when there are no files.
void RequireFiles(const TStringList& files, const TResString& message);
/// Throws EAbort when one request cannot carry that many.
void RequireAtMostMaxFiles(const TStringList& files);

/// Puts back how the thread computes.  Run-time libraries of other languages change the precision or let divisions by
/// zero fault, some as soon as they are loaded, and the rest of the program is not made for that.
class TScopedFpEnv {
 public:
  TScopedFpEnv() noexcept;
  ~TScopedFpEnv();
  TScopedFpEnv(const TScopedFpEnv&) = delete;
  TScopedFpEnv& operator=(const TScopedFpEnv&) = delete;

 private:
  std::fenv_t environment_;
};

/// Marks that a provider function is on the call stack; see ProviderCallInProgress().  Throws EAbort when one is there
/// already.
class TScopedProviderCall {
 public:
  TScopedProviderCall();
  ~TScopedProviderCall();
  TScopedProviderCall(const TScopedProviderCall&) = delete;
  TScopedProviderCall& operator=(const TScopedProviderCall&) = delete;
};

/// Throws EAbort: the entry point ended with a fault of that name (see CallWithSehFrame).
[[noreturn]] void ThrowFault(scc::TEntry entry, const std::string& fault);

/// Calls an entry point.  One that the library lacks, or that went away with the library, answers "not supported"; one
/// that crashes throws EAbort.
template <class... Parameters, class... Arguments>
scc::Long Invoke(scc::Long(SCC_CALL* entry)(Parameters...), Arguments... arguments) {
  if (scc::hSosScc == nullptr || entry == nullptr) return scc::SCC_E_OPNOTSUPPORTED;
  const TScopedProviderCall mark;
  const TScopedFpEnv floatingPoint;
  scc::Long result = scc::SCC_E_NONSPECIFICERROR;
  const auto fault = CallWithSehFrame([&] { result = entry(arguments...); });
  ShowProviderLines();  // of its other threads
  if (!fault.empty()) ThrowFault(reinterpret_cast<scc::TEntry>(entry), fault);
  return result;
}

/// Runs a call with its preparations.  No exception leaves here, of whatever type.
template <class Body>
TAnswer RunCatching(Body&& body) {
  try {
    return {body(), {}};
  } catch (...) {
    return {scc::SCC_E_NONSPECIFICERROR, CurrentFault()};
  }
}

/// RunCatching for calls whose caller takes texts: fills them.  Returns the provider's code, `faultCode` after an exception.
template <class Body>
scc::Long RunWithMessages(TStateMessages& messages, Body&& body,
                          scc::Long faultCode = scc::SCC_E_NONSPECIFICERROR) {
  const TAnswer answer = RunCatching(body);
  if (answer.Fault.empty()) {
    DecodeReturnCode(answer.Code, messages);
    return answer.Code;
  }
  messages = {"", "", answer.Fault};
  return faultCode;
}

/// RunCatching for calls whose caller takes none: an exception becomes an error line that begins with the entry's name.
template <class Body>
scc::Long RunLogged(const char* entry, Body&& body) {
  const TAnswer answer = RunCatching(body);
  if (!answer.Fault.empty()) WriteProviderLine(TSeverity::Error, std::string(entry) + "; " + answer.Fault);
  return answer.Code;
}

inline scc::WindowHandle ToWindow(TWindowHandle window) {
  return reinterpret_cast<scc::WindowHandle>(window);
}

}  // namespace kestrel::addin
