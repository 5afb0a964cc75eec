// The IDE's kinds of files, for packages.
#pragma once

#include <string>
#include <vector>

#include "host/FileTypes.h"

namespace kestrel::codeblocks {

class TFileTypes final : public IOTAFileTypes {
 public:
  TFileKind GetKind(const std::string& fileName) override;
  std::string GetUnit(const std::string& fileName) override { return fileName; }
  std::vector<std::string> GetCompanions(const std::string& fileName) override;
  void* QueryInterface(const TGuid& iid) noexcept override { return FindInterface<IOTAFileTypes>(this, iid); }
};

}  // namespace kestrel::codeblocks
