// What a provider may do wrong, and what is left of it on this side.
#include <cfenv>
#include <thread>

#include "provider/Fixture.h"
#include "provider/ProviderBorder.h"
#include "system/Paths.h"

namespace kestrel::addin {

namespace {

scc::Bool SCC_CALL Ignore(void*, scc::Bool, scc::Long, const char*) noexcept { return -1; }

/// Every operation of a session, with what it returns after an exception of the provider.
struct Operation {
  const char* Entry;
  std::function<scc::Long(TSCCProviderProject&, TStateMessages&)> Run;
  scc::Long AfterException;
};

const TStringList kFiles = {"/p/a.pas"};

const Operation kOperations[] = {
    {"SccGetProjPath", [](auto& p, auto& m) { return p.GetProjectPath(m, true, true); }, -15},
    {"SccOpenProject", [](auto& p, auto& m) { return p.OpenProject(m); }, 0},
    {"SccCloseProject", [](auto& p, auto& m) { return p.CloseProject(m); }, false},
    {"SccProperties", [](auto& p, auto& m) { return p.Properties("/p/a.pas", m), 0; }, 0},
    {"SccGetEvents", [](auto& p, auto& m) { return p.GetEvents(m), 0; }, 0},
    {"SccQueryInfo",
     [](auto& p, auto& m) {
       TStatusArray statuses;
       return p.Query(kFiles, statuses, m);
     },
     false},
    {"SccPopulateList",
     [](auto& p, auto& m) {
       TStatusArray statuses;
       return p.PopulateList(scc::SCC_COMMAND_GET, kFiles, Ignore, statuses, m);
     },
     false},
    {"SccCheckout", [](auto& p, auto& m) { return p.CheckOutFile(kFiles, "c", m); }, false},
    {"SccAdd", [](auto& p, auto& m) { return p.AddFile(kFiles, "c", true, m); }, false},
    {"SccCheckin", [](auto& p, auto& m) { return p.CheckInFile(kFiles, "c", true, m); }, false},
    {"SccRemove", [](auto& p, auto& m) { return p.RemoveFile(kFiles, m); }, false},
    {"SccUncheckout", [](auto& p, auto& m) { return p.UnCheckOutFile(kFiles, m); }, false},
    {"SccGet", [](auto& p, auto& m) { return p.GetFile(kFiles, m); }, -15},
    {"SccGet", [](auto& p, auto& m) { return p.GetFilesAndDirs(kFiles, m); }, -15},
    {"SccDiff", [](auto& p, auto& m) { return p.ShowDiff("/p/a.pas", 0, m); }, -15},
    {"SccDiff", [](auto& p, auto& m) { return p.SilentDiff("/p/a.pas", m); }, false},
    {"SccHistory", [](auto& p, auto& m) { return p.ShowHistory("/p/a.pas", m); }, -15},
    {"SccGetCommandOptions", [](auto& p, auto& m) { return p.GetCommandOptions(coGet, coQuery, m); }, false},
    {"SccAddFromScc", [](auto& p, auto& m) { return p.AddFromScc(m), 0; }, 0},
};

using Border = SessionTest;

TEST_F(Border, ExceptionsOfTheProviderBecomeTheErrorText) {
  session().set_ProjName("$/mine");
  provider->OpenProject.ProjName = "$/half";
  for (const Operation& operation : kOperations) {
    SCOPED_TRACE(operation.Entry);
    provider->Faults = {};
    provider->Faults.ThrowException = {operation.Entry};
    EXPECT_EQ(operation.Run(session(), messages), operation.AfterException);
    EXPECT_THAT(messages, ElementsAre("", "", std::string("scripted failure in ") + operation.Entry));
    provider->Faults = {};
    provider->Faults.ThrowInt = {operation.Entry};
    EXPECT_EQ(operation.Run(session(), messages), operation.AfterException);
    EXPECT_THAT(messages,
                ElementsAre("", "", "The source code control provider failed for an unknown reason"));
  }
  EXPECT_THAT(sink.Boxes, IsEmpty());
  EXPECT_EQ(session().get_ProjName(), "$/mine") << "a half-written answer is dropped";
  provider->Faults = {};
  provider->Results["SccGet"] = -77;
  EXPECT_EQ(session().GetFile(kFiles, messages), -77) << "an unknown code is returned as it is";
}

TEST_F(Border, ExceptionsWithoutATextToFillAreLogged) {
  list.reset();
  provider->Faults.ThrowException = {"SccInitialize", "SccSetOption", "SccGetVersion", "SccRunScc",
                                     "SccUninitialize"};
  list = std::make_unique<TSCCProviderList>(provider.Path(), 0, "ann");
  list->Add("/p");
  EXPECT_EQ(session().GetVersion(), "");
  EXPECT_EQ(session().RunSCC(), -15);
  list.reset();
  std::vector<std::string> expected;
  for (const char* entry : {"SccInitialize", "SccSetOption", "SccSetOption", "SccSetOption", "SccGetVersion",
                            "SccRunScc", "SccUninitialize"})
    expected.push_back(std::string(entry) + "; scripted failure in " + entry);
  EXPECT_EQ(sink.Of(TSeverity::Error), expected);
}

TEST_F(Border, ReportsMissingEntryPointsByTheLibrarysName) {
  list.reset();
  sink.Lines.clear();
  list = std::make_unique<TSCCProviderList>(PARTIAL_LIBRARY_PATH, 0, "ann");
  EXPECT_THAT(sink.Of(TSeverity::Warning),
              ElementsAre(HasSubstr("\"" + ExtractFileName(PARTIAL_LIBRARY_PATH) +
                                    "\" wrote past the end of a buffer (SccInitialize)")));
  list->Add("/p");
  EXPECT_EQ(list->Capabilities(), TProviderCapabilities().set(pcSccRemove));
  for (const Operation& operation : kOperations) {
    if (operation.Entry == std::string("SccGet")) continue;  // the one that it has
    SCOPED_TRACE(operation.Entry);
    messages = {};
    operation.Run(session(), messages);
    EXPECT_THAT(messages,
                ElementsAre("", "", "The source code control system does not support this operation"));
  }
  EXPECT_EQ(session().RunSCC(), scc::SCC_E_OPNOTSUPPORTED);
  EXPECT_EQ(session().GetFile(kFiles, messages), 0);
}

TEST_F(Border, TextsWithoutTerminatorEndAtTheFieldsSize) {
  provider->Faults.Unterminated = true;
  session().GetProjectPath(messages, true, true);
  EXPECT_EQ(session().get_UserName(), std::string(32, 'u'));
  EXPECT_EQ(session().get_LocalPath(), std::string(260, 'u'));
  EXPECT_EQ(session().get_ProjPath(), std::string(301, 'u'));
  EXPECT_EQ(session().get_ProjName(), std::string(261, 'u'));
  session().OpenProject(messages);
  EXPECT_EQ(provider->Last("SccOpenProject").AuxPath, std::string(301, 'u')) << "what it gave, it gets back";
}

TEST_F(Border, CutsATextThatIsTooLongAndReportsIt) {
  provider->Faults.LongProjName = true;
  EXPECT_EQ(session().OpenProject(messages), 0);
  EXPECT_EQ(session().get_ProjName(), std::string(261, 'n'));
  EXPECT_EQ(session().get_ProjPath(), "");
  EXPECT_THAT(sink.Of(TSeverity::Warning),
              ElementsAre("The provider \"Scripted provider\" gave a text that is too long "
                          "(SccOpenProject): it was cut to 261 bytes."));
}

TEST_F(Border, ReportsWritesThatPassTheWholeCanary) {
  provider->Faults.WriteFarBehind = 1024;  // the whole canary
  session().GetEvents(messages);
  EXPECT_THAT(sink.Of(TSeverity::Warning),
              ElementsAre(HasSubstr("far past the end of a buffer (SccGetEvents)")));
  sink.Lines.clear();
  provider->Faults.WriteFarBehind = 100;
  session().GetEvents(messages);
  EXPECT_THAT(sink.Of(TSeverity::Warning),
              ElementsAre(HasSubstr("\"Scripted provider\" wrote past the end")));
  sink.Lines.clear();
  session().GetProjectPath(messages, true, true);
  EXPECT_EQ(session().get_UserName(), std::string(33, 'o'));
  EXPECT_THAT(sink.Of(TSeverity::Warning), SizeIs(8)) << "four texts, each overrun and cut";
}

TEST_F(Border, WritingBehindTheStatusesIsReportedByTheCallThatDidIt) {
  TStatusArray statuses;
  provider->Faults.WriteBehindStatuses = true;
  EXPECT_TRUE(session().Query(kFiles, statuses, messages));
  EXPECT_TRUE(session().PopulateList(scc::SCC_COMMAND_GET, kFiles, Ignore, statuses, messages));
  EXPECT_THAT(sink.Of(TSeverity::Warning),
              ElementsAre(HasSubstr("(SccQueryInfo)"), HasSubstr("(SccPopulateList)")));
  sink.Lines.clear();
  provider->Faults = {};
  session().Query(kFiles, statuses, messages);
  EXPECT_THAT(sink.Lines, IsEmpty());
}

TEST_F(Border, ToleratesWordsWrittenWithEightBytes) {
  list.reset();
  provider->Faults.WideWords = true;
  provider->Capabilities = 0x40000001;
  list = std::make_unique<TSCCProviderList>(provider.Path(), 0, "ann");
  list->Add("/p");
  EXPECT_EQ(list->Capabilities().count(), 2u);
  provider->IsNew = true;
  EXPECT_EQ(session().GetProjectPath(messages, false, true), 0);
  EXPECT_EQ(messages[0], "A new project was created");
  session().GetEvents(messages);
  session().AddFromScc(messages);
  EXPECT_THAT(sink.Boxes, SizeIs(1));
}

TEST_F(Border, BoundsTheNamesOfAListCallback) {
  static TStringList taken;
  taken.clear();
  provider->Faults.FloodList = true;
  TStatusArray statuses;
  const auto take = [](void*, scc::Bool, scc::Long, const char* name) -> scc::Bool {
    return AppendPopulatedName(name, taken) ? -1 : 0;
  };
  EXPECT_TRUE(session().PopulateList(scc::SCC_COMMAND_GET, kFiles, take, statuses, messages));
  EXPECT_GT(provider->ListAnswers, static_cast<scc::Long>(kMaxPopulated));
  EXPECT_EQ(taken.size(), kMaxPopulated);
}

TEST_F(Border, RefusesACallWithinACall) {
  bool inside = false;
  TStateMessages nested;
  provider->OnCall["SccGet"] = [&](const ScriptedCall&) {
    inside = ProviderCallInProgress();
    session().ShowHistory("/p/a.pas", nested);
  };
  session().GetFile(kFiles, messages);
  EXPECT_TRUE(inside);
  EXPECT_EQ(nested[2], "The source code control provider is still busy with another call");
  provider->Faults.ThrowInt = {"SccGet"};
  session().GetFile(kFiles, messages);
  EXPECT_EQ(provider->Count("SccHistory"), 0);
  EXPECT_FALSE(ProviderCallInProgress());
}

TEST_F(Border, RestoresTheFloatingPointEnvironment) {
  for (const bool fails : {false, true}) {
    provider->OnCall["SccGet"] = [](const ScriptedCall&) { std::fesetround(FE_UPWARD); };
    if (fails) provider->Faults.ThrowInt = {"SccGet"};
    session().GetFile(kFiles, messages);
    EXPECT_EQ(std::fegetround(), FE_TONEAREST);
  }
  list.reset();
  scc::LoadSCCDLL(PARTIAL_LIBRARY_PATH);  // which changes it when it is loaded
  EXPECT_EQ(std::fegetround(), FE_TONEAREST);
  scc::UnloadSCCDLL();
}

TEST_F(Border, ShowsTextsThatAreNotUtf8AndReturnsNamesUnchanged) {
  const std::string given = "$/gr\xFCn";
  provider->OpenProject.ProjName = given;
  provider->Texts["SccOpenProject"] = {{scc::SCC_MSG_WARNING, given}};
  session().OpenProject(messages);
  EXPECT_THAT(sink.Of(TSeverity::Warning), ElementsAre("$/grün"));
  provider->OpenProject.ProjName = {};
  session().OpenProject(messages);
  EXPECT_EQ(provider->Last("SccOpenProject").ProjName, given);
  TStringList taken;
  EXPECT_TRUE(AppendPopulatedName(given.c_str(), taken));
  EXPECT_TRUE(AppendPopulatedName(nullptr, taken));
  EXPECT_THAT(taken, ElementsAre(given));

  provider->OnCall["SccGet"] = [](const ScriptedCall&) { throw std::runtime_error("f\xFCr Ann"); };
  session().GetFile(kFiles, messages);
  EXPECT_EQ(messages[2], "für Ann");
}

TEST_F(Border, LinesOfOtherThreadsWaitForTheUserInterface) {
  int woken = 0;
  SetProviderWaker([&] { ++woken; });
  session().OpenProject(messages);
  const auto write = provider->TextOut;
  const auto writeMany = [&](int writer) {
    for (int i = 0; i < 2000; ++i)
      write((std::to_string(writer) + "/" + std::to_string(i)).c_str(), scc::SCC_MSG_INFO);
  };
  { const std::jthread first(writeMany, 0), second(writeMany, 1); }
  EXPECT_THAT(sink.Lines, IsEmpty());
  EXPECT_EQ(woken, 1);
  provider->Texts["SccGet"] = {{scc::SCC_MSG_WARNING, "near"}};
  provider->OnCall["SccGet"] = [&](const ScriptedCall&) {
    std::jthread([&] { write("far", scc::SCC_MSG_WARNING); }).join();
  };
  session().GetFile(kFiles, messages);
  EXPECT_THAT(sink.Of(TSeverity::Warning), ElementsAre("far", "near"));
  int next[] = {0, 0};
  for (const auto& line : sink.Of(TSeverity::Info))
    EXPECT_EQ(line.substr(2), std::to_string(next[line[0] - '0']++));
  EXPECT_THAT(next, ElementsAre(2000, 2000));
  SetProviderWaker({});
}

TEST_F(Border, BoundsLinesAndTerminatesComments) {
  provider->Texts["SccOpenProject"] = {{scc::SCC_MSG_INFO, std::string(10'000'000, 'x') + "\r\n"}};
  session().OpenProject(messages);
  EXPECT_THAT(sink.Of(TSeverity::Info), ElementsAre(std::string(4096, 'x') + " [...]"));
  const TProviderComment comment("why");
  EXPECT_EQ(std::string_view(comment.Data(), kMaxComment + 1), "why" + std::string(126, '\0'));
}

}  // namespace

}  // namespace kestrel::addin
