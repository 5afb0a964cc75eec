#include "workbench/macro/ProviderWindows.h"

#include <wx/filename.h>
#include <wx/utils.h>

#include <filesystem>

#include "system/FileName.h"
#include "system/Paths.h"
#include "system/System.h"
#include "toolkit/WxText.h"
#include "workbench/macro/MacroStrings.h"

namespace kestrel::workbench {

namespace fs = std::filesystem;

TProviderWindows::TProviderWindows() : folder_(FromWx(wxFileName::CreateTempFileName("played"))) {
  fs::remove(ToFilePath(folder_));
  fs::create_directory(ToFilePath(folder_));
  wxSetEnv(kExchangeFolder, ToWx(folder_));
}

TProviderWindows::~TProviderWindows() {
  std::error_code ignored;
  fs::remove_all(ToFilePath(folder_), ignored);
}

std::string TProviderWindows::Front() const {
  const auto file = ResolvePath(folder_, "front");
  try {
    return FileExists(file) ? ReadWholeFile(file) : std::string();
  } catch (const std::exception&) {  // it is being removed
    return {};
  }
}

std::string TProviderWindows::Run(const TMacroStep& step) {
  const auto answer = ResolvePath(folder_, "answer");
  if (!busy_) WriteFileAtomically(ResolvePath(folder_, "step"), step.Text);
  busy_ = !FileExists(answer);
  if (busy_) return sNotDone;
  const auto result = ReadWholeFile(answer);
  fs::remove(ToFilePath(answer));
  return result;
}

}  // namespace kestrel::workbench
