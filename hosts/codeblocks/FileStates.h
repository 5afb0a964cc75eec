// The state of files under source control, in the IDE's project tree.
#pragma once

#include "host/FileStates.h"

namespace kestrel::codeblocks {

/// Shows the states with the pictures that the IDE has for version control.  Offers no check-outs.
class TFileStates final : public IOTAFileStateServices {
 public:
  void SetFileStates(const std::vector<TFileState>& states) override;
  void ClearFileStates() override;
  void InsertCheckOutOffer(TCheckOutOffer&) override {}
  void RemoveCheckOutOffer(TCheckOutOffer&) override {}
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAFileStateServices>(this, iid);
  }
};

}  // namespace kestrel::codeblocks
