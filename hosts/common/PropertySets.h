// Per-user settings: named sets of string fields in the registry, for hosts and packages.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "host/Options.h"
#include "hosts/common/Notifications.h"

namespace kestrel {

/// The values of one key of the current user's registry. Names are case-insensitive, as in the registry.
class TPropertySet final : public IOTAPropertySet {
 public:
  explicit TPropertySet(std::string key);
  std::string GetValue(const std::string& field) override;
  void SetValue(const std::string& field, const std::string& value) override;
  void Load() override;
  void Save() override;
  /// The field as a number; `fallback` if it is not a number or outside [low, high].
  int GetNumber(const std::string& field, int fallback, int low, int high);
  void SetNumber(const std::string& field, int value) { SetValue(field, std::to_string(value)); }
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAPropertySet>(this, iid);
  }

 private:
  struct TField {
    std::string Name;
    std::string Value;
  };
  std::string key_;
  std::map<std::string, TField> fields_;  // by folded name
};

class TOptionsServices final : public IOTAOptionsServices {
 public:
  /// `settingsKey` is the host's key in the current user's registry, without a trailing backslash.
  explicit TOptionsServices(std::string settingsKey) : settingsKey_(std::move(settingsKey)) {}
  TPropertySet& PropertySet(const std::string& key) override;
  int AddOptions(std::shared_ptr<IOTAAddInOptions> options) override {
    return addIns_.Add(std::move(options));
  }
  void RemoveOptions(int index) override { addIns_.Remove(index); }
  TRegistrations<IOTAAddInOptions>& AddIns() { return addIns_; }
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAOptionsServices>(this, iid);
  }

 private:
  std::string settingsKey_;
  std::map<std::string, std::unique_ptr<TPropertySet>> sets_;  // by folded key
  TRegistrations<IOTAAddInOptions> addIns_;
};

}  // namespace kestrel
