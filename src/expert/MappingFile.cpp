#include "expert/MappingFile.h"

#include <stdexcept>

#include "expert/MappingFileStrings.h"
#include "system/Paths.h"
#include "system/System.h"
#include "system/Text.h"

namespace kestrel::addin {

std::string MappingFileName(const std::string& projectFile) {
  return ExtractFileDir(projectFile) + PathDelim +
         ChangeFileExt(ExtractFileName(projectFile), kMappingExtension);
}

namespace {

TIniText ReadMapping(const std::string& path) {
  if (!FileExists(path)) return TIniText();
  const auto text = ReadWholeFile(path);
  if (!TIniText::IsText(text)) throw std::runtime_error(Format(sMappingFileBinary.Text, {path}));
  return TIniText(text);
}

}  // namespace

TMappingFile::TMappingFile(std::string path) : path_(std::move(path)), ini_(ReadMapping(path_)) {}

std::string TMappingFile::Damage() const {
  const auto damage = ini_.Damage();
  return damage ? Format(sMappingFileDamaged, {path_, static_cast<long long>(damage->Line), damage->Text})
                : std::string();
}

void TMappingFile::Write(const std::string& section, const std::string& key, const std::string& value) {
  ini_ = ReadMapping(path_);
  auto changed = ini_;
  if (!changed.SetValue(section, key, value)) return;
  // The damaged line may be the rest of a key of this section.
  if (const auto damage = Damage(); !damage.empty()) throw std::runtime_error(damage);
  WriteFileAtomically(path_, changed.Text());
  ini_ = std::move(changed);
}

}  // namespace kestrel::addin
