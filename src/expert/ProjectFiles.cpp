#include "expert/ProjectFiles.h"

#include <algorithm>
#include <iterator>

#include "expert/SccSystem.h"
#include "system/Paths.h"
#include "system/System.h"
#include "system/Text.h"

namespace kestrel::addin {

namespace {

// The same text twice, and every test compares with both: packages may get an extension of their own.
constexpr const char* kPackageExtension = ".qvxproj";
constexpr const char* kProjectGroupExtension = ".qvxgroup";

bool HasExtension(const std::string& fileName, const char* extension) {
  return SameText(ExtractFileExt(fileName), extension);
}

TStringList Companions(const std::string& fileName) {
  TStringList companions;
  const auto append = [&](const auto& extensions) {
    for (const char* extension : extensions) companions.push_back(ChangeFileExt(fileName, extension));
  };
  if (IsUnit(fileName)) append(SRC_EXTENSIONS);
  if (IsProject(fileName)) append(PRJ_EXTENSIONS);
  return companions;
}

}  // namespace

bool IsUnit(const std::string& fileName) { return HasExtension(fileName, kSourceExtension); }

bool IsProject(const std::string& fileName) {
  return HasExtension(fileName, kProjectExtension) || HasExtension(fileName, kPackageExtension);
}

bool IsProjectFile(const std::string& fileName) {
  return IsProject(fileName) || HasExtension(fileName, kProjectGroupExtension);
}

TStringList CurrentProjectFiles(bool onlyExisting) {
  TStringList files;
  rv_EnumProjectUnits(&files);
  files.push_back(GetCurrentProjectFile());
  TStringList companions;
  for (const auto& file : files) std::ranges::move(Companions(file), std::back_inserter(companions));
  std::ranges::move(companions, std::back_inserter(files));
  if (onlyExisting) std::erase_if(files, [](const std::string& file) { return !FileExists(file); });
  return files;
}

void AppendCompanions(const std::string& fileName, const TFileIndex& source, TStringList& dest,
                      bool checkDisk, const TStatusArray& statuses) {
  for (const auto& companion : Companions(fileName))
    source.ForEachRow(companion, [&](std::size_t row) {
      if ((checkDisk && FileExists(companion)) || (statuses[row] & scc::SCC_STATUS_CONTROLLED))
        dest.push_back(companion);
    });
}

}  // namespace kestrel::addin
