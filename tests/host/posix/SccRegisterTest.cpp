#include "support/Environment.h"
#include "support/RunProgram.h"
#include "support/TemporaryFolder.h"
#include "support/Testing.h"

namespace kestrel {

TEST(SccRegisterOfAFolder, SaysThatTheRegistryCannotBeWritten) {
  const TTemporaryFolder folder;
  const TEnvironmentVariable variable("CORVANE_REGISTRY_DIR", folder.Path().c_str());
  folder.MakeFolder("local-machine.ini");
  const auto result = RunProgram(SCC_REGISTER, {"add", "Tiny", TINY_PROVIDER});
  EXPECT_EQ(result.Status, 1);
  EXPECT_THAT(result.Errors, HasSubstr("Cannot write " + folder.Path()));
}

}  // namespace kestrel
