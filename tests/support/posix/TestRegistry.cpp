#include "support/TestRegistry.h"

#include "support/Environment.h"
#include "support/TemporaryFolder.h"

namespace kestrel {

struct TTestRegistry::TImpl {
  TTemporaryFolder Folder;
  TEnvironmentVariable Variable{"CORVANE_REGISTRY_DIR", Folder.Path().c_str()};
};

TTestRegistry::TTestRegistry() : impl_(std::make_unique<TImpl>()) {}
TTestRegistry::~TTestRegistry() = default;

}  // namespace kestrel
