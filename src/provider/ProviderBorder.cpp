#include "provider/ProviderBorder.h"

#include <algorithm>
#include <ctime>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "host/Errors.h"
#include "provider/ProviderStrings.h"

namespace kestrel::addin {

namespace {

IProviderSink* sink = nullptr;
std::string providerName;
bool calling = false;

constexpr char kCanaryByte = '\x5A';

/// Lines written by a provider's threads that the user-interface thread has not shown yet.
struct TWaitingLines {
  struct TLine {
    TSeverity Severity;
    std::string Text;
  };
  std::mutex Lock;  // for all following members
  std::vector<TLine> Lines;
  std::function<void()> Wake;
  std::thread::id UserInterface;
};
TWaitingLines waiting;

/// A provider's text, converted for display.
std::string ShownText(std::string_view text) {
  if (text.size() <= kMaxTextLine) return FromCodePageLossy(text);
  return FromCodePageLossy(TruncateInCodePage(text, kMaxTextLine)) + sLineCutMark.str();
}

/// Queues the line if this is not the user-interface thread.  Returns whether it was queued.
bool QueueLine(TSeverity severity, std::string_view text) {
  const std::lock_guard lock(waiting.Lock);
  const auto shows = waiting.UserInterface;
  if (shows == std::thread::id() || shows == std::this_thread::get_id()) return false;
  waiting.Lines.push_back({severity, std::string(text.substr(0, kMaxTextLine + 1))});
  if (waiting.Lines.size() == 1 && waiting.Wake) waiting.Wake();
  return true;
}

std::string_view UpToNul(std::string_view text) { return text.substr(0, text.find('\0')); }

/// The severity of a text-out message; empty for the kinds that are not lines.
std::optional<TSeverity> SeverityOf(scc::Dword kind) {
  switch (kind) {
    case scc::SCC_MSG_INFO:
      return TSeverity::Info;
    case scc::SCC_MSG_WARNING:
      return TSeverity::Warning;
    case scc::SCC_MSG_ERROR:
      return TSeverity::Error;
    default:
      return std::nullopt;
  }
}

}  // namespace

IProviderSink* SetProviderSink(IProviderSink* newSink) {
  const std::lock_guard lock(waiting.Lock);
  waiting.UserInterface = std::this_thread::get_id();
  return std::exchange(sink, newSink);
}

void SetProviderWaker(std::function<void()> wake) {
  const std::lock_guard lock(waiting.Lock);
  waiting.Wake = std::move(wake);
}

void ShowProviderLines() noexcept try {
  std::vector<TWaitingLines::TLine> lines;
  {
    const std::lock_guard lock(waiting.Lock);
    lines.swap(waiting.Lines);
  }
  for (const auto& line : lines) WriteProviderLine(line.Severity, ShownText(line.Text));
} catch (...) {
}

IProviderSink* ProviderSink() { return sink; }

TScopedFpEnv::TScopedFpEnv() noexcept { std::fegetenv(&environment_); }
TScopedFpEnv::~TScopedFpEnv() { std::fesetenv(&environment_); }

TScopedProviderCall::TScopedProviderCall() {
  if (calling) throw EAbort(sProviderBusy);
  calling = true;
}
TScopedProviderCall::~TScopedProviderCall() { calling = false; }
bool ProviderCallInProgress() { return calling; }

void SetProviderName(const std::string& name) { providerName = name; }

void WriteProviderLine(TSeverity severity, const std::string& text) noexcept {
  try {
    if (sink) sink->Line(severity, text);
  } catch (...) {
  }
}

void ReportOverrun(const char* entry, TOverrun overrun) noexcept {
  if (overrun == TOverrun::None) return;
  const auto& text = overrun == TOverrun::Caught ? sBufferOverrun : sCanaryOverrun;
  WriteProviderLine(TSeverity::Warning, Format(text, {providerName, entry}));
}

scc::Long SCC_CALL TextOutProc(const char* text, scc::Dword kind) noexcept try {
  const auto severity = SeverityOf(kind);
  if (!text || !severity) return scc::SCC_MSG_RTN_OK;
  // Providers may end lines as on a console; the message window does not need that.
  std::string_view line = text;
  line.remove_suffix(line.size() - (line.find_last_not_of("\r\n") + 1));
  if (QueueLine(*severity, line)) return scc::SCC_MSG_RTN_OK;
  ShowProviderLines();  // keeps the order
  WriteProviderLine(*severity, ShownText(line));
  return scc::SCC_MSG_RTN_OK;
} catch (...) {
  return scc::SCC_MSG_RTN_OK;
}

TScratchBuffer::TScratchBuffer(const char* entry, std::string_view text)
    : entry_(entry), given_(ForProvider(UpToNul(text))), bytes_(kRoom + kCanarySize, '\0') {
  given_.resize(TruncateInCodePage(given_, kRoom - 1).size());
  std::ranges::copy(given_, bytes_.begin());
  // The last byte stays 0, in case the provider fills the room and then reads the text.
  std::fill(bytes_.begin() + kRoom, bytes_.end() - 1, kCanaryByte);
}

TScratchBuffer::~TScratchBuffer() {
  const auto canary = std::string_view(bytes_.data() + kRoom, kCanarySize - 1);
  const bool touched = canary.find_first_not_of(kCanaryByte) != std::string_view::npos;
  const bool passed = canary.back() != kCanaryByte || bytes_.back() != '\0';
  ReportOverrun(entry_, passed ? TOverrun::Passed : touched ? TOverrun::Caught : TOverrun::None);
}

std::string_view TScratchBuffer::Text() const { return UpToNul({bytes_.data(), kRoom}); }

std::string TScratchBuffer::TextFor(const TBoundedText& field) const {
  const auto whole = Text();
  if (whole == given_) return field.Str();
  // A provider may omit the terminator, so all bytes of the field can hold text.
  const auto fitting = TruncateInCodePage(whole, field.Size());
  const auto name = FromCodePageExact(fitting);
  if (!name) throw EAbort(Format(sNotFromCodePage, {providerName, FromCodePageLossy(fitting), entry_}));
  if (fitting.size() != whole.size())
    WriteProviderLine(TSeverity::Warning,
                      Format(sTextCut, {providerName, entry_, static_cast<long long>(field.Size())}));
  return *name;
}

TProviderComment::TProviderComment(std::string_view typed) { Set(ForProvider(typed)); }

TProviderComment::TProviderComment(std::string_view typed, const TResString& otherwise) {
  Set(!typed.empty() ? ForProvider(typed)
                     : ToCodePageLossy(Format(otherwise, {DateTimeToStr(std::time(nullptr))})));
}

void TProviderComment::Set(std::string_view text) {
  std::ranges::copy(TruncateInCodePage(UpToNul(text), kMaxComment), bytes_.begin());
}

std::string ForProvider(std::string_view text) {
  auto converted = ToCodePageExact(text);
  if (!converted) throw EAbort(Format(sNotInCodePage, {std::string(text)}));
  return *std::move(converted);
}

const TBoundedText& RequireFits(const TBoundedText& path) {
  if (!path.Fits()) throw EAbort(Format(sPathTooLong, {path.Str(), static_cast<long long>(path.Size() - 1)}));
  return path;
}

bool AppendPopulatedName(const char* name, TStringList& names) noexcept try {
  if (names.size() >= kMaxPopulated) return false;
  if (!name || !*name) return true;
  if (auto known = FromCodePageExact(name))
    names.push_back(*std::move(known));
  else
    WriteProviderLine(TSeverity::Warning,
                      Format(sNotFromCodePage, {providerName, FromCodePageLossy(name), "SccPopulateList"}));
  return true;
} catch (...) {
  return false;
}

TFileArray::TFileArray(const TStringList& files) {
  std::vector<std::size_t> starts;
  starts.reserve(files.size());
  for (const std::string& name : files) {
    starts.push_back(texts_.size());
    texts_.append(ForProvider(name)) += '\0';
  }
  // `texts_` no longer reallocates; pointers into it are stable from here on.
  names_.reserve(files.size() + 1);
  for (const std::size_t start : starts) names_.push_back(texts_.data() + start);
  names_.push_back(nullptr);
}

void RequireFiles(const TStringList& files, const TResString& message) {
  if (files.empty()) throw EAbort(message);
}

void RequireAtMostMaxFiles(const TStringList& files) {
  const auto number = [](std::size_t n) { return static_cast<long long>(n); };
  if (files.size() > kMaxFiles)
    throw EAbort(Format(sTooManyFiles, {number(files.size()), number(kMaxFiles)}));
}

void ThrowFault(scc::TEntry entry, const std::string& fault) {
  throw EAbort(Format(sProviderFault, {scc::NameOf(entry), fault}));
}

std::string CurrentFault() {
  try {
    throw;
  } catch (const EAbort& error) {
    return error.what();
  } catch (const std::exception& error) {
    // Messages of a provider's exceptions are in the code page.
    if (error.what() && *error.what()) return ShownText(error.what());
  } catch (...) {
  }
  return sUnknownFault;
}

}  // namespace kestrel::addin
