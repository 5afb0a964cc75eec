// Settings: which provider, where its library is, under which user name; and the project mapping file.
#include <stdexcept>

#include "expert/MappingFile.h"
#include "expert/MappingFileStrings.h"
#include "expert/SccExpert.h"
#include "expert/SccExpertStrings.h"
#include "host/Errors.h"
#include "host/Paths.h"
#include "host/Registry.h"
#include "host/System.h"
#include "provider/ProviderStrings.h"
#include "provider/SCMAddInOptions.h"
#include "ui/ExpertMainMenuStrings.h"

namespace {

constexpr std::size_t kUserNameBuffer = 37;  // characters, terminator included

std::string ReadRegistry(const std::string& key, const std::string& name) {
  TRegistry registry;
  return registry.OpenKeyReadOnly(key) ? registry.ReadString(name) : std::string();
}

}  // namespace

void TSccExpert::ReadSettings() {
  Guarded(mwtError, sReadSettingsError, [this] {
    ReadProviderOption();
    ReadUserOption();
    ReadProviderPath();
    TSCMAddInEnvironmentOptions::SaveChanges();
  });
}

void TSccExpert::ReadProjectSettings(const std::string& projectFile) {
  Guarded(mwtError, sReadSettingsError, [&] {
    provider_name_.clear();
    user_name_.clear();
    const TMappingFile mapping(ChangeFileExt(projectFile, kMappingExtension));
    if (const auto sections = mapping.Sections(); !sections.empty()) {
      provider_name_ = sections.front();
      user_name_ = mapping.Read(provider_name_, kMapUserName);
    }
    if (provider_name_.empty()) ReadProviderOption();
    if (user_name_.empty()) ReadUserOption();
    ReadProviderPath();
    TSCMAddInEnvironmentOptions::SaveChanges();
  });
}

void TSccExpert::ReadProviderOption() {
  TSCMAddInEnvironmentOptions options;
  if (options.SCCProvider().empty()) {
    std::string name;
    ReadDefaultProvider(name);
    options.SetSCCProvider(name);
  }
  provider_name_ = options.SCCProvider();
}

void TSccExpert::ReadUserOption() {
  TSCMAddInEnvironmentOptions options;
  if (options.UserName().empty()) options.SetUserName(GetUserNameText(kUserNameBuffer));
  user_name_ = options.UserName();
}

void TSccExpert::ReadProviderPath() {
  provider_path_ = ReadRegistry(ReadRegistry(kInstalledProvidersKey, provider_name_), kServerPath);
}

void TSccExpert::ReadDefaultProvider(std::string& name) {
  Guarded(mwtError, sReadDefaultProviderError, [&] {
    const auto defaultKey = ReadRegistry(kProviderKey, kProviderRegKey);
    TRegistry installed;
    if (!installed.OpenKeyReadOnly(kInstalledProvidersKey)) return;
    for (const auto& provider : installed.GetValueNames()) {
      if (!SameText(installed.ReadString(provider), defaultKey)) continue;
      name = provider;
      return;
    }
  });
}

bool TSccExpert::ProviderCreate(TWindowHandle param) {
  ReleaseProvider();
  if (provider_path_.empty()) {
    WarnOnce(SCCProviderInstalled() ? Format(sProviderNotInstalled, {provider_name_})
                                    : sNoProvidersInstalled.str());
    return false;
  }
  provider_list_ = std::make_unique<TSCCProviderList>(provider_path_, param, user_name_);
  return true;
}

void TSccExpert::SelectProvider(const std::string& name) {
  provider_name_ = name;
  ReadProviderPath();
}

void TSccExpert::ChooseProvider(const std::string& provider, const std::string& userName) {
  activities_.Run(TActivity::ProviderChoice, [&] {
    ReleaseProvider();
    SelectProvider(provider);
    user_name_ = userName;
    auto* services = IdeService<IOTAServices>();
    if (!services) throw EAbort(sUnableToGetIDEServices);
    provider_list_ =
        std::make_unique<TSCCProviderList>(provider_path_, services->GetParentHandle(), user_name_);
    project_not_mapped_ = true;  // the next opening of the menu starts over with it
  });
}

bool TSccExpert::ReadSCCIniFile(const std::string& projectFile, std::string& projName, std::string& userName,
                                std::string& auxProjPath) {
  bool result = false;
  Guarded(mwtInfo, sReadSCCIniFileError, [&] {
    TMappingFile mapping(MappingFileName(projectFile));
    projName = mapping.Read(provider_name_, kMapProjName);
    auxProjPath = mapping.Read(provider_name_, kMapAuxProjPath);
    if (!mapping.HasKey(provider_name_, kMapUserName)) mapping.Write(provider_name_, kMapUserName, userName);
    userName = mapping.Read(provider_name_, kMapUserName);
    result = true;
  });
  return result;
}

bool TSccExpert::UpdateSCCIniFile(const std::string& projectFile, const std::string& userName) {
  if (Trim(projectFile).empty() || Trim(userName).empty()) return false;
  bool result = false;
  Guarded(mwtInfo, sUpdateSCCIniFileError, [&] {
    TMappingFile(MappingFileName(projectFile)).Write(provider_name_, kMapUserName, userName);
    result = true;
  });
  return result;
}

bool TSccExpert::ProjectExists(const std::string& mappingFile) {
  bool result = false;
  unread_mapping_ = mappingFile;
  Guarded(mwtInfo, sProjectExistsError, [&] {
    if (!FileExists(mappingFile)) return;
    const TMappingFile mapping(mappingFile);
    const auto damage = mapping.Damage();
    if (damage.empty()) unread_mapping_.clear();
    result = mapping.HasSection(provider_name_);
    project_not_mapped_ = !result;
    if (!damage.empty())
      WarnOnce(damage);
    else if (mapping.Sections().empty())
      WarnOnce(Format(sMappingFileEmpty, {mappingFile}));
  });
  return result;
}

bool TSccExpert::MappingAppeared() {
  if (!open_project_file_.empty() || !FileExists(unread_mapping_)) return false;
  if (unread_mapping_ != ChangeFileExt(Trim(GetCurrentProjectFile()), kMappingExtension)) return false;
  try {
    return TMappingFile(unread_mapping_).Damage().empty();
  } catch (const std::runtime_error&) {
    return false;  // as before, and that has been said
  }
}
