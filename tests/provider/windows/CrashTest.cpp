// Faults that only the system's own unwinding carries, as a provider of another compiler or language raises them.
#include <windows.h>

#include "provider/Fixture.h"

namespace kestrel::addin {

namespace {

using Crash = SessionTest;

volatile int* volatile nowhere = nullptr;

void Violate(const ScriptedCall&) { *nowhere = 1; }
void RaiseForeign(const ScriptedCall&) { RaiseException(0x0EEDFADE, EXCEPTION_NONCONTINUABLE, 0, nullptr); }

int listed;
scc::Bool SCC_CALL CountListed(void*, scc::Bool, scc::Long, const char*) noexcept { return ++listed, -1; }

}  // namespace

TEST_F(Crash, BecomesTheErrorTextAndTheNextCallWorks) {
  const TStringList files = {"C:\\p\\a.pas"};
  provider->OnCall["SccOpenProject"] = Violate;
  EXPECT_EQ(session().OpenProject(messages), 0);
  EXPECT_THAT(messages,
              ElementsAre("", "",
                          "The source code control provider failed in SccOpenProject: access violation "
                          "(0xC0000005)"));
  EXPECT_FALSE(ProviderCallInProgress());

  provider->OnCall["SccCheckout"] = RaiseForeign;
  for (int i = 0; i < 3; ++i) {
    EXPECT_FALSE(session().CheckOutFile(files, "c", messages));
    EXPECT_THAT(messages[2], HasSubstr("failed in SccCheckout: exception (0x0EEDFADE)"));
    EXPECT_FALSE(ProviderCallInProgress());
  }

  provider->OnCall.clear();
  EXPECT_EQ(session().OpenProject(messages), 0);
  EXPECT_TRUE(session().CheckOutFile(files, "c", messages));
  EXPECT_THAT(messages, ElementsAre("", "", ""));
}

TEST_F(Crash, InTheMiddleOfAListLeavesWhatCameBefore) {
  listed = 0;
  provider->List = {{true, 0, "a.pas"}, {true, 0, "b.pas"}};
  provider->OnCall["SccPopulateList"] = Violate;  // behind the callbacks
  TStatusArray statuses;
  EXPECT_FALSE(session().PopulateList(scc::SCC_COMMAND_ADD, {}, CountListed, statuses, messages));
  EXPECT_EQ(listed, 2);
  EXPECT_THAT(messages[2], HasSubstr("SccPopulateList: access violation"));
  EXPECT_FALSE(ProviderCallInProgress());
}

TEST_F(Crash, DuringInitializeAndUninitializeIsLogged) {
  list.reset();
  provider->OnCall["SccInitialize"] = provider->OnCall["SccUninitialize"] = Violate;
  list = std::make_unique<TSCCProviderList>(provider.Path(), 0, "ann");
  list.reset();
  EXPECT_THAT(sink.Of(TSeverity::Error),
              ElementsAre(AllOf(StartsWith("SccInitialize; "), HasSubstr("access violation")),
                          AllOf(StartsWith("SccUninitialize; "), HasSubstr("access violation"))));
  EXPECT_EQ(scc::hSosScc, nullptr) << "the library was let go of";
}

}  // namespace kestrel::addin
