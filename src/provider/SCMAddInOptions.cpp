#include "provider/SCMAddInOptions.h"

#include <stdexcept>

#include "host/Services.h"
#include "provider/SCMOptionsStrings.h"

namespace kestrel::addin {

namespace {

constexpr const char* kOptionsKey = "SCMOptions";
constexpr const char* kPageClass = "TSCMOptionsPage";
constexpr int kPageHelpContext = 13200;

bool changed = false;

IOTAPropertySet* SetSCMOptions() {
  auto* services = IdeService<IOTAOptionsServices>();
  return services ? &services->PropertySet(kOptionsKey) : nullptr;
}

std::string Get(const char* field) {
  auto* set = SetSCMOptions();
  return set ? set->GetValue(field) : std::string();
}

void Set(const char* field, const std::string& value) {
  auto* set = SetSCMOptions();
  if (!set || set->GetValue(field) == value) return;
  set->SetValue(field, value);
  changed = true;
}

}  // namespace

std::string TSCMAddInEnvironmentOptions::SCCProvider() const { return Get(kSCMProviderField); }
void TSCMAddInEnvironmentOptions::SetSCCProvider(const std::string& value) { Set(kSCMProviderField, value); }
std::string TSCMAddInEnvironmentOptions::UserName() const { return Get(kSCMUserNameField); }
void TSCMAddInEnvironmentOptions::SetUserName(const std::string& value) { Set(kSCMUserNameField, value); }

void TSCMAddInEnvironmentOptions::CustomizeDialog(IOTAEnvironmentDialog& dialog) {
  dialog.RegisterPage({kPageClass, sSCMOptionsPage, kPageHelpContext, page_});
}

void TSCMAddInEnvironmentOptions::Modified() { changed = true; }

void TSCMAddInEnvironmentOptions::SaveOptions() {
  GetPropertySet().Save();
  Modified();
}

void TSCMAddInEnvironmentOptions::LoadOptions() { GetPropertySet().Load(); }

IOTAPropertySet& TSCMAddInEnvironmentOptions::GetPropertySet() {
  auto* set = SetSCMOptions();
  if (!set) throw std::runtime_error(sNoOptionsStore);
  return *set;
}

void TSCMAddInEnvironmentOptions::SaveChanges() {
  auto* set = changed ? SetSCMOptions() : nullptr;
  changed = false;
  if (set) set->Save();
}

}  // namespace kestrel::addin
