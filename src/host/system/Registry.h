// The registry: the system's on Windows, INI files with the same keys and values elsewhere.
//
// Key paths use backslashes and are relative to a root.  Keys and value names compare ignoring case.  Values are listed in
// the order of the registry.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace kestrel {

enum class TRegRoot {
  LocalMachine,
  CurrentUser,
  LocalMachineOtherBits  ///< that of 32-bit programs for 64-bit ones and the reverse, on Windows only; do not write to it
};

/// The folder for files that belong to registered providers: that of the registry's files, or on Windows the program's.
std::string RegistryFolder();

/// A cursor on one open key.
class TRegistry {
 public:
  explicit TRegistry(TRegRoot root = TRegRoot::LocalMachine);
  TRegistry(const TRegistry&) = delete;
  TRegistry& operator=(const TRegistry&) = delete;
  ~TRegistry();

  /// Opens an existing key for reading; closes the previous one.  Returns false, with no key open, if it is missing.
  bool OpenKeyReadOnly(const std::string& key);
  /// Opens a key for writing; closes the previous one.  The first write creates the key if necessary.
  void OpenKey(const std::string& key);
  void CloseKey();

  /// A string value of the open key; empty if the value is missing or no key is open.
  std::string ReadString(const std::string& name) const;
  std::vector<std::string> GetValueNames() const;

  // Changes are stored immediately and visible to every other TRegistry, also in other processes.  They throw
  // std::runtime_error with a sentence for the user if they cannot be stored or no key is open for writing.

  void WriteString(const std::string& name, const std::string& value);
  /// Returns false if there was nothing that the user may delete: values set by the administrator stay.
  bool DeleteValue(const std::string& name);
  /// Deletes a key with its values and subkeys; no key need be open.  Returns false if it did not exist.  Throws
  /// std::runtime_error for a root.
  bool DeleteKey(const std::string& key);

 private:
  struct TImpl;
  std::unique_ptr<TImpl> impl_;
};

}  // namespace kestrel
