#include "expert/Edits.h"

#include "expert/SccExpert.h"
#include "expert/SccExpertStrings.h"
#include "expert/SccSystem.h"
#include "host/Errors.h"
#include "host/Paths.h"

namespace {

bool IsEdited(const TSccExpert& expert, const std::string& fileName) {
  if (expert.IsUnit(fileName) || expert.IsProject(fileName)) return IsUnitModified(fileName);
  auto* editor = FindEditor(fileName, ChangeFileExt(fileName, expert.SourceExtension()));
  return editor && editor->GetModified();
}

}  // namespace

void SaveEdits(const TSccExpert& expert, const std::string& fileName) {
  if (!IsEdited(expert, fileName)) return;
  auto* actions = IdeService<IOTAActionServices>();
  if (!actions || !actions->SaveFile(fileName)) throw EAbort(Format(sFileNotSaved, {fileName}));
}
