// Status events, and the cancel button.

#include "Developer.h"

namespace kestrel::svnscc {

namespace {

struct Events : TTeam {
  Events() {
    ann.AddNew({"a.pas", "b.pas", "never asked.pas"});
    Join(bob);
  }
  /// All events, as "file=status".
  std::vector<std::string> Drain() {
    std::vector<std::string> events;
    for (;;) {
      std::array<char, 261> name;
      name.fill('x');
      scc::Long status = -1;
      scc::Long remaining = -1;
      EXPECT_EQ(scc::SCC_OK, ann.Library()->SccGetEvents(ann.Context(), name.data(), &status, &remaining));
      if (name[0] == '\0') {
        EXPECT_EQ(0, remaining);
        return events;
      }
      const std::string path = name.data();
      char word[16];
      std::snprintf(word, sizeof word, "=%x", static_cast<unsigned>(status));
      events.push_back(path.substr(ann.Folder().size() + 1) + word);
      EXPECT_LE(0, remaining);
    }
  }
  void Set(scc::Option option, scc::Long value) {
    EXPECT_EQ(scc::SCC_OK, ann.Library()->SccSetOption(ann.Context(), option, value));
  }
};

}  // namespace

TEST_F(Events, ReportWhatTheClientDoesNotKnow) {
  EXPECT_THAT(Drain(), IsEmpty());
  ann.Statuses({"a.pas", "b.pas"});
  bob.CheckOut({"a.pas", "b.pas", "never asked.pas"});
  EXPECT_THAT(Drain(), IsEmpty());  // from memory: nobody looked
  EXPECT_EQ(0x000D, ann.Status("a.pas"));
  EXPECT_THAT(Drain(), ElementsAre("b.pas=d"));
  EXPECT_THAT(Drain(), IsEmpty());
  bob.Undo({"a.pas", "b.pas"});
  ann.Populate(scc::SCC_COMMAND_CHECKOUT, {});
  EXPECT_THAT(Drain(), UnorderedElementsAre("a.pas=1", "b.pas=1"));
}

TEST_F(Events, ReportWhatOwnCommandsDidUnlessTheQueueIsDisabled) {
  ann.Statuses({"a.pas"});
  ann.CheckOut({"a.pas"});
  EXPECT_THAT(Drain(), ElementsAre("a.pas=100b"));
  ann.Write("a.pas", "2\n");
  ann.CheckIn({"a.pas"});
  EXPECT_THAT(Drain(), ElementsAre("a.pas=1"));
  Set(scc::SCC_OPT_EVENTQUEUE, 0);
  ann.CheckOut({"a.pas"});
  EXPECT_THAT(Drain(), IsEmpty());
  Set(scc::SCC_OPT_EVENTQUEUE, 1);
  ann.Populate(scc::SCC_COMMAND_CHECKOUT, {});
  EXPECT_THAT(Drain(), ElementsAre("a.pas=100b"));
}

TEST_F(Events, CancelButtonEndsACommand) {
  ann.CheckOut({"a.pas"});
  EXPECT_THAT(ann.Said(),
              Not(HasSubstr("?")));  // no such client: nothing of the kind is sent
  Set(scc::SCC_OPT_HASCANCELMODE, 1);
  ann.Undo({"a.pas"});
  EXPECT_THAT(ann.Said(), StartsWith("? 6\n? 5\n"));
  EXPECT_THAT(ann.Said(), HasSubstr("? 4 a.pas\n"));
  EXPECT_THAT(ann.Said(), EndsWith("? 7\n"));
  {
    const TCancelPressed pressed;
    EXPECT_EQ(scc::SCC_I_OPERATIONCANCELED, ann.CheckOut({"a.pas", "b.pas"}));
    EXPECT_EQ("? 6\n? 5\n? 7\nI The command was cancelled.\n", ann.Said());
    ann.Write("new.pas", "1\n");
    EXPECT_EQ(scc::SCC_I_OPERATIONCANCELED, ann.Add({"new.pas"}));
  }
  EXPECT_EQ((std::vector<scc::Long>{1, 1, 0}), ann.Statuses({"a.pas", "b.pas", "new.pas"}));
  EXPECT_EQ(scc::SCC_OK, ann.Add({"new.pas"})) << ann.Said();

  // What the server took is done, whenever the button is pressed.
  ann.Edit("a.pas", "taken\n");
  const std::string taken = repository.Folder() + "/taken";
  repository.WriteHook("post-commit", "touch '" + taken + "'\nsleep 0.2\n");
  const TCancelPressed late(taken);
  EXPECT_EQ(scc::SCC_OK, ann.CheckIn({"a.pas"})) << ann.Said();
  EXPECT_EQ("taken\n", repository.Contents("project/a.pas"));
  EXPECT_EQ(1, ann.Status("a.pas"));
}

// In the middle of a get, with files fetched that the working copy has not noted yet.
TEST_F(Events, ACancelledCommandLeavesNoLockBehind) {
  std::vector<std::string> names;
  for (int i = 0; i < 40; ++i) names.push_back("new/" + std::to_string(i) + ".pas");
  bob.AddNew(names);
  Set(scc::SCC_OPT_HASCANCELMODE, 1);
  {
    const TCancelPressed pressed(ann.File("new"));
    ASSERT_EQ(scc::SCC_I_OPERATIONCANCELED, ann.GetEverything()) << ann.Said();
  }
  EXPECT_EQ(0, std::system(("svn update -q --non-interactive --depth empty '" + ann.Folder() + "'").c_str()));
  EXPECT_EQ(scc::SCC_OK, ann.GetEverything()) << ann.Said();
  EXPECT_THAT(ann.Statuses(names), Each(1));
}

}  // namespace kestrel::svnscc
