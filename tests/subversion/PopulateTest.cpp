// Filling a client's file list.

#include "Developer.h"

namespace kestrel::svnscc {

namespace {

/// Ann has mine.pas out, Bob theirs.pas; free.pas and sub/far.pas are in the repository only, loose.pas on disk only.
struct Populate : TTeam {
  Populate() {
    Join(bob);
    bob.AddNew({"free.pas", "sub/far.pas", "theirs.pas"});
    bob.CheckOut({"theirs.pas"});
    ann.AddNew({"mine.pas"}, "1\n", scc::SCC_KEEP_CHECKEDOUT);
    ann.Write("loose.pas", "1\n");
  }
  std::vector<std::string> Added(scc::SCCCommand command, const std::vector<std::string>& names = {},
                                 scc::Long flags = 0) {
    std::vector<std::string> added;
    const auto list = ann.Populate(command, names, flags);
    EXPECT_EQ(scc::SCC_OK, list.Result);
    for (const auto& [name, status] : list.Added) added.push_back(name.substr(ann.Folder().size() + 1));
    return added;
  }
};

}  // namespace

TEST_F(Populate, AddsWhatFitsTheCommand) {
  EXPECT_THAT(Added(scc::SCC_COMMAND_GET), ElementsAre("free.pas", "mine.pas", "sub/far.pas", "theirs.pas"));
  EXPECT_THAT(Added(scc::SCC_COMMAND_CHECKOUT), ElementsAre("free.pas", "sub/far.pas"));
  EXPECT_THAT(Added(scc::SCC_COMMAND_CHECKIN), ElementsAre("mine.pas"));
  EXPECT_THAT(Added(scc::SCC_COMMAND_UNCHECKOUT), ElementsAre("mine.pas"));
  EXPECT_THAT(Added(scc::SCC_COMMAND_REMOVE), ElementsAre("free.pas", "sub/far.pas"));
  EXPECT_THAT(Added(scc::SCC_COMMAND_ADD), IsEmpty());
  EXPECT_THAT(Added(scc::SCC_COMMAND_GET, {"free.pas", "mine.pas"}),
              ElementsAre("sub/far.pas", "theirs.pas"));
}

TEST_F(Populate, DropsWhatDoesNotFitAndTellsTheStatuses) {
  const std::vector<std::string> names{"loose.pas", "mine.pas", "theirs.pas"};
  const auto list = ann.Populate(scc::SCC_COMMAND_CHECKOUT, names);
  EXPECT_THAT(list.Dropped, ElementsAre(ann.File("loose.pas"), ann.File("mine.pas"), ann.File("theirs.pas")));
  EXPECT_THAT(list.Statuses, ElementsAre(0, 0x100B, 0x002D));
  EXPECT_THAT(list.Added,
              UnorderedElementsAre(Pair(ann.File("free.pas"), 0x21), Pair(ann.File("sub/far.pas"), 0x21)));
  EXPECT_THAT(ann.Populate(scc::SCC_COMMAND_ADD, names).Dropped,
              ElementsAre(ann.File("mine.pas"), ann.File("theirs.pas")));
}

// It can be put back, but not be changed.
TEST_F(Populate, ADeletedFileFitsAddingOnly) {
  EXPECT_EQ(scc::SCC_OK, ann.Get({"free.pas"}));
  EXPECT_EQ(scc::SCC_OK, bob.Remove({"free.pas"}));
  EXPECT_THAT(ann.Populate(scc::SCC_COMMAND_ADD, {"free.pas"}).Dropped, IsEmpty());
  EXPECT_THAT(ann.Populate(scc::SCC_COMMAND_CHECKOUT, {"free.pas"}).Dropped,
              ElementsAre(ann.File("free.pas")));
  EXPECT_THAT(ann.Populate(scc::SCC_COMMAND_REMOVE, {"free.pas"}).Dropped, ElementsAre(ann.File("free.pas")));
}

TEST_F(Populate, FoldersAreReportedWithEverythingBelow) {
  EXPECT_THAT(Added(scc::SCC_COMMAND_GET, {"sub"}, scc::SCC_PL_DIR), ElementsAre("sub/far.pas"));
  EXPECT_THAT(Added(scc::SCC_COMMAND_GET, {""}, scc::SCC_PL_DIR),
              ElementsAre("free.pas", "mine.pas", "sub/far.pas", "theirs.pas"));
  EXPECT_THAT(Added(scc::SCC_COMMAND_CHECKIN, {}, scc::SCC_PL_DIR), ElementsAre("mine.pas"));
  EXPECT_EQ(scc::SCC_OK, ann.Get({"sub/far.pas"}));  // what was reported can be fetched
  EXPECT_TRUE(ann.Has("sub/far.pas"));
}

TEST_F(Populate, StopsWhenTheClientHasEnough) {
  int calls = 0;
  const auto refuse = [](void* data, scc::Bool, scc::Long, const char*) -> scc::Bool {
    ++*static_cast<int*>(data);
    return 0;
  };
  EXPECT_EQ(scc::SCC_OK, ann.Library()->SccPopulateList(ann.Context(), scc::SCC_COMMAND_GET, 0, nullptr,
                                                        refuse, &calls, nullptr, 0));
  EXPECT_EQ(1, calls);
}

}  // namespace kestrel::svnscc
