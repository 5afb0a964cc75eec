// What a client shows: file lists, status events, and the cancel button.
#include "Developer.h"

namespace kestrel::svnscc {

namespace {

/// Ann has mine.pas out, Bob theirs.pas; free.pas and sub/far.pas are in the repository only, loose.pas on disk only.
struct Populate : TTeam {
  Populate() {
    Join(bob);
    bob.AddNew({"free.pas", "sub/far.pas", "theirs.pas"});
    bob.CheckOut({"theirs.pas"});
    ann.AddNew({"mine.pas"}, "1\n", SCC_KEEP_CHECKEDOUT);
    ann.Write("loose.pas", "1\n");
  }
};

struct Events : TTeam {
  Events() {
    ann.AddNew({"a.pas", "b.pas", "never asked.pas"});
    Join(bob);
  }
  /// All events, by the names of their files.
  std::map<std::string, Long> Drain() {
    std::map<std::string, Long> events;
    for (;;) {
      std::array<char, 261> name;
      name.fill('x');
      Long status = -1, remaining = -1;
      EXPECT_EQ(SCC_OK, ann.Library()->SccGetEvents(ann.Context(), name.data(), &status, &remaining));
      EXPECT_LE(0, remaining);
      const std::string path = name.data();
      if (path.empty()) {
        EXPECT_EQ(0, remaining);
        return events;
      }
      EXPECT_TRUE(events.emplace(path.substr(ann.Folder().size() + 1), status).second) << path << " twice";
    }
  }
  void Set(Option option, Long value) {
    EXPECT_EQ(SCC_OK, ann.Library()->SccSetOption(ann.Context(), option, value));
  }
};

}  // namespace

TEST_F(Populate, AddsWhatFitsTheCommand) {
  struct Row {
    SCCCommand command;
    NameList names;
    Long flags;
    NameList added;
  };
  for (const auto& row :
       {Row{SCC_COMMAND_GET, {}, 0, {"free.pas", "mine.pas", "sub/far.pas", "theirs.pas"}},
        Row{SCC_COMMAND_CHECKOUT, {}, 0, {"free.pas", "sub/far.pas"}},
        Row{SCC_COMMAND_CHECKIN, {}, 0, {"mine.pas"}}, Row{SCC_COMMAND_UNCHECKOUT, {}, 0, {"mine.pas"}},
        Row{SCC_COMMAND_REMOVE, {}, 0, {"free.pas", "sub/far.pas"}}, Row{SCC_COMMAND_ADD, {}, 0, {}},
        Row{SCC_COMMAND_GET, {"free.pas", "mine.pas"}, 0, {"sub/far.pas", "theirs.pas"}},
        Row{SCC_COMMAND_GET, {"sub"}, SCC_PL_DIR, {"sub/far.pas"}},
        Row{SCC_COMMAND_GET, {""}, SCC_PL_DIR, {"free.pas", "mine.pas", "sub/far.pas", "theirs.pas"}},
        Row{SCC_COMMAND_CHECKIN, {}, SCC_PL_DIR, {"mine.pas"}}}) {
    SCOPED_TRACE(testing::PrintToString(row.command) + testing::PrintToString(row.names));
    const auto list = ann.Populate(row.command, row.names, row.flags);
    EXPECT_EQ(SCC_OK, list.Result);
    NameList added;
    for (const auto& [name, status] : list.Added) added.push_back(name);
    EXPECT_EQ(ann.Files(row.added), added);
  }
}

TEST_F(Populate, DropsWhatDoesNotFitAndReportsTheStatuses) {
  const NameList names{"loose.pas", "mine.pas", "theirs.pas"};
  const auto list = ann.Populate(SCC_COMMAND_CHECKOUT, names);
  EXPECT_EQ(ann.Files(names), list.Dropped);
  EXPECT_THAT(list.Statuses, ElementsAre(0, kOutHere, kOutByOther | kOutOfDate));
  EXPECT_THAT(list.Added, ElementsAre(Pair(ann.File("free.pas"), kControlled | kOutOfDate),
                                      Pair(ann.File("sub/far.pas"), kControlled | kOutOfDate)));
  EXPECT_EQ(ann.Files({"mine.pas", "theirs.pas"}), ann.Populate(SCC_COMMAND_ADD, names).Dropped);
  // A deleted file can be put back, but not be changed.
  EXPECT_EQ(SCC_OK, ann.Get({"free.pas"}));
  EXPECT_EQ(SCC_OK, bob.Remove({"free.pas"}));
  EXPECT_THAT(ann.Populate(SCC_COMMAND_ADD, {"free.pas"}).Dropped, IsEmpty());
  for (const auto command : {SCC_COMMAND_CHECKOUT, SCC_COMMAND_REMOVE})
    EXPECT_EQ(ann.Files({"free.pas"}), ann.Populate(command, {"free.pas"}).Dropped);
}

TEST_F(Populate, StopsWhenTheClientHasEnough) {
  int calls = 0;
  const auto refuse = [](void* data, Bool, Long, const char*) -> Bool {
    ++*static_cast<int*>(data);
    return 0;
  };
  EXPECT_EQ(SCC_OK, ann.Library()->SccPopulateList(ann.Context(), SCC_COMMAND_GET, 0, nullptr, refuse, &calls,
                                                   nullptr, 0));
  EXPECT_EQ(1, calls);
}

TEST_F(Events, ReportWhatTheClientDoesNotKnow) {
  EXPECT_THAT(Drain(), IsEmpty());
  ann.Statuses({"a.pas", "b.pas"});
  bob.CheckOut({"a.pas", "b.pas", "never asked.pas"});
  EXPECT_THAT(Drain(), IsEmpty());  // from memory: nobody looked
  EXPECT_EQ(kOutByOther, ann.Status("a.pas"));
  EXPECT_THAT(Drain(), ElementsAre(Pair("b.pas", kOutByOther)));
  EXPECT_THAT(Drain(), IsEmpty());
  bob.Undo({"a.pas", "b.pas"});
  ann.Populate(SCC_COMMAND_CHECKOUT, {});
  EXPECT_THAT(Drain(), ElementsAre(Pair("a.pas", kControlled), Pair("b.pas", kControlled)));
}

TEST_F(Events, ReportWhatOwnCommandsDidUnlessTheQueueIsDisabled) {
  ann.Statuses({"a.pas"});
  ann.CheckOut({"a.pas"});
  EXPECT_THAT(Drain(), ElementsAre(Pair("a.pas", kOutHere)));
  ann.Write("a.pas", "2\n");
  ann.CheckIn({"a.pas"});
  EXPECT_THAT(Drain(), ElementsAre(Pair("a.pas", kControlled)));
  Set(SCC_OPT_EVENTQUEUE, 0);
  ann.CheckOut({"a.pas"});
  EXPECT_THAT(Drain(), IsEmpty());
  Set(SCC_OPT_EVENTQUEUE, 1);
  ann.Populate(SCC_COMMAND_CHECKOUT, {});
  EXPECT_THAT(Drain(), ElementsAre(Pair("a.pas", kOutHere)));
}

TEST_F(Events, CancelButtonEndsACommand) {
  ann.CheckOut({"a.pas"});
  EXPECT_THAT(ann.Said(), Not(HasSubstr("?"))) << "a client without the button is sent nothing of the kind";
  Set(SCC_OPT_HASCANCELMODE, 1);
  ann.Undo({"a.pas"});
  EXPECT_THAT(ann.Said(), AllOf(StartsWith("? 6\n? 5\n"), HasSubstr("? 4 a.pas\n"), EndsWith("? 7\n")));
  {
    const TCancelPressed pressed;
    EXPECT_EQ(SCC_I_OPERATIONCANCELED, ann.CheckOut({"a.pas", "b.pas"}));
    EXPECT_EQ("? 6\n? 5\n? 7\nI The command was cancelled.\n", ann.Said());
    ann.Write("new.pas", "1\n");
    EXPECT_EQ(SCC_I_OPERATIONCANCELED, ann.Add({"new.pas"}));
  }
  EXPECT_EQ((TStatuses{1, 1, 0}), ann.Statuses({"a.pas", "b.pas", "new.pas"}));
  EXPECT_EQ(SCC_OK, ann.Add({"new.pas"})) << ann.Said();

  // What the server took is done, whenever the button is pressed.
  ann.Edit("a.pas", "taken\n");
  const std::string taken = repository.Folder() + "/taken";
  repository.WriteHook("post-commit", "touch '" + taken + "'\nsleep 0.2\n");
  const TCancelPressed late(taken);
  EXPECT_EQ(SCC_OK, ann.CheckIn({"a.pas"})) << ann.Said();
  EXPECT_EQ("taken\n", repository.Contents("project/a.pas"));
  EXPECT_EQ(kControlled, ann.Status("a.pas"));
}

// In the middle of a get, with files fetched that the working copy has not noted yet.
TEST_F(Events, CancelledCommandLeavesNoLockBehind) {
  NameList names;
  for (int i = 0; i < 40; ++i) names.push_back("new/" + std::to_string(i) + ".pas");
  bob.AddNew(names);
  Set(SCC_OPT_HASCANCELMODE, 1);
  {
    const TCancelPressed pressed(ann.File("new"));
    ASSERT_EQ(SCC_I_OPERATIONCANCELED, ann.GetEverything()) << ann.Said();
  }
  EXPECT_EQ(0, std::system(("svn update -q --non-interactive --depth empty '" + ann.Folder() + "'").c_str()));
  EXPECT_EQ(SCC_OK, ann.GetEverything()) << ann.Said();
  EXPECT_THAT(ann.Statuses(names), Each(kControlled));
}

}  // namespace kestrel::svnscc
