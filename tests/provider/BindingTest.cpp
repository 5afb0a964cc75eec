#include "provider/Fixture.h"

namespace kestrel::addin {

namespace {

struct Binding : testing::Test {
  ~Binding() override { scc::UnloadSCCDLL(); }
};

int BoundEntries() {
  int bound = 0;
#define SCC_ENTRY(variable, name, result, arguments) bound += scc::variable != nullptr;
#include "scc/entry_points.def"
#undef SCC_ENTRY
  return bound;
}

TEST_F(Binding, BindsWhatTheLibraryExports) {
  EXPECT_FALSE(scc::LoadSCCDLL("/nowhere/provider.so"));
  EXPECT_EQ(scc::hSosScc, nullptr);

  ASSERT_TRUE(scc::LoadSCCDLL(EMPTY_LIBRARY_PATH));
  EXPECT_EQ(BoundEntries(), 0);
  scc::UnloadSCCDLL();

  ASSERT_TRUE(scc::LoadSCCDLL(PARTIAL_LIBRARY_PATH));
  EXPECT_EQ(BoundEntries(), 2);
  scc::UnloadSCCDLL();

  ASSERT_TRUE(scc::LoadSCCDLL(SCRIPTED_PROVIDER_PATH));
  EXPECT_EQ(BoundEntries(), 23);
}

TEST_F(Binding, KeepsTheLoadedLibraryWhenAnotherPathIsGiven) {
  ASSERT_TRUE(scc::LoadSCCDLL(EMPTY_LIBRARY_PATH));
  const TModuleHandle first = scc::hSosScc;
  EXPECT_TRUE(scc::LoadSCCDLL(SCRIPTED_PROVIDER_PATH));
  EXPECT_EQ(scc::hSosScc, first);
  EXPECT_EQ(BoundEntries(), 0);
}

}  // namespace

}  // namespace kestrel::addin
