// The IDE's options dialog: pages added by packages, and the property sets that store their fields per user.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "host/Interface.h"

class wxControl;
class wxWindow;

namespace kestrel {

/// A named set of string fields, stored per user under the host's settings key.
class IOTAPropertySet : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B50, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x40}};
  /// The field's value; empty if it was never set.
  virtual std::string GetValue(const std::string& field) = 0;
  /// Sets the field in memory only; see Save().
  virtual void SetValue(const std::string& field, const std::string& value) = 0;
  /// Reads all fields from the user's settings and discards unsaved changes.
  virtual void Load() = 0;
  /// Writes all fields.  Throws std::runtime_error with a sentence for the user if that fails.
  virtual void Save() = 0;
};

/// The dialog as seen by one of its pages.
class IOTAOptionsPageHost {
 public:
  virtual ~IOTAOptionsPageHost() = default;
  /// Binds a text box or drop-down list to a field: sets the control from the field now, and the field from the control
  /// when the dialog is accepted.
  virtual void Bind(wxControl* control, const std::string& field) = 0;
  virtual std::string GetValue(const std::string& field) = 0;
};

/// Creates the page's window as a child of `parent`.  Called each time the dialog is shown.
using TOptionsPageFactory = std::function<wxWindow*(wxWindow* parent, IOTAOptionsPageHost& host)>;

struct TOptionsPage {
  std::string ClassName;
  std::string Caption;
  int HelpContext = 0;
  TOptionsPageFactory Create;
};

/// The dialog as seen by an add-in that adds pages to it.
class IOTAEnvironmentDialog {
 public:
  virtual ~IOTAEnvironmentDialog() = default;
  virtual void RegisterPage(TOptionsPage page) = 0;
};

/// An add-in's part of the options dialog.
class IOTAAddInOptions : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B51, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x41}};
  virtual void CustomizeDialog(IOTAEnvironmentDialog& dialog) = 0;
  virtual bool GetIsModified() = 0;
  virtual void SendModified() = 0;
  virtual void SaveOptions() = 0;
  virtual void LoadOptions() = 0;
  virtual IOTAPropertySet& GetPropertySet() = 0;
};

class IOTAOptionsServices : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B52, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x42}};
  /// The property set stored under `key` of the host's per-user settings key; created on first use, owned by the host.
  virtual IOTAPropertySet& PropertySet(const std::string& key) = 0;
  virtual int AddOptions(std::shared_ptr<IOTAAddInOptions> options) = 0;
  virtual void RemoveOptions(int index) = 0;
};

}  // namespace kestrel
