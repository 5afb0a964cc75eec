// Where a provider's library finds the libraries that it needs itself.

#include "provider/Fixture.h"
#include "support/TemporaryFolder.h"
#include "support/TestRegistry.h"
#include "system/FileName.h"
#include "system/Registry.h"

namespace kestrel::addin {

TEST(SearchPath, IsThatOfAProviderWhoseKeySaysSo) {
  const TTestRegistry registry;
  const TTemporaryFolder folder;
  const RecordingSink sink;
  const auto library = folder / "needy_library.dll";
  std::filesystem::copy(ToFilePath(NEEDY_LIBRARY), ToFilePath(library));  // without the one that it needs
  TRegistry key;
  key.OpenKey(kInstalledProvidersKey);
  key.WriteString("Needy", "Software\\Needy");
  key.OpenKey("Software\\Needy");
  key.WriteString(kServerPath, library);
  EXPECT_FALSE(scc::LoadSCCDLL(library));
  key.WriteString(kSearchPath, "1");
  EXPECT_FALSE(scc::LoadSCCDLL(library));
  EXPECT_THAT(sink.Of(TSeverity::Error),
              ElementsAre(HasSubstr("PATH is searched only for"), HasSubstr("nor in one that PATH names")));
}

}  // namespace kestrel::addin
