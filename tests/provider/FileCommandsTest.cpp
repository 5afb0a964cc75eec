#include "provider/Fixture.h"

namespace kestrel::addin {

namespace {

using FileCommands = SessionTest;

const TStringList kFiles = {"/p/a.pas", "/p/\u00fcber.pas", "/p/c d.pas"};

scc::Bool SCC_CALL Ignore(void*, scc::Bool, scc::Long, const char*) noexcept { return -1; }

TEST_F(FileCommands, EachPassesItsArguments) {
  struct {
    const char* Entry;
    std::function<bool()> Run;
    const char* Comment;  // as a regular expression
    scc::Long Flags;
  } const rows[] = {
      {"SccCheckout", [&] { return session().CheckOutFile(kFiles, "why", messages); }, "why", 0},
      {"SccCheckout", [&] { return session().CheckOutFile(kFiles, "", messages); }, "CheckOut File: .+:.+:.+",
       0},
      {"SccCheckin", [&] { return session().CheckInFile(kFiles, "why", false, messages); }, "why", 0},
      {"SccCheckin", [&] { return session().CheckInFile(kFiles, "", true, messages); },
       "CheckIn File: .+:.+:.+", 0x1000},
      {"SccAdd", [&] { return session().AddFile(kFiles, "", true, messages); }, "", 0x1000},
      {"SccAdd", [&] { return session().AddFile(kFiles, "why", false, messages); }, "why", 0},
      {"SccRemove", [&] { return session().RemoveFile(kFiles, messages); }, "File Removed: .+:.+:.+", 0},
      {"SccUncheckout", [&] { return session().UnCheckOutFile(kFiles, messages); }, "", 0},
      {"SccGet", [&] { return session().GetFile(kFiles, messages) == 0; }, "", 0},
      {"SccGet", [&] { return session().GetFilesAndDirs(kFiles, messages) == 0; }, "", 3},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Entry);
    provider->Calls.clear();
    provider->Results.clear();
    EXPECT_TRUE(row.Run());
    ASSERT_THAT(provider->Entries(), ElementsAre(row.Entry));
    const ScriptedCall& call = provider->Calls[0];
    EXPECT_EQ(call.Files, kFiles);
    EXPECT_TRUE(call.Terminated);
    EXPECT_THAT(call.Comment, MatchesRegex(row.Comment));
    EXPECT_EQ(call.Flags, row.Flags);
    EXPECT_NE(call.Options, nullptr);
    EXPECT_THAT(messages, ElementsAre("", "", ""));

    provider->Results[row.Entry] = scc::SCC_E_NOTAUTHORIZED;
    EXPECT_FALSE(row.Run());
    EXPECT_EQ(messages[2], "The user is not allowed to perform this operation");
  }
}

TEST_F(FileCommands, CommentsEndAfter128BytesAndEveryFileHasItsFlags) {
  session().CheckOutFile(kFiles, std::string(500, 'c'), messages);
  EXPECT_EQ(provider->Last("SccCheckout").Comment, std::string(128, 'c'));
  session().AddFile(kFiles, std::string(127, 'c') + "\u00fc", true, messages);
  EXPECT_EQ(provider->Last("SccAdd").Comment, std::string(127, 'c')) << "half a character is none";
  EXPECT_THAT(provider->Last("SccAdd").FileFlags, ElementsAre(0x1000, 0x1000, 0x1000));
}

TEST_F(FileCommands, EmptyListsAreRefusedBeforeTheProvider) {
  TStatusArray statuses;
  EXPECT_EQ(AbortOf([&] { session().Query({}, statuses, messages); }),
            "Cannot perform query, filelist empty");
  EXPECT_EQ(AbortOf([&] { session().GetFilesAndDirs({}, messages); }), "Cannot get file, filelist empty");
  EXPECT_EQ(AbortOf([&] { session().ShowHistory(" \t ", messages); }),
            "Cannot show file history, filename blank");
  EXPECT_THAT(provider->Calls, IsEmpty());
}

TEST_F(FileCommands, QueryAnswersInTheOrderOfTheFiles) {
  provider->Statuses = {{kFiles[0], 0x1003}, {kFiles[2], -1}};
  provider->DefaultStatus = 0;
  TStatusArray statuses;
  statuses[0] = statuses[3] = statuses[65535] = 99;
  EXPECT_TRUE(session().Query(kFiles, statuses, messages));
  EXPECT_THAT(std::vector(statuses.data(), statuses.data() + 4), ElementsAre(0x1003, 0, -1, 0));
  EXPECT_EQ(statuses[65535], 0) << "what the provider does not fill is zero";
  provider->Results["SccQueryInfo"] = scc::SCC_I_RELOADFILE;
  EXPECT_FALSE(session().Query(kFiles, statuses, messages)) << "only 0 is success";
}

TEST_F(FileCommands, ARequestCarriesUpTo65536Files) {
  TStringList files(kMaxFiles, "/p/unit.pas");
  files.back() = "/p/last.pas";
  provider->Statuses["/p/last.pas"] = 0x1003;
  TStatusArray statuses;
  EXPECT_TRUE(session().Query(files, statuses, messages));
  EXPECT_EQ(statuses[kMaxFiles - 1], 0x1003);
  EXPECT_TRUE(session().PopulateList(scc::SCC_COMMAND_GET, files, Ignore, statuses, messages));

  files.emplace_back("/p/one too many.pas");
  provider->Calls.clear();
  const std::string refusal =
      "65537 files are too many for one request to the source code control provider: it can take 65536 at "
      "most";
  EXPECT_EQ(AbortOf([&] { session().Query(files, statuses, messages); }), refusal);
  const auto populate = [&] {
    session().PopulateDirectoriesList(scc::SCC_COMMAND_GET, files, Ignore, statuses, messages);
  };
  EXPECT_EQ(AbortOf(populate), refusal);
  EXPECT_THAT(provider->Calls, IsEmpty());
  EXPECT_TRUE(session().CheckOutFile(files, "", messages))
      << "commands answer with one code and have no limit";
}

TEST_F(FileCommands, DifferencesAreTheCodeSix) {
  provider->Differing = {"/p/changed.pas"};
  EXPECT_TRUE(session().SilentDiff("/p/changed.pas", messages));
  EXPECT_EQ(provider->Last("SccDiff").Flags, 0x10);
  EXPECT_FALSE(session().SilentDiff("/p/same.pas", messages));
  EXPECT_THAT(messages, ElementsAre("", "", ""));
  EXPECT_EQ(session().ShowDiff("/p/changed.pas", 6, messages), 6);
  EXPECT_EQ(provider->Last("SccDiff").Flags, 6);
  provider->Results["SccDiff"] = scc::SCC_E_FILENOTEXIST;
  EXPECT_FALSE(session().SilentDiff("/p/changed.pas", messages));
  EXPECT_EQ(messages[2], "Local file not found");
}

TEST_F(FileCommands, PopulatingSucceedsWhateverTheCode) {
  provider->Results["SccPopulateList"] = scc::SCC_E_OPNOTSUPPORTED;
  TStatusArray statuses;
  EXPECT_TRUE(session().PopulateList(scc::SCC_COMMAND_CHECKIN, kFiles, Ignore, statuses, messages));
  EXPECT_EQ(provider->Last("SccPopulateList").Command, scc::SCC_COMMAND_CHECKIN);
  EXPECT_EQ(provider->Last("SccPopulateList").Flags, 0);
  EXPECT_EQ(statuses[2], 1);
}

TEST_F(FileCommands, AdvancedOptionsAreAskedForAndShown) {
  provider->Advanced = {coCheckOut};
  EXPECT_TRUE(session().GetCommandOptions(coCheckOut, coQuery, messages));
  EXPECT_EQ(messages[1], "The provider supports advanced options for the command");
  EXPECT_FALSE(session().GetCommandOptions(coAdd, coQuery, messages));
  EXPECT_EQ(provider->Last("SccGetCommandOptions").Command, 4);
  EXPECT_EQ(provider->Last("SccGetCommandOptions").Options, nullptr);

  provider->AdvancedBlock = &provider;  // a whole pointer goes into the block
  provider->Results["SccGetCommandOptions"] = scc::SCC_I_ADV_SUPPORT;
  EXPECT_FALSE(session().GetCommandOptions(coCheckOut, coShowAdvDialog, messages));
  const void* block = provider->Last("SccGetCommandOptions").Options;
  ASSERT_NE(block, nullptr);
  session().CheckOutFile(kFiles, "c", messages);
  EXPECT_EQ(provider->Last("SccCheckout").Options, block) << "commands get the block, not what it holds";
}

TEST_F(FileCommands, AddFromSccShowsItsOutcome) {
  for (scc::Long code : {0, 2, -15}) {
    provider->Results["SccAddFromScc"] = code;
    session().AddFromScc(messages);
  }
  EXPECT_THAT(sink.Boxes, ElementsAre("SccAddFromScc returned OK", "Operation was cancelled"));
  EXPECT_EQ(messages[2], "Non-specific failure, no action was taken");
}

}  // namespace

}  // namespace kestrel::addin
