#include "FileTypes.h"

#include <array>
#include <span>

#include "Sdk.h"
#include "system/System.h"

namespace kestrel::codeblocks {

namespace {
constexpr std::array kSources{".c", ".cc", ".cpp", ".cxx"};
constexpr std::array kHeaders{".h", ".hh", ".hpp", ".hxx"};
}  // namespace

TFileKind TFileTypes::GetKind(const std::string& fileName) {
  switch (FileTypeOf(ToWx(fileName))) {
    case ftCodeBlocksProject:
      return TFileKind::Project;
    case ftCodeBlocksWorkspace:
      return TFileKind::Group;
    default:
      return TFileKind::Source;  // a project may hold any file
  }
}

std::vector<std::string> TFileTypes::GetCompanions(const std::string& fileName) {
  const auto type = FileTypeOf(ToWx(fileName));
  std::span<const char* const> extensions;
  if (type == ftSource) extensions = kHeaders;
  if (type == ftHeader) extensions = kSources;
  std::vector<std::string> companions;
  for (const char* extension : extensions) {
    auto companion = ChangeFileExt(fileName, extension);
    // A file that a project lists is offered to the user itself.
    if (FileExists(companion) && !Projects().FindProjectForFile(ToWx(companion), nullptr, false, false))
      companions.push_back(std::move(companion));
  }
  return companions;
}

}  // namespace kestrel::codeblocks
