#include "expert/ProjectFiles.h"

#include <algorithm>
#include <iterator>

#include "expert/SccSystem.h"
#include "host/Services.h"
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

/// The kinds of files of a host without that service.
class TDefaultFileTypes final : public IOTAFileTypes {
 public:
  TFileKind GetKind(const std::string& fileName) override {
    if (HasExtension(fileName, kSourceExtension)) return TFileKind::Source;
    if (HasExtension(fileName, kProjectExtension) || HasExtension(fileName, kPackageExtension))
      return TFileKind::Project;
    if (HasExtension(fileName, kProjectGroupExtension)) return TFileKind::Group;
    // Compared exactly: only the spelling that the IDE writes is a form file.
    return ExtractFileExt(fileName) == kFormExtension ? TFileKind::Form : TFileKind::Other;
  }
  std::string GetUnit(const std::string& fileName) override {
    return ChangeFileExt(fileName, kSourceExtension);
  }
  TStringList GetCompanions(const std::string& fileName) override {
    TStringList companions;
    const auto append = [&](const auto& extensions) {
      for (const char* extension : extensions) companions.push_back(ChangeFileExt(fileName, extension));
    };
    const auto kind = GetKind(fileName);
    if (kind == TFileKind::Source) append(SRC_EXTENSIONS);
    if (kind == TFileKind::Project) append(PRJ_EXTENSIONS);
    return companions;
  }
  void* QueryInterface(const TGuid& iid) noexcept override { return FindInterface<IOTAFileTypes>(this, iid); }
};

}  // namespace

IOTAFileTypes& FileTypes() {
  static TDefaultFileTypes defaults;
  auto* host = IdeService<IOTAFileTypes>();
  return host ? *host : defaults;
}

bool IsUnit(const std::string& fileName) { return FileTypes().GetKind(fileName) == TFileKind::Source; }

bool IsProject(const std::string& fileName) { return FileTypes().GetKind(fileName) == TFileKind::Project; }

bool IsProjectFile(const std::string& fileName) {
  return IsProject(fileName) || FileTypes().GetKind(fileName) == TFileKind::Group;
}

TStringList CurrentProjectFiles(bool onlyExisting) {
  TStringList files;
  rv_EnumProjectUnits(&files);
  files.push_back(GetCurrentProjectFile());
  TStringList companions;
  for (const auto& file : files)
    std::ranges::move(FileTypes().GetCompanions(file), std::back_inserter(companions));
  std::ranges::move(companions, std::back_inserter(files));
  if (onlyExisting) std::erase_if(files, [](const std::string& file) { return !FileExists(file); });
  return files;
}

void AppendCompanions(const std::string& fileName, const TFileIndex& source, TStringList& dest,
                      bool checkDisk, const TStatusArray& statuses) {
  for (const auto& companion : FileTypes().GetCompanions(fileName))
    source.ForEachRow(companion, [&](std::size_t row) {
      if ((checkDisk && FileExists(companion)) || (statuses[row] & scc::SCC_STATUS_CONTROLLED))
        dest.push_back(companion);
    });
}

}  // namespace kestrel::addin
