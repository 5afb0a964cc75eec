#include "provider/Fixture.h"

namespace kestrel::addin {

struct ProviderList : testing::Test {
  ScriptedProviderLibrary provider;
  RecordingSink sink;
  TStateMessages messages;
};

TEST_F(ProviderList, RefusesABlankOrUnloadablePath) {
  EXPECT_EQ(AbortOf([] { TSCCProviderList(" \t", 0, "ann"); }),
            "A provider path was not specified (SCC provider installed?)");
  EXPECT_EQ(AbortOf([] { TSCCProviderList("/nowhere/provider.so", 0, "ann"); }),
            "SCC DLL Loadlibrary failed");
  EXPECT_EQ(scc::hSosScc, nullptr);
}

TEST_F(ProviderList, LivesFromInitializeToUninitialize) {
  {
    TSCCProviderList list(provider.Path(), 77, "ann");
    EXPECT_EQ(provider->Last("SccInitialize").User, "TSCCProvider");
    EXPECT_EQ(provider->Last("SccInitialize").Window, reinterpret_cast<void*>(77));
    EXPECT_EQ(list.InitializeError(), "");
    std::vector<std::pair<scc::Long, scc::Long>> options;
    for (const ScriptedCall& call : provider->Calls)
      if (call.Entry == "SccSetOption") options.emplace_back(call.Command, call.Flags);
    EXPECT_THAT(options, ElementsAre(std::pair(1, 1), std::pair(3, 0), std::pair(6, 1)));
  }
  EXPECT_EQ(provider->Entries().back(), "SccUninitialize");
  EXPECT_EQ(scc::hSosScc, nullptr);
}

TEST_F(ProviderList, CapabilitiesAreTheBitsOfTheWord) {
  const std::pair<scc::Dword, TProviderCapabilities> rows[] = {
      {0x40000001, TProviderCapabilities().set(pcReEntrant).set(pcSccRemove)},
      {0x04008000, TProviderCapabilities().set(pcSccTextOut).set(pcCommentProject)},
      {0xFFFFFFFF, TProviderCapabilities().set()},
      {0x881F0000, TProviderCapabilities()},  // bits of later versions
  };
  for (const auto& [word, capabilities] : rows) {
    provider->Capabilities = word;
    EXPECT_EQ(TSCCProviderList(provider.Path(), 0, "ann").Capabilities(), capabilities) << word;
  }
}

TEST_F(ProviderList, GoesOnWhenTheProviderDoesNotStart) {
  const std::pair<scc::Long, std::string> errors[] = {
      {-26, "The user is not allowed to perform the specified operation"}, {-3, ""}};
  for (const auto& [code, error] : errors) {
    provider->Results["SccInitialize"] = code;
    const TSCCProviderList list(provider.Path(), 0, "ann");
    EXPECT_EQ(list.InitializeError(), error);
    EXPECT_TRUE(list.Capabilities().test(pcSccRemove));
  }
  EXPECT_THAT(sink.Lines, IsEmpty());
}

TEST_F(ProviderList, FindsSessionsByWholePathIgnoringCase) {
  TSCCProviderList list(provider.Path(), 0, "ann");
  EXPECT_FALSE(list.SetCurrentProject("/proj"));
  list.Add("/proj");
  list.Add("/Proj", "bob");
  list.Add("/other");
  EXPECT_TRUE(list.SetCurrentProject("/PROJ"));
  EXPECT_EQ(list.CurrentProject(), list.GetItem(0)) << "the first of two";
  EXPECT_EQ(list.GetItem(0)->get_UserName(), "ann");
  EXPECT_EQ(list.GetItem(1)->get_UserName(), "bob");
  EXPECT_FALSE(list.SetCurrentProject("/Proj/")) << "a trailing delimiter is another path";
  EXPECT_EQ(list.CurrentProject(), nullptr);

  list.Remove("/nothing");
  list.Remove("/PROJ");
  ASSERT_EQ(list.GetCount(), 2);
  EXPECT_EQ(list.GetItem(0)->get_UserName(), "bob");

  list.PutItem(1, std::make_unique<TSCCProviderProject>("/new", 0, "eve"));
  EXPECT_TRUE(list.SetCurrentProject("/new"));
  list.CloseAll();
  EXPECT_EQ(list.GetCount(), 0);
  EXPECT_EQ(list.CurrentProject(), nullptr);
  EXPECT_EQ(provider->Count("SccCloseProject"), 0);
}

TEST_F(ProviderList, ASecondListUnloadsTheSharedLibrary) {
  TSCCProviderList first(provider.Path(), 0, "ann");
  first.Add("/p");
  { TSCCProviderList second(EMPTY_LIBRARY_PATH, 0, "bob"); }
  EXPECT_EQ(provider->Count("SccInitialize"), 2);
  EXPECT_EQ(first.GetItem(0)->OpenProject(messages), scc::SCC_E_OPNOTSUPPORTED);
  EXPECT_EQ(messages[2], "The source code control system does not support this operation");
}

}  // namespace kestrel::addin
