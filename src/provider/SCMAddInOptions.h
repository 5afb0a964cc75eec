// The add-in's two per-user settings, kept by the host's property-set mechanism.
#pragma once

#include <string>

#include "host/Options.h"

/// A view of the property set; without a host every value reads as empty and setting does nothing.
class TSCMAddInEnvironmentOptions {
 public:
  /// Display name of the chosen provider; empty when none was chosen yet.
  std::string SCCProvider() const;
  void SetSCCProvider(const std::string& value);
  /// User name handed to the provider; empty when none was entered yet.
  std::string UserName() const;
  void SetUserName(const std::string& value);
  /// Stores what has been set since the last time.  Throws std::runtime_error when it cannot be stored; the values
  /// still hold for this run.
  static void SaveChanges();
};
