#include "expert/ProviderContext.h"

#include <stdexcept>
#include <tuple>

#include "expert/MappingFile.h"
#include "expert/MappingFileStrings.h"
#include "expert/SccExpertStrings.h"
#include "host/Errors.h"
#include "provider/ProviderStrings.h"
#include "provider/SCMAddInOptions.h"
#include "system/Paths.h"
#include "system/Registry.h"
#include "system/System.h"

namespace kestrel::addin {

namespace {

constexpr std::size_t kUserNameBuffer = 37;  // characters, terminator included

std::string ReadRegistry(const std::string& key, const std::string& name) {
  TRegistry registry;
  return registry.OpenKeyReadOnly(key) ? registry.ReadString(name) : std::string();
}

}  // namespace

TProviderContext::~TProviderContext() {
  if (activities_.InProviderCall())
    std::ignore = list_.release();
  else
    Release();
}

TSCCProviderList& TProviderContext::RequireList(const std::string& noProvider) const {
  if (!list_) throw EAbort(noProvider);
  return *list_;
}

TSCCProviderProject& TProviderContext::SelectProject(const std::string& directory,
                                                     const std::string& noProvider) const {
  if (!RequireList(noProvider).SetCurrentProject(directory)) throw EAbort(sNoMatchingPath);
  return *list_->CurrentProject();
}

void TProviderContext::ReadSettings(const std::string& projectFile) {
  const auto read = [&] {
    name_.clear();
    userName_.clear();
    const auto file = Trim(projectFile).empty() ? "" : ChangeFileExt(projectFile, kMappingExtension);
    const TMappingFile mapping(file);
    if (const auto sections = mapping.Sections(); !sections.empty()) {
      name_ = sections.front();
      userName_ = mapping.Read(name_, kMapUserName);
    }
    if (name_.empty()) ReadProviderOption();
    if (userName_.empty()) ReadUserOption();
    ReadPath();
    TSCMAddInEnvironmentOptions::SaveChanges();
  };
  RunCatching(read, ToLog(mwtError, sReadSettingsError));
}

void TProviderContext::ReadProviderOption() {
  TSCMAddInEnvironmentOptions options;
  if (options.SCCProvider().empty()) {
    std::string name;
    ReadDefaultProvider(name);
    options.SetSCCProvider(name);
  }
  name_ = options.SCCProvider();
}

void TProviderContext::ReadUserOption() {
  TSCMAddInEnvironmentOptions options;
  if (options.UserName().empty()) options.SetUserName(GetUserNameText(kUserNameBuffer));
  userName_ = options.UserName();
}

void TProviderContext::ReadPath() {
  path_ = ReadRegistry(ReadRegistry(kInstalledProvidersKey, name_), kServerPath);
}

void TProviderContext::ReadDefaultProvider(std::string& name) {
  const auto read = [&] {
    const auto defaultKey = ReadRegistry(kProviderKey, kProviderRegKey);
    TRegistry installed;
    if (!installed.OpenKeyReadOnly(kInstalledProvidersKey)) return;
    for (const auto& provider : installed.GetValueNames()) {
      if (!SameText(installed.ReadString(provider), defaultKey)) continue;
      name = provider;
      return;
    }
  };
  RunCatching(read, ToLog(mwtError, sReadDefaultProviderError));
}

void TProviderContext::Select(const std::string& name, const std::optional<std::string>& userName) {
  name_ = name;
  userName_ = userName.value_or(userName_);
  ReadPath();
}

bool TProviderContext::Create(TWindowHandle window) {
  Release();
  if (path_.empty()) {
    log_.WarnOnce(SCCProviderInstalled() ? Format(sProviderNotInstalled, {name_})
                                         : sNoProvidersInstalled.str());
    return false;
  }
  Load(window);
  return true;
}

void TProviderContext::Load(TWindowHandle window) {
  Release();
  list_ = std::make_unique<TSCCProviderList>(path_, window, userName_);
}

void TProviderContext::SetOpenProjectFile(const std::string& projectFile) {
  openProjectFile_ = projectFile;
  statuses_.Show(projectFile);
}

// Providers may require that SccUninitialize is called with no project open.
void TProviderContext::Release() {
  activities_.RequireNoProviderCall();
  if (list_ && list_->SetCurrentProject(ExtractFileDir(openProjectFile_))) {
    TStateMessages ignored;
    list_->CurrentProject()->CloseProject(ignored);
  }
  list_.reset();
  openProjectFile_.clear();
  statuses_.Hide();
}

bool TProviderContext::ProjectExists(const std::string& mappingFile) {
  bool result = false;
  unreadMapping_ = mappingFile;
  const auto read = [&] {
    if (!FileExists(mappingFile)) return;
    const TMappingFile mapping(mappingFile);
    const auto damage = mapping.Damage();
    if (damage.empty()) unreadMapping_.clear();
    result = mapping.HasSection(name_);
    projectNotMapped_ = !result;
    if (!damage.empty())
      log_.WarnOnce(damage);
    else if (mapping.Sections().empty())
      log_.WarnOnce(Format(sMappingFileEmpty, {mappingFile}));
  };
  RunCatching(read, ToLog(mwtInfo, sProjectExistsError));
  return result;
}

bool TProviderContext::MappingAppeared(const std::string& mappingFile) const {
  if (!openProjectFile_.empty() || mappingFile != unreadMapping_ || !FileExists(mappingFile)) return false;
  bool intact = false;
  // ProjectExists() has already reported the error.
  RunCatching([&] { intact = TMappingFile(mappingFile).Damage().empty(); }, [](const std::exception&) {});
  return intact;
}

TProjectBinding TProviderContext::ReadBinding(const std::string& projectFile,
                                              const std::string& userName) const {
  TProjectBinding binding;
  binding.UserName = userName;
  const auto read = [&] {
    TMappingFile mapping(MappingFileName(projectFile));
    binding.ProjName = mapping.Read(name_, kMapProjName);
    binding.AuxProjPath = mapping.Read(name_, kMapAuxProjPath);
    if (!mapping.HasKey(name_, kMapUserName)) mapping.Write(name_, kMapUserName, userName);
    binding.UserName = mapping.Read(name_, kMapUserName);
  };
  binding.Complete = RunCatching(read, ToLog(mwtInfo, sReadSCCIniFileError));
  return binding;
}

bool TProviderContext::UpdateUserName(const std::string& projectFile, const std::string& userName) const {
  if (Trim(projectFile).empty() || Trim(userName).empty()) return false;
  const auto write = [&] { TMappingFile(MappingFileName(projectFile)).Write(name_, kMapUserName, userName); };
  return RunCatching(write, ToLog(mwtInfo, sUpdateSCCIniFileError));
}

}  // namespace kestrel::addin
