// The registry: the real one on Windows, a store of the same keys and values elsewhere.
//
// Key paths use backslashes and are relative to a root; keys and value names compare ignoring case; values keep the
// order in which the registry lists them.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace kestrel {

enum class TRegRoot { LocalMachine, CurrentUser };

/// Where files lie that belong to what is registered for this machine: with the registry's own files; where it has none,
/// with the program.
std::string RegistryFolder();

/// A cursor on one open key at a time.
class TRegistry {
 public:
  explicit TRegistry(TRegRoot root = TRegRoot::LocalMachine);
  TRegistry(const TRegistry&) = delete;
  TRegistry& operator=(const TRegistry&) = delete;
  ~TRegistry();

  /// Opens a key that exists, for reading; closes the one open before.  False, and no key open, when it is missing.
  bool OpenKeyReadOnly(const std::string& key);
  /// Opens a key for writing, creating it at the first write.
  void OpenKey(const std::string& key);
  void CloseKey();

  /// A string value of the open key; empty when the value or the key is missing.
  std::string ReadString(const std::string& name) const;
  std::vector<std::string> GetValueNames() const;

  // Changes are stored at once and for good, and seen by every other TRegistry, also of other programs.  They throw
  // std::runtime_error with a readable text when they cannot be stored or no key is open for writing.

  void WriteString(const std::string& name, const std::string& value);
  /// False when there was nothing that the user may delete: what the machine's administrator set stays.
  bool DeleteValue(const std::string& name);
  /// Removes a key with its values and everything below it.  Needs no open key.  False when it was not there.  A root
  /// is refused: std::runtime_error.
  bool DeleteKey(const std::string& key);

 private:
  struct TImpl;
  std::unique_ptr<TImpl> impl_;
};

}  // namespace kestrel
