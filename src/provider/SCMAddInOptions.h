// The add-in's two per-user settings, stored in a property set of the host, and their page in the host's options dialog.
#pragma once

#include <string>

#include "host/Options.h"

namespace kestrel::addin {

// Fields of the property set.
inline constexpr const char* kSCMUserNameField = "UserName";
inline constexpr const char* kSCMProviderField = "SCCProvider";

/// A view of the settings; all instances share them.  Without a host, values are empty and setters do nothing.
class TSCMAddInEnvironmentOptions final : public IOTAAddInOptions {
 public:
  /// `page` creates the page's window; only the instance that is registered with the host needs it.
  explicit TSCMAddInEnvironmentOptions(TOptionsPageFactory page = {}) : page_(std::move(page)) {}

  /// Display name of the chosen provider; empty if none was chosen yet.
  std::string SCCProvider() const;
  void SetSCCProvider(const std::string& value);
  /// User name for the provider; empty if none was entered yet.
  std::string UserName() const;
  void SetUserName(const std::string& value);
  /// Saves changes made through any instance.  Throws std::runtime_error if they cannot be saved; they still apply until
  /// the program ends.
  static void SaveChanges();

  // Called by the host.
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAAddInOptions>(this, iid);
  }
  void CustomizeDialog(IOTAEnvironmentDialog& dialog) override;
  bool GetIsModified() override { return true; }  // the host then saves each time its dialog is accepted
  void SendModified() override { Modified(); }
  void SaveOptions() override;
  void LoadOptions() override;
  IOTAPropertySet& GetPropertySet() override;

 private:
  static void Modified();

  TOptionsPageFactory page_;
};

}  // namespace kestrel::addin
