#include "provider/SCMAddInOptions.h"

#include "host/Services.h"

namespace {

constexpr const char* kOptionsKey = "SCMOptions";
constexpr const char* kUserNameField = "UserName";
constexpr const char* kProviderField = "SCCProvider";

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

std::string TSCMAddInEnvironmentOptions::SCCProvider() const { return Get(kProviderField); }
void TSCMAddInEnvironmentOptions::SetSCCProvider(const std::string& value) { Set(kProviderField, value); }
std::string TSCMAddInEnvironmentOptions::UserName() const { return Get(kUserNameField); }
void TSCMAddInEnvironmentOptions::SetUserName(const std::string& value) { Set(kUserNameField, value); }

void TSCMAddInEnvironmentOptions::SaveChanges() {
  auto* set = changed ? SetSCMOptions() : nullptr;
  changed = false;
  if (set) set->Save();
}
