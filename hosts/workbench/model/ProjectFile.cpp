#include "workbench/model/ProjectFile.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "system/Paths.h"
#include "workbench/model/ModelStrings.h"

namespace kestrel::workbench {

namespace {

constexpr const char* kVersionKey = "Version";
constexpr int kVersion = 1;
constexpr TPathListFile::TLayout kProject{"Project", "Modules", "Module"};
constexpr TPathListFile::TLayout kGroup{"Group", "Projects", "Project"};

/// A missing or malformed number counts as the current version.
int VersionOf(const TIniText& ini, const char* section) {
  int version = kVersion;
  const auto text = ini.Value(section, kVersionKey).value_or("");
  std::from_chars(text.data(), text.data() + text.size(), version);
  return version;
}

}  // namespace

TPathListFile::TPathListFile(const TLayout& layout) : layout_(&layout) {
  ini_.SetValue(layout.Head, kVersionKey, std::to_string(kVersion));
}

void TPathListFile::Read(std::string_view text) {
  if (!TIniText::IsText(text)) throw std::runtime_error(sUnreadableList);
  const TIniText ini(text, TIniText::TPercent::Escape);
  if (!ini.HasSection(layout_->Head)) throw std::runtime_error(Format(sNotThisKind, {layout_->Head}));
  if (VersionOf(ini, layout_->Head) > kVersion) throw std::runtime_error(sNewerVersion);
  ini_ = ini;
  items_ = ini_.Values(layout_->List, layout_->Item);
}

std::string TPathListFile::Text() const {
  auto ini = ini_;
  ini.SetValues(layout_->List, layout_->Item, items_);
  return ini.Text();
}

std::string TPathListFile::Head(const char* key) const { return ini_.Value(layout_->Head, key).value_or(""); }

void TPathListFile::SetHead(const char* key, const std::string& value) {
  ini_.SetValue(layout_->Head, key, value);
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
  auto stored = RelativePath(base, path);
  std::ranges::replace(stored, PathDelim, '/');
  return stored;
}

std::string FromStoredPath(const std::string& base, const std::string& stored) {
  return NormalizePath(ResolvePath(base, stored));
}

}  // namespace kestrel::workbench
