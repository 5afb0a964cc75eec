// The registry: the real one on Windows, a store of the same keys and values elsewhere.
//
// Key paths use backslashes and are relative to a root; keys and value names compare ignoring case; values keep the
// order in which the registry lists them.
#pragma once

#include <memory>
#include <string>
#include <vector>

enum class TRegRoot { LocalMachine, CurrentUser };

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

  /// Changes one value at once and for good.  Throws std::runtime_error with a readable text when it cannot be stored.
  void WriteString(const std::string& name, const std::string& value);
  bool DeleteValue(const std::string& name);
  /// Removes a key with its values.  False when it was not there.
  bool DeleteKey(const std::string& key);

 private:
  struct TImpl;
  std::unique_ptr<TImpl> impl_;
};
