// An expert in a host in memory, on the scripted provider: a mapped project App in a temporary folder, and a script for
// every window.
#pragma once

#include <algorithm>
#include <memory>

#include "expert/SccExpert.h"
#include "host/Errors.h"
#include "support/NativePath.h"
#include "support/ScriptedForms.h"
#include "support/ScriptedHost.h"
#include "support/ScriptedProvider.h"
#include "support/TemporaryFolder.h"
#include "support/TestRegistry.h"
#include "support/Testing.h"
#include "system/Paths.h"
#include "system/Registry.h"
#include "ui/ExpertMainMenu.h"

namespace kestrel::addin {

inline constexpr const char* kScripted = "Scripted";

class TExpertTest : public testing::Test {
 protected:
  TExpertTest() {
    InstallProvider(kScripted, ScriptedProviderLibrary::Path(), true);
    project_file_ = folder_.Write("work/App.qvxproj", "[Modules]\n");
    WriteMapping("[Scripted]\nProjName=trunk/App\nAuxProjPath=repo\nUserName=ann\n");
    for (const char* unit : {"unit1.pas", "unit2.pas"})
      units_.push_back(folder_.Write(std::string("work/") + unit, "x"));
    folder_.Write("work/unit1.kfm", "form");
  }
  ~TExpertTest() override {
    EXPECT_THAT(forms_.Unexpected, IsEmpty());
    expert_.reset();
  }

  void InstallProvider(const std::string& name, const std::string& path, bool isDefault) {
    const auto key = "Software\\" + name;
    WriteValue(key, kServerName, name);
    WriteValue(key, kServerPath, path);
    WriteValue(kInstalledProvidersKey, name, key);
    if (isDefault) WriteValue(kProviderKey, kProviderRegKey, key);
  }
  void WriteMapping(const std::string& text) { folder_.Write("work/App.cdp", text); }
  std::string Mapping() const { return WithoutReturns(ReadWholeFile(folder_ / "work/App.cdp")); }
  std::string At(const std::string& name) const { return folder_ / ("work/" + name); }

  /// Creates the expert, as the host's main form does.
  TSccExpert& Start() {
    expert_ = std::make_unique<TSccExpert>(forms_);
    return *expert_;
  }
  /// Starts and opens the project in the host.
  TSccExpert& Open() {
    Start();
    host_.AddProject(project_file_, units_);
    host_.Notify(TOTAFileNotification::fnFileOpened, project_file_);
    return *expert_;
  }
  /// A script for the file list: ticks these names and presses OK.
  void WillTick(std::vector<std::string> names) {
    forms_.OnFileList.push_back([names](TFileListModel& model) {
      for (std::size_t row = 0; row < model.Count(); ++row)
        model.SetChecked(row, std::ranges::count(names, model.NameOf(row)) > 0);
      return mrOk;
    });
  }
  void WillComment(const std::string& text) {
    forms_.OnComments.push_back([text](TCommentModel& model) {
      model.Text = text;
      return mrOk;
    });
  }
  /// The files that the calls of an entry point were given, in order.
  std::vector<std::string> GivenTo(const std::string& entry) {
    std::vector<std::string> files;
    for (const auto& call : provider_->Calls)
      if (call.Entry == entry) files.insert(files.end(), call.Files.begin(), call.Files.end());
    return files;
  }
  /// The names that the next file list offers; the user cancels it.
  std::vector<std::string> Offered(void (TSccExpert::*command)(const std::string&),
                                   const std::string& file = {}) {
    std::vector<std::string> names;
    forms_.OnFileList.push_back([&](TFileListModel& model) {
      for (std::size_t row = 0; row < model.Count(); ++row) names.push_back(model.NameOf(row));
      return mrCancel;
    });
    try {
      (expert_.get()->*command)(file);
    } catch (const EAbort&) {
      forms_.OnFileList.clear();
    }
    return names;
  }

  TTemporaryFolder folder_;
  TTestRegistry registry_;
  ScriptedProviderLibrary provider_;
  TScriptedHost host_;
  TScriptedForms forms_;
  std::string project_file_;
  std::vector<std::string> units_;
  std::unique_ptr<TSccExpert> expert_;
};

/// The message of the EAbort that `action` ends with.
inline std::string AbortOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const EAbort& abort) {
    return abort.what();
  }
  return "(no abort)";
}

}  // namespace kestrel::addin
