#include "expert/SccSystem.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "expert/SccSystemStrings.h"
#include "host/Services.h"
#include "system/Paths.h"
#include "system/Registry.h"
#include "system/System.h"
#include "system/Text.h"

namespace kestrel::addin {

namespace {

constexpr std::size_t kNameBuffer = 128;  // characters, terminator included
constexpr const char* kHelpKey = "SOFTWARE\\Microsoft\\Windows\\Help";

/// Never project units, although a project may list them.
constexpr std::array EXCLUDE_EXTENSIONS{".dll", ".exe"};

bool IsExcluded(const std::string& fileName) {
  const auto extension = ExtractFileExt(fileName);
  return std::ranges::any_of(EXCLUDE_EXTENSIONS,
                             [&](auto excluded) { return SameText(extension, excluded); });
}

}  // namespace

std::string GetUser() { return GetUserNameText(kNameBuffer); }

std::string GetCurrentDir() { return GetCurrentDirectoryText(kNameBuffer); }

IOTAProject* CurrentProject() {
  auto* services = IdeService<IOTAModuleServices>();
  IOTAProject* result = nullptr;
  const int count = services ? services->GetModuleCount() : 0;
  for (int i = 0; i < count; ++i) {
    auto* module = services->GetModule(i);
    if (auto* group = Supports<IOTAProjectGroup>(module)) {
      if (auto* active = group->GetActiveProject()) return active;
    } else if (auto* project = Supports<IOTAProject>(module)) {
      result = project;
    }
  }
  return result;
}

std::string GetCurrentProjectFile() {
  auto* project = CurrentProject();
  return project ? project->GetFileName() : std::string();
}

bool IsUnitModified(const std::string& fileName) {
  auto* services = IdeService<IOTAModuleServices>();
  auto* module = services ? services->FindModule(fileName) : nullptr;
  if (!module) return false;
  auto* source = Supports<IOTASourceEditor>(module->GetEditor(0));
  if (!source) throw std::runtime_error(sIDESourceNAError);
  return source->GetModified();
}

IOTAEditor* FindEditor(const std::string& fileName, const std::string& unit) {
  auto* services = IdeService<IOTAModuleServices>();
  auto* module = services ? services->FindModule(fileName) : nullptr;
  if (!module && services) module = services->FindModule(unit);
  const int count = module ? module->GetEditorCount() : 0;
  for (int i = 0; i < count; ++i)
    if (auto* editor = module->GetEditor(i); editor && SameText(editor->GetFileName(), fileName))
      return editor;
  return nullptr;
}

std::string rv_GetCurrentFile() {
  auto* editors = IdeService<IOTAEditorServices>();
  auto* buffer = editors ? editors->GetTopBuffer() : nullptr;
  if (!buffer) return {};
  auto* modules = IdeService<IOTAModuleServices>();
  auto name = buffer->GetFileName();
  return modules && modules->FindModule(name) ? name : std::string();
}

int rv_GetUnitCount() {
  auto* project = CurrentProject();
  return project ? project->GetModuleCount() : 0;
}

void rv_EnumProjectUnits(std::vector<std::string>* list) {
  auto* project = list ? CurrentProject() : nullptr;
  if (!project) return;
  list->clear();
  const int count = project->GetModuleCount();
  for (int i = 0; i < count; ++i) {
    auto name = project->ModuleFileName(i);
    if (!IsExcluded(name)) list->push_back(std::move(name));
  }
}

IOTAFormEditor* GetFormEditor(IOTAModule* module, const std::string& extension) {
  IOTAFormEditor* result = nullptr;
  const int count = module ? module->GetEditorCount() : 0;
  for (int i = 0; i < count; ++i) {
    auto* editor = module->GetEditor(i);
    result = Supports<IOTAFormEditor>(editor);
    if (editor && ExtractFileExt(editor->GetFileName()) == extension) break;
  }
  return result;
}

IOTAFormEditor* GetActiveFormEditor() {
  auto* services = IdeService<IOTAModuleServices>();
  auto* module = services ? services->CurrentModule() : nullptr;
  const int count = module ? module->GetEditorCount() : 0;
  for (int i = 0; i < count; ++i)
    if (auto* form = Supports<IOTAFormEditor>(module->GetEditor(i))) return form;
  return nullptr;
}

std::string GetRVHelpFile(const std::string& helpFile) {
  TRegistry registry;
  if (!registry.OpenKeyReadOnly(kHelpKey)) return {};
  auto directory = registry.ReadString(helpFile);
  if (directory.empty()) return std::string(1, PathDelim) + helpFile;
  return IncludeTrailingPathDelimiter(directory) + helpFile;
}

}  // namespace kestrel::addin
