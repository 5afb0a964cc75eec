// What packages tell of files under source control: their states, and who checks out a file that the user starts to edit.
#pragma once

#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/FileStates.h"

namespace kestrel::workbench {

/// Finding a state takes constant time, as every row of the project tree looks its file up.
class TFileStateServices final : public IOTAFileStateServices {
 public:
  /// Called with the new states of the files whose state has changed.
  using TChanged = std::function<void(const std::vector<TFileState>&)>;
  explicit TFileStateServices(TChanged changed) : changed_(std::move(changed)) {}

  /// The state of that file, ignoring case; Unknown if no package has told it.
  const TFileState& StateOf(const std::string& fileName) const;
  /// A package's offer to check that file out; null if there is none.
  const TCheckOutOffer* OfferFor(const std::string& fileName) const;

  void SetFileStates(const std::vector<TFileState>& states) override;
  void ClearFileStates() override;
  void InsertCheckOutOffer(TCheckOutOffer& offer) override { offers_.push_back(&offer); }
  void RemoveCheckOutOffer(TCheckOutOffer& offer) override { std::erase(offers_, &offer); }
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAFileStateServices>(this, iid);
  }

 private:
  TChanged changed_;
  std::unordered_map<std::string, TFileState> states_;  // by folded name
  std::vector<TCheckOutOffer*> offers_;
};

}  // namespace kestrel::workbench
