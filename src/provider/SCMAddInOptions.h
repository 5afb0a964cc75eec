// The add-in's two per-user settings, kept by the host's property-set mechanism, and their place in its options dialog.
#pragma once

#include <string>

#include "host/Options.h"

namespace kestrel::addin {

// Fields of the property set.
inline constexpr const char* kSCMUserNameField = "UserName";
inline constexpr const char* kSCMProviderField = "SCCProvider";

/// A view of the settings; any number may exist.  Without a host every value reads as empty and setting does nothing.
class TSCMAddInEnvironmentOptions final : public IOTAAddInOptions {
 public:
  /// `page` creates the page's window; only the one given to the host needs it.
  explicit TSCMAddInEnvironmentOptions(TOptionsPageFactory page = {}) : page_(std::move(page)) {}

  /// Display name of the chosen provider; empty when none was chosen yet.
  std::string SCCProvider() const;
  void SetSCCProvider(const std::string& value);
  /// User name handed to the provider; empty when none was entered yet.
  std::string UserName() const;
  void SetUserName(const std::string& value);
  /// Stores what was set through any view since the last time.  Throws std::runtime_error when it cannot be stored; the
  /// values still hold for this run.
  static void SaveChanges();

  // The host's hooks.
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAAddInOptions>(this, iid);
  }
  void CustomizeDialog(IOTAEnvironmentDialog& dialog) override;
  bool GetIsModified() override { return true; }  // so that the host saves whenever its dialog is accepted
  void SendModified() override { Modified(); }
  void SaveOptions() override;
  void LoadOptions() override;
  IOTAPropertySet& GetPropertySet() override;

 private:
  static void Modified();

  TOptionsPageFactory page_;
};

}  // namespace kestrel::addin
