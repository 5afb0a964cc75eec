#include "expert/MappingFile.h"

#include <sstream>
#include <stdexcept>

#include "expert/MappingFileStrings.h"
#include "host/Ini.h"
#include "host/Paths.h"
#include "host/System.h"
#include "host/Text.h"

// Section and key names compare ignoring case, as INI files always did.
struct TMappingFile::TIni {
  CSimpleIniA Data;

  explicit TIni(const std::string& text) {
    Data.SetUnicode();  // bytes go through unchanged
    Data.SetSpaces(false);
    Data.SetQuotes();  // project strings are the provider's: blanks and quotes at their ends are kept
    Data.LoadData(text);
  }
};

std::string MappingFileName(const std::string& projectFile) {
  return ExtractFileDir(projectFile) + PathDelim +
         ChangeFileExt(ExtractFileName(projectFile), kMappingExtension);
}

namespace {

std::string ReadText(const std::string& path) {
  if (!FileExists(path)) return {};
  auto text = ReadWholeFile(path);
  if (text.find('\0') != std::string::npos) throw std::runtime_error(Format(sMappingFileBinary.Text, {path}));
  return text;
}

}  // namespace

TMappingFile::TMappingFile(std::string path)
    : path_(std::move(path)), text_(ReadText(path_)), ini_(std::make_unique<TIni>(text_)) {}

TMappingFile::~TMappingFile() = default;

std::vector<std::string> TMappingFile::Sections() const {
  CSimpleIniA::TNamesDepend names;
  ini_->Data.GetAllSections(names);
  names.sort(CSimpleIniA::Entry::LoadOrder());
  std::vector<std::string> result;
  for (const auto& name : names)
    if (*name.pItem) result.emplace_back(name.pItem);
  return result;
}

bool TMappingFile::HasSection(const std::string& section) const {
  return !section.empty() && ini_->Data.SectionExists(section.c_str());
}

bool TMappingFile::HasKey(const std::string& section, const std::string& key) const {
  return ini_->Data.KeyExists(section.c_str(), key.c_str());
}

std::string TMappingFile::Read(const std::string& section, const std::string& key) const {
  return ini_->Data.GetValue(section.c_str(), key.c_str(), "");
}

namespace {

bool IsUnderstood(const std::string& line) {
  if (line.empty() || line.starts_with(';') || line.starts_with('#')) return true;
  if (line.starts_with('[')) return line.find(']') != std::string::npos;
  return line.find('=') != std::string::npos && !line.starts_with('=');
}

/// The parser skips lines that are neither header, comment nor key and value, as a file that was cut off has them.
/// Empty, or a sentence about the first one.
std::string DamageIn(const std::string& path, const std::string& text) {
  std::istringstream lines(text.starts_with("\xEF\xBB\xBF") ? text.substr(3) : text);
  std::string line;
  for (long long number = 1; std::getline(lines, line); ++number)
    if (const auto trimmed = Trim(line); !IsUnderstood(trimmed))
      return Format(sMappingFileDamaged.Text, {path, number, trimmed});
  return {};
}

/// The parser takes one pair of quotes off a value; one that has its own is given another.
std::string Quoted(const std::string& value) {
  const bool own = value.size() >= 2 && value.starts_with('"') && value.ends_with('"');
  return own ? '"' + value + '"' : value;
}

}  // namespace

std::string TMappingFile::Damage() const { return DamageIn(path_, text_); }

void TMappingFile::Write(const std::string& section, const std::string& key, const std::string& value) {
  if (HasKey(section, key) && Read(section, key) == value) return;
  // Writing the file again would lose the line, and a cut-off header would give the lines below it to another section.
  if (const auto damage = Damage(); !damage.empty()) throw std::runtime_error(damage);
  ini_->Data.SetValue(section.c_str(), key.c_str(), Quoted(value).c_str());
  std::string text;
  ini_->Data.Save(text);
  WriteFileAtomically(path_, text);
  text_ = std::move(text);
  ini_ = std::make_unique<TIni>(text_);
}
