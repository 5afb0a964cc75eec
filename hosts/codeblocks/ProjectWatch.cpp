#include "ProjectWatch.h"

#include <algorithm>
#include <vector>

#include "Sdk.h"

namespace kestrel::codeblocks {

void TProjectWatch::FileOpened(const std::string& fileName) {
  if (!fileName.empty() && files_.insert(fileName).second) notifications_.FileOpened(fileName);
}

// The IDE closes files and projects without asking its plug-ins, so that a veto has no effect.

void TProjectWatch::FileClosing(const std::string& fileName) {
  if (files_.erase(fileName) > 0) notifications_.FileClosing(fileName);
}

void TProjectWatch::ProjectClosing(const std::string& fileName) {
  if (projects_.erase(fileName) == 0) return;
  if (active_ == fileName) active_.clear();
  notifications_.FileClosing(fileName);
}

void TProjectWatch::Update() {
  auto& projects = Projects();
  if (projects.IsLoadingOrClosing()) return;
  std::vector<std::string> opened;
  for (const auto* project : *projects.GetProjects())
    if (const auto file = FileOf(project); projects_.insert(file).second) opened.push_back(file);
  const auto active = FileOf(projects.GetActiveProject());
  const bool switched = std::exchange(active_, active) != active && !active.empty();
  for (const auto& file : opened) notifications_.FileOpened(file);
  if (switched && std::ranges::find(opened, active) == opened.end())
    notifications_.ActiveProjectChanged(active);
}

}  // namespace kestrel::codeblocks
