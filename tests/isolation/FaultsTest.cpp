// A faulty provider loses its process and the current call; the client goes on.

#include <csignal>
#include <thread>

#include "isolation/Client.h"
#if !defined(_WIN32)
#include "isolation/ChildProcesses.h"
#endif

namespace kestrel::isolation {

namespace {

struct TFatalFault {
  const char* Fault;
  const char* Words;
};
// Each makes the call fail with a message about how.
const TFatalFault kFatalFaults[] = {
#if defined(_WIN32)
    {"crash", ""},
    {"exit", "exit code 7"},
#else
    {"crash", "signal 11"},        {"abort", "signal 6"}, {"exit", "exit code 7"},
    {"close", "ended in"},         {"copy", "signal 9"},
#endif
    {"throw", "scripted failure"},
};
const char* const kEntries[] = {
#define SCC_ENTRY(variable, name, result, arguments) name,
#include "scc/entry_points.def"
#undef SCC_ENTRY
};

/// Brings the client into the state in which the entry point may be called.
void Prepare(TIsolatedClient& client, const std::string& entry) {
  if (entry == "SccInitialize") return;
  ASSERT_EQ(SCC_OK, client.Initialize());
  if (entry == "SccOpenProject") return;
  ASSERT_EQ(SCC_OK, client.Open());
}

/// The next calls succeed.
void ExpectClientWorks(TIsolatedClient& client, const std::string& entry) {
  if (client.Context == nullptr) {
    ASSERT_EQ(SCC_OK, client.Initialize());
  }
  if (entry == "SccCloseProject") client.Call(entry);  // its first call threw
  if (entry == "SccInitialize" || entry == "SccUninitialize" || entry == "SccOpenProject" ||
      entry == "SccCloseProject") {
    ASSERT_THAT(client.Open(),
                testing::AnyOf(SCC_OK, SCC_E_PROJECTALREADYOPEN));  // it may have survived the fault
  }
  client.Words[0] = 77;
  EXPECT_EQ(SCC_OK, client.Status());
  EXPECT_EQ(SCC_STATUS_CONTROLLED, client.Words[0]);
}

TEST(Faults, FailOneCallOnly) {
  for (const auto& fault : kFatalFaults)
    for (const std::string entry : kEntries) {
      SCOPED_TRACE(fault.Fault + (" in " + entry));
      TIsolatedClient client;
      Prepare(client, entry);
      client.Arm(entry, fault.Fault);
      EXPECT_EQ(SCC_E_NONSPECIFICERROR, client.Call(entry));
      ExpectClientWorks(client, entry);
      if (entry == "SccUninitialize") continue;  // there is no callback any more
      const char* const name = entry == "SccInitialize" ? "scripted_provider" : "Scripted provider";
      EXPECT_THAT(lines, Contains(AllOf(HasSubstr(entry), HasSubstr(fault.Words), HasSubstr(name))));
    }
}

#if !defined(_WIN32)  // WaitingTest covers it there
TEST(EndlessLoop, FailsTheCallWhenItsProcessIsKilled) {
  for (const char* entry : kEntries) {
    SCOPED_TRACE(entry);
    TIsolatedClient client;
    Prepare(client, entry);
    client.Arm(entry, "loop");
    std::thread killer([&] {
      while (FileExists(client.Faults())) std::this_thread::yield();
      for (const pid_t child : ChildProcessIds()) kill(child, SIGKILL);
    });
    EXPECT_EQ(SCC_E_NONSPECIFICERROR, client.Call(entry));
    killer.join();
    ExpectClientWorks(client, entry);
  }
}
#endif

// The provider may survive another call with damaged memory.
TEST(DamagedMemory, LeavesTheClientWorking) {
  for (const char* fault : {"garble", "junk"})
    for (const std::string entry : kEntries) {
      SCOPED_TRACE(fault + (" in " + entry));
      TIsolatedClient client;
      Prepare(client, entry);
      client.Arm(entry, fault);
      client.Call(entry);
      client.Status();
      ExpectClientWorks(client, entry);
    }
}

TEST(Messages, ArriveCompleteAndInOrderFromAnyThread) {
  for (const std::string entry : kEntries) {
    if (entry == "SccInitialize") continue;  // there is no callback yet
    SCOPED_TRACE(entry);
    TIsolatedClient client;
    Prepare(client, entry);
    client.Arm(entry, "text");
    client.Call(entry);
    EXPECT_THAT(lines, ElementsAre(std::string(10 << 20, 'x')));
  }
  TIsolatedClient client;
  Prepare(client, "SccCheckout");
  client.Arm("SccCheckout", "threads");
  EXPECT_EQ(SCC_OK, client.Call("SccCheckout"));
  EXPECT_EQ(4000u, lines.size());
  EXPECT_THAT(lines, Each("threaded"));
}

TEST(Restarts, StopAfterThreeFailures) {
  TIsolatedClient client;
  for (int i = 0; i < 3; ++i) {
    client.Arm("SccInitialize", "exit");
    i == 0 ? client.Initialize() : client.Call("SccSetOption");
  }
  client.Arm("SccInitialize", "exit");
  EXPECT_EQ(SCC_E_NONSPECIFICERROR, client.Open());
  EXPECT_THAT(lines, Contains(HasSubstr("again and again")));
  EXPECT_TRUE(FileExists(client.Faults())) << "no process was started";
  std::filesystem::remove(client.Faults());
  client.Call("SccUninitialize");
  EXPECT_EQ(SCC_OK, client.Initialize());
  EXPECT_EQ(SCC_OK, client.Open());
}

}  // namespace

}  // namespace kestrel::isolation
