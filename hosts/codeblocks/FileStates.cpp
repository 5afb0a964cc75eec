#include "FileStates.h"

#include <unordered_map>

#include "Sdk.h"

namespace kestrel::codeblocks {

namespace {

FileVisualState Picture(TFileMark mark) {
  switch (mark) {
    case TFileMark::NotControlled:
      return fvsVcNonControlled;
    case TFileMark::Controlled:
      return fvsVcUpToDate;
    case TFileMark::OutToMe:
      return fvsVcGotLock;
    case TFileMark::Changed:
      return fvsVcModified;
    case TFileMark::OutOfDate:
      return fvsVcOutOfDate;
    case TFileMark::OutToOther:
      return fvsVcLockStolen;
    case TFileMark::InConflict:
      return fvsVcConflict;
    default:
      return fvsNormal;
  }
}

/// Calls `visit` for each file of each open project; the tree is painted once afterwards.
template <class Visit>
void ForEachProjectFile(Visit visit) {
  if (Manager::IsAppShuttingDown()) return;  // the tree may be gone
  Projects().GetUI().FreezeTree();
  for (const auto* project : *Projects().GetProjects())
    for (auto* file : project->GetFilesList()) visit(*file);
  Projects().GetUI().UnfreezeTree();
}

}  // namespace

void TFileStates::SetFileStates(const std::vector<TFileState>& states) {
  std::unordered_map<std::string, TFileMark> marks;
  for (const auto& state : states) marks.insert_or_assign(FoldFileName(state.FileName), state.Mark);
  ForEachProjectFile([&](ProjectFile& file) {
    const auto found = marks.find(FoldFileName(FromWx(file.file.GetFullPath())));
    if (found != marks.end()) file.SetFileState(Picture(found->second));
  });
}

void TFileStates::ClearFileStates() {
  ForEachProjectFile([](ProjectFile& file) {
    if (file.GetFileState() >= fvsVcAdded) file.SetFileState(fvsNormal);
  });
}

}  // namespace kestrel::codeblocks
