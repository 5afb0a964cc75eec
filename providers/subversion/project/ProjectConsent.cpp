#include "subversion/project/ProjectConsent.h"

#include <algorithm>
#include <filesystem>

#include "subversion/project/ProjectStrings.h"
#include "subversion/project/UsedRepositories.h"
#include "subversion/svn/Question.h"
#include "subversion/svn/Repository.h"
#include "system/System.h"

namespace kestrel::svnscc {
namespace {

namespace fs = std::filesystem;

bool Mentions(const fs::directory_entry& file, const std::string& text) {
  constexpr std::uintmax_t kLargest = 64 * 1024;  // a mapping file has a few lines
  std::error_code error;
  if (!file.is_regular_file(error) || file.file_size(error) > kLargest) return false;
  try {
    return ReadWholeFile(file.path().string()).find(text) != std::string::npos;
  } catch (const std::runtime_error&) {
    return false;
  }
}

/// The mapping file beside the project that names the repository, else the project's folder.
std::string Origin(const Project& project, const ProjectNames& names) {
  std::error_code error;
  std::vector<std::string> mappings;
  for (const auto& entry : fs::directory_iterator(project.Folder, error))
    if (entry.path().extension() == ".cdp" && Mentions(entry, names.Repository))
      mappings.push_back(entry.path().string());
  if (mappings.empty()) return NativeName(project.Folder);
  return *std::min_element(mappings.begin(), mappings.end());
}

/// Replaces characters that could forge the question's text: line breaks, control and format characters.
std::string OneLine(std::string text) {
  const bool tricky = std::any_of(text.begin(), text.end(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < ' ' || byte == 0x7F;
  });
  const bool turned =
      text.find("\xE2\x80") != std::string::npos || text.find("\xE2\x81") != std::string::npos;
  if (!tricky && !turned) return text;
  std::replace_if(
      text.begin(), text.end(),
      [](char c) { return static_cast<unsigned char>(c) < ' ' || static_cast<unsigned char>(c) >= 0x7F; },
      '?');
  return text;
}

/// Asks, and stores the consent.
void Require(const TResString& text, const TResString& note, const std::string& root, const Project& project,
             const ProjectNames& names, const OpenMode& mode) {
  const std::string repository = OneLine(ReadableUrl(root));
  const auto refuse = [&](const TResString& reason) {
    throw Failure(scc::SCC_E_OPNOTPERFORMED, Format(reason.Text, {repository}));
  };
  if (mode.Silent) refuse(sNotAskedSilent);
  const std::string facts =
      Format(text.Text, {OneLine(Origin(project, names)), repository,
                         OneLine("/" + ToProjectPath(names.ProjectName).value_or("")), OneLine(names.User)});
  const auto answer =
      AskUser(mode.Parent, {sConsentTitle.str(), facts + note.str() + sConsentQuestion.str()});
  if (answer != true) refuse(answer ? sConsentRefused : sNotAskedNoWindow);
  MarkUsed(root);
  if (mode.MayCreate) MarkUsed(project.Url);
}

}  // namespace

void RequireConsent(const std::string& root, const Project& project, const ProjectNames& names,
                    const OpenMode& mode) {
  if (IsUsed(root)) return;
  Require(sConsentNewRepository, mode.MayCreate ? sConsentMayCreate : sConsentNoNote, root, project, names,
          mode);
}

void RequireFolderConsent(const std::string& root, const Project& project, const ProjectNames& names,
                          const OpenMode& mode) {
  if (IsUsed(project.Url)) return;
  Require(sConsentNewFolder, sConsentWillCreate, root, project, names, mode);
}

}  // namespace kestrel::svnscc
