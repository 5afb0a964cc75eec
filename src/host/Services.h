// The host's services for packages: notifiers, wizards, gallery, application.  All are queried from CorvaneIDEServices.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "host/Event.h"
#include "host/Interface.h"
#include "host/Modules.h"
#include "host/Notifiers.h"

namespace kestrel {

/// The native handle of a window: an HWND on Windows, a pointer to the toolkit's native window elsewhere; 0 for none.
using TWindowHandle = std::uintptr_t;

/// General services.
class IOTAServices : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x33B33186, 0x3CEC, 0x4624, {0x97, 0x0E, 0x41, 0x7A, 0x8F, 0xE1, 0x40, 0x89}};
  /// Returns the index for RemoveNotifier().  The host shares ownership of the notifier until then.
  virtual int AddNotifier(std::shared_ptr<IOTAIDENotifier> notifier) = 0;
  virtual void RemoveNotifier(int index) = 0;
  /// The parent window for dialogs.
  virtual TWindowHandle GetParentHandle() = 0;
  /// The IDE's working directory at start-up; never empty, without a trailing delimiter.
  virtual std::string GetStartupDirectory() = 0;
};

/// A heading of the gallery (File | New | Other).
class IOTAGalleryCategory : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B60, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x50}};
  virtual std::string GetIDString() = 0;
  virtual std::string GetDisplayName() = 0;
};

class IOTAGalleryCategoryManager : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B61, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x51}};
  /// The category of that name, e.g. "Corvane.Osprey.Other"; null if the host has none.
  virtual IOTAGalleryCategory* FindCategory(const std::string& idString) = 0;
};

/// A package's wizard, listed in the gallery under its category.
class IOTAWizard : public virtual IOTANotifier {
 public:
  static constexpr TGuid IID{0xB75C0CE0, 0xEEA6, 0x11D1, {0x95, 0x04, 0x00, 0x60, 0x8C, 0xCB, 0xF1, 0x53}};
  static constexpr unsigned wsEnabled = 1;  ///< bit of GetState()
  virtual std::string GetIDString() = 0;
  virtual std::string GetName() = 0;
  virtual unsigned GetState() = 0;
  virtual void Execute() = 0;
  virtual std::string GetAuthor() = 0;
  virtual std::string GetComment() = 0;
  virtual std::string GetPage() = 0;
  /// The wizard's icon as an SVG document of 32 by 32 units.
  virtual std::string GetGlyph() = 0;
  virtual std::string GetDesigner() = 0;
  virtual IOTAGalleryCategory* GetGalleryCategory() = 0;
  virtual std::string GetPersonality() = 0;
};

class IOTAWizardServices : public virtual IInterface {
 public:
  static constexpr TGuid IID{0xB75C0CE3, 0xEEA6, 0x11D1, {0x95, 0x04, 0x00, 0x60, 0x8C, 0xCB, 0xF1, 0x53}};
  /// Returns the index for RemoveWizard(), which releases the host's share of the wizard.
  virtual int AddWizard(std::shared_ptr<IOTAWizard> wizard) = 0;
  virtual void RemoveWizard(int index) = 0;
};

/// The host program itself.
class IOTAApplication : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B62, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x52}};
  /// Fires after each creation of a main form.  Packages are loaded before the first one is created.
  virtual TEvent<>& MainFormCreated() = 0;
  /// Opens the help topic for a keyword, the contents for an empty one.  Returns false if there is none.
  virtual bool HelpKeyword(const std::string& keyword) = 0;
};

/// The entry point to the host.  The host sets it before it loads a package and clears it after it unloaded the last one.
extern IInterface* CorvaneIDEServices;

/// The host's service T, or null if there is no host or it has no such service.
template <class T>
T* IdeService() {
  return Supports<T>(CorvaneIDEServices);
}

/// Entry points that every run-time package exports with C linkage.  The host calls Initialize once after loading the
/// library, then IDERegister, and Finalize once before unloading it.
using TPackageEntry = void (*)();
inline constexpr const char* kPackageInitialize = "Initialize";
inline constexpr const char* kPackageRegister = "IDERegister";
inline constexpr const char* kPackageFinalize = "Finalize";

}  // namespace kestrel
