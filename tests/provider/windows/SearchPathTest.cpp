// Where a provider's library finds the libraries that it needs itself.
#include "provider/Fixture.h"
#include "support/TemporaryFolder.h"
#include "support/TestRegistry.h"
#include "system/Registry.h"

namespace kestrel::addin {

TEST(SearchPath, AppliesOnlyToProvidersRegisteredWithIt) {
  const TTestRegistry registry;
  const TTemporaryFolder folder;
  const RecordingSink sink;
  const auto library = folder / "needy_library.dll";
  fs::copy(ToFilePath(NEEDY_LIBRARY), ToFilePath(library));  // without the one that it needs
  WriteValue(kInstalledProvidersKey, "Needy", "Software\\Needy");
  WriteValue("Software\\Needy", kServerPath, library);
  EXPECT_FALSE(scc::LoadSCCDLL(library));
  WriteValue("Software\\Needy", kSearchPath, "1");
  EXPECT_FALSE(scc::LoadSCCDLL(library));
  EXPECT_THAT(sink.Of(TSeverity::Error),
              ElementsAre(HasSubstr("PATH is searched only for"), HasSubstr("nor in one that PATH names")));
}

}  // namespace kestrel::addin
