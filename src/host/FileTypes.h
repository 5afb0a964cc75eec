// The kinds of files that a host works with.
#pragma once

#include <string>
#include <vector>

#include "host/Interface.h"

namespace kestrel {

enum class TFileKind { Other, Source, Form, Project, Group };

/// Optional: without this service packages use kinds of their own.  Names are full paths in UTF-8; the files need not
/// exist.
class IOTAFileTypes : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B70, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x60}};
  virtual TFileKind GetKind(const std::string& fileName) = 0;
  /// The file of the module that has `fileName`, such as a form, in one of its editors; often `fileName` itself.
  virtual std::string GetUnit(const std::string& fileName) = 0;
  /// The files that are put under source control together with `fileName`.
  virtual std::vector<std::string> GetCompanions(const std::string& fileName) = 0;
};

}  // namespace kestrel
