#include "host/posix/RegistryStore.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <string_view>
#include <system_error>

#include "host/Ini.h"
#include "host/Paths.h"
#include "host/System.h"
#include "host/Text.h"

namespace {

// ------------------------------------------------------------------------------------------------- notation

constexpr std::string_view kHexDigits = "0123456789ABCDEF";
constexpr std::string_view kReservedInNames = "=]";
constexpr std::string_view kReservedInValues = "";
/// What a line must not begin with if it is to be read as a name.
constexpr std::string_view kLineMarks = "[;#";

bool Contains(std::string_view set, char c) { return set.find(c) != set.npos; }
bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == 0x7F; }

/// The character that the escape at the beginning of `text` stands for; nothing when there is none.
std::optional<char> EscapeAt(std::string_view text, std::string_view reserved) {
  if (text.size() < 3 || text[0] != '%') return std::nullopt;
  const auto high = kHexDigits.find(text[1]);
  const auto low = kHexDigits.find(text[2]);
  if (high == kHexDigits.npos || low == kHexDigits.npos) return std::nullopt;
  const auto c = static_cast<char>(high * 16 + low);
  if (!IsControl(c) && c != '%' && !Contains(reserved, c)) return std::nullopt;
  return c;
}

bool IsQuoted(std::string_view text) { return text.size() >= 2 && text.front() == '"' && text.back() == '"'; }

std::string Escape(std::string_view text, std::string_view reserved) {
  std::string escaped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto c = static_cast<unsigned char>(text[i]);
    if (IsControl(text[i]) || Contains(reserved, text[i]) || EscapeAt(text.substr(i), reserved))
      escaped.append({'%', kHexDigits[c / 16], kHexDigits[c % 16]});
    else
      escaped += text[i];
  }
  return escaped;
}

std::string Unescape(std::string_view text, std::string_view reserved) {
  std::string plain;
  while (!text.empty()) {
    const auto c = EscapeAt(text, reserved);
    plain += c.value_or(text.front());
    text.remove_prefix(c ? 3 : 1);
  }
  return plain;
}

bool NeedsQuotes(std::string_view text) {
  return !text.empty() && (text.front() == ' ' || text.back() == ' ' || IsQuoted(text));
}

std::string EncodeValue(std::string_view value) {
  const auto text = Escape(value, kReservedInValues);
  return NeedsQuotes(value) ? '"' + text + '"' : text;
}

std::string EncodeName(std::string_view name) {
  const auto text = Escape(name, kReservedInNames);
  return name.empty() || NeedsQuotes(name) || Contains(kLineMarks, name.front()) ? '"' + text + '"' : text;
}

std::string Decode(std::string_view text, std::string_view reserved) {
  return Unescape(IsQuoted(text) ? text.substr(1, text.size() - 2) : text, reserved);
}
std::string DecodeValue(std::string_view text) { return Decode(text, kReservedInValues); }
std::string DecodeName(std::string_view text) { return Decode(text, kReservedInNames); }

/// The one spelling of a key path: no delimiter at either end, none doubled.  The root key is empty.
std::string CanonicalKey(std::string_view key) {
  std::string canonical;
  for (const char c : key)
    if (c != '\\' || (!canonical.empty() && canonical.back() != '\\')) canonical += c;
  if (!canonical.empty() && canonical.back() == '\\') canonical.pop_back();
  return canonical;
}

/// How the file names a key's section; what stands before the first section belongs to the root key.
std::string SectionOf(std::string_view key) {
  const auto canonical = CanonicalKey(key);
  return canonical.empty() ? canonical : EncodeName(canonical);
}

bool IsAtOrBelow(const char* section, std::string_view foldedKey) {
  const auto folded = FoldCase(DecodeName(section));
  if (foldedKey.empty() || folded == foldedKey) return true;
  return folded.size() > foldedKey.size() && folded.starts_with(foldedKey) &&
         folded[foldedKey.size()] == '\\';
}

// ---------------------------------------------------------------------------------------------------- files

/// Keeps other processes and threads from updating the files of a directory while it lives.  Where the file system
/// knows no locks the last writer wins.
class TDirectoryLock {
 public:
  explicit TDirectoryLock(const std::string& directory)
      : descriptor_(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    while (descriptor_ >= 0 && flock(descriptor_, LOCK_EX) != 0 && errno == EINTR) continue;
  }
  TDirectoryLock(const TDirectoryLock&) = delete;
  TDirectoryLock& operator=(const TDirectoryLock&) = delete;
  ~TDirectoryLock() {
    if (descriptor_ >= 0) close(descriptor_);
  }

 private:
  int descriptor_;
};

void MakeDirectory(const std::string& directory) {
  std::error_code failed;
  std::filesystem::create_directories(directory, failed);
  if (failed) throw std::runtime_error("Cannot create " + directory + ": " + failed.message());
}

bool IsText(std::string_view text) { return !Contains(text, '\0'); }

/// What an update starts from.  A file that holds no text, as a disk failure leaves it, is put aside: its owner may
/// still want to look into it.
std::string ReadForUpdate(const std::string& path) {
  if (!FileExists(path)) return {};
  auto text = ReadWholeFile(path);
  if (IsText(text)) return text;
  WriteFileAtomically(path + ".broken", text);
  return {};
}

}  // namespace

/// Names that mean the same are the same, however somebody typed them.
struct TRegistryNameLess {
  bool operator()(const char* a, const char* b) const {
    return FoldCase(DecodeName(a)) < FoldCase(DecodeName(b));
  }
};

struct TRegistryStore::TIni : CSimpleIniTempl<char, TRegistryNameLess, SI_ConvertA<char>> {
  TIni() : CSimpleIniTempl(true) { SetSpaces(false); }

  TNamesDepend SectionsAtOrBelow(const std::string& key) const {
    TNamesDepend sections;
    GetAllSections(sections);
    const auto folded = FoldCase(CanonicalKey(key));
    sections.remove_if([&](const Entry& section) { return !IsAtOrBelow(section.pItem, folded); });
    return sections;
  }
};

TRegistryStore::TRegistryStore(const std::string& text) : ini_(std::make_unique<TIni>()) {
  if (ini_->LoadData(text.data(), text.size()) < 0) ini_->Reset();
}
TRegistryStore::~TRegistryStore() = default;

TRegistryStore TRegistryStore::Read(const std::string& path) {
  try {
    const auto text = FileExists(path) ? ReadWholeFile(path) : std::string();
    return TRegistryStore(IsText(text) ? text : std::string());
  } catch (const std::runtime_error&) {
    return TRegistryStore({});
  }
}

bool TRegistryStore::Update(const std::string& path, const std::function<bool(TRegistryStore&)>& change) {
  const auto directory = ExtractFileDir(path);
  MakeDirectory(directory);
  const TDirectoryLock lock(directory);
  TRegistryStore store(ReadForUpdate(path));
  const bool changed = change(store);
  if (changed) WriteFileAtomically(path, store.Text());
  return changed;
}

bool TRegistryStore::HasKey(const std::string& key) const { return !ini_->SectionsAtOrBelow(key).empty(); }

std::optional<std::string> TRegistryStore::Value(const std::string& key, const std::string& name) const {
  const char* value = ini_->GetValue(SectionOf(key).c_str(), EncodeName(name).c_str());
  return value ? std::optional(DecodeValue(value)) : std::nullopt;
}

std::vector<std::string> TRegistryStore::ValueNames(const std::string& key) const {
  TIni::TNamesDepend keys;
  ini_->GetAllKeys(SectionOf(key).c_str(), keys);
  keys.sort(TIni::Entry::LoadOrder());
  std::vector<std::string> names;
  for (const auto& entry : keys) names.push_back(DecodeName(entry.pItem));
  return names;
}

bool TRegistryStore::SetValue(const std::string& key, const std::string& name, const std::string& value) {
  if (Value(key, name) == value) return false;
  ini_->SetValue(SectionOf(key).c_str(), EncodeName(name).c_str(), EncodeValue(value).c_str());
  return true;
}

bool TRegistryStore::DeleteValue(const std::string& key, const std::string& name) {
  return ini_->Delete(SectionOf(key).c_str(), EncodeName(name).c_str());
}

bool TRegistryStore::DeleteKey(const std::string& key) {
  const auto sections = ini_->SectionsAtOrBelow(key);
  for (const auto& section : sections) ini_->Delete(section.pItem, nullptr);
  return !sections.empty();
}

std::string TRegistryStore::Text() const {
  std::string text;
  ini_->Save(text);
  return text;
}
