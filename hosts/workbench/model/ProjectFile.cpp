#include "workbench/model/ProjectFile.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "host/Ini.h"
#include "host/Paths.h"
#include "workbench/model/ModelStrings.h"

namespace {

constexpr const char* kVersionKey = "Version";
constexpr int kVersion = 1;
constexpr TPathListFile::TLayout kProject{"Project", "Modules", "Module"};
constexpr TPathListFile::TLayout kGroup{"Group", "Projects", "Project"};

using TIni = CSimpleIniCaseA;

// INI values lose blanks at their ends and cannot hold control characters, but file names can have both.
bool NeedsEscape(const std::string& text, std::size_t at) {
  const auto c = static_cast<unsigned char>(text[at]);
  const bool atEnd = at == 0 || at + 1 == text.size();
  return c < 0x20 || c == 0x7F || c == '%' || (c == ' ' && atEnd);
}

std::string Escape(const std::string& text) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!NeedsEscape(text, i)) {
      out += text[i];
      continue;
    }
    const auto c = static_cast<unsigned char>(text[i]);
    out += {'%', kDigits[c >> 4], kDigits[c & 15]};
  }
  return out;
}

std::string Unescape(std::string_view text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    unsigned char value = 0;
    const char* digits = text.data() + i + 1;
    if (text[i] == '%' && i + 2 < text.size() &&
        std::from_chars(digits, digits + 2, value, 16).ptr == digits + 2) {
      out += static_cast<char>(value);
      i += 2;
    } else {
      out += text[i];
    }
  }
  return out;
}

void Load(TIni& ini, std::string_view text) {
  ini.SetMultiKey(true);
  ini.SetSpaces(false);
  if (ini.LoadData(text.data(), text.size()) < 0) throw std::runtime_error(sUnreadableList);
}

}  // namespace

void TPathListFile::Read(std::string_view text) {
  TIni ini;
  Load(ini, text);
  if (!ini.GetSection(layout_->Head)) throw std::runtime_error(Format(sNotThisKind, {layout_->Head}));
  if (ini.GetLongValue(layout_->Head, kVersionKey, kVersion) > kVersion)
    throw std::runtime_error(sNewerVersion);
  original_ = text;
  head_.clear();
  items_.clear();
  TIni::TNamesDepend keys;
  ini.GetAllKeys(layout_->Head, keys);
  for (const auto& key : keys) head_.emplace_back(key.pItem, ini.GetValue(layout_->Head, key.pItem, ""));
  TIni::TNamesDepend values;
  ini.GetAllValues(layout_->List, layout_->Item, values);
  values.sort(TIni::Entry::LoadOrder());
  for (const auto& value : values) items_.push_back(Unescape(value.pItem));
}

std::string TPathListFile::Text() const {
  TIni ini;
  Load(ini, original_);
  if (original_.empty()) ini.SetLongValue(layout_->Head, kVersionKey, kVersion, nullptr, false, true);
  for (const auto& [key, value] : head_)
    ini.SetValue(layout_->Head, key.c_str(), value.c_str(), nullptr, true);
  ini.Delete(layout_->List, layout_->Item);
  for (const auto& item : items_) ini.SetValue(layout_->List, layout_->Item, Escape(item).c_str());
  std::string out;
  ini.Save(out);
  return out;
}

std::string TPathListFile::Head(const char* key) const {
  for (const auto& [name, value] : head_)
    if (name == key) return Unescape(value);
  return {};
}

void TPathListFile::SetHead(const char* key, const std::string& value) {
  for (auto& [name, old] : head_)
    if (name == key) {
      old = Escape(value);
      return;
    }
  head_.emplace_back(key, Escape(value));
}

TProjectFile::TProjectFile() : TPathListFile(kProject) {}
TProjectFile TProjectFile::Parse(std::string_view text) {
  TProjectFile file;
  file.Read(text);
  return file;
}

TGroupFile::TGroupFile() : TPathListFile(kGroup) {}
TGroupFile TGroupFile::Parse(std::string_view text) {
  TGroupFile file;
  file.Read(text);
  return file;
}

std::string ToStoredPath(const std::string& base, const std::string& path) {
  auto stored = WayToPath(base, path);
  std::ranges::replace(stored, PathDelim, '/');
  return stored;
}

std::string FromStoredPath(const std::string& base, const std::string& stored) {
  return NormalPath(PathWithin(base, stored));
}
