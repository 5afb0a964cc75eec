// The file commands and what they share: companions, saving, the provider project they work on.
#include <algorithm>
#include <array>

#include "expert/FileCommandRun.h"
#include "expert/SccExpert.h"
#include "expert/SccExpertStrings.h"
#include "expert/SccSystem.h"
#include "host/Errors.h"
#include "host/Paths.h"
#include "host/System.h"

void TSccExpert::AddFiles(const std::string& fileName) {
  TFileCommandRun(*this, kAddFiles, fileName).Execute();
}
void TSccExpert::RemoveFiles(const std::string& fileName) {
  TFileCommandRun(*this, kRemoveFiles, fileName).Execute();
}
void TSccExpert::GetLatestVersion(const std::string& fileName) {
  TFileCommandRun(*this, kGetLatestVersion, fileName).Execute();
}
void TSccExpert::CheckInFiles(const std::string& fileName) {
  TFileCommandRun(*this, kCheckInFiles, fileName).Execute();
}
void TSccExpert::CheckOutFiles(const std::string& fileName) {
  TFileCommandRun(*this, kCheckOutFiles, fileName).Execute();
}
void TSccExpert::UndoCheckOut(const std::string& fileName) {
  TFileCommandRun(*this, kUndoCheckOut, fileName).Execute();
}

TSCCProviderProject& TSccExpert::RequireProject(const std::string& directory, const std::string& noProvider) {
  activities_.Resume();
  if (!provider_list_) throw EAbort(noProvider);
  if (!provider_list_->SetCurrentProject(directory)) throw EAbort(sNoMatchingPath);
  return *provider_list_->CurrentProject();
}

namespace {

void AppendCompanions(const std::string& fileName, const auto& extensions, TStringList& extras) {
  for (const char* extension : extensions) extras.push_back(ChangeFileExt(fileName, extension));
}

}  // namespace

void TSccExpert::AddAssociatedFiles(TStringList* list, bool removeMissing) {
  if (!list) return;
  if (!provider_list_) throw EAbort(sGetFilesNoProvider);
  rv_EnumProjectUnits(list);
  list->push_back(GetCurrentProjectFile());

  TStringList extras;
  for (const auto& file : *list) {
    if (IsUnit(file)) AppendCompanions(file, SRC_EXTENSIONS, extras);
    if (IsProject(file)) AppendCompanions(file, PRJ_EXTENSIONS, extras);
  }
  list->insert(list->end(), std::move_iterator(extras.begin()), std::move_iterator(extras.end()));
  if (removeMissing) std::erase_if(*list, [](const std::string& file) { return !FileExists(file); });
}

void TSccExpert::GetAssociatedFiles(const std::string& fileName, const TFileIndex& source, TStringList& dest,
                                    bool checkDisk, const TStatusArray& statuses) const {
  const auto take = [&](const auto& extensions) {
    TStringList companions;
    AppendCompanions(fileName, extensions, companions);
    for (const auto& companion : companions)
      source.ForEachRow(companion, [&](std::size_t row) {
        if ((checkDisk && FileExists(companion)) || (statuses[row] & scc::SCC_STATUS_CONTROLLED))
          dest.push_back(companion);
      });
  };
  if (IsUnit(fileName)) take(SRC_EXTENSIONS);
  if (IsProject(fileName)) take(PRJ_EXTENSIONS);
}
