// The revisions of a file, and getting one of them, without the window.
#include <gmock/gmock.h>

#include "Developer.h"
#include "subversion/commands/GetRevision.h"
#include "subversion/project/OpenProject.h"
#include "subversion/svn/History.h"

namespace kestrel::svnscc {

using testing::ElementsAre;

namespace {

struct FileHistory : testing::Test {
  FileHistory() {
    ann.Open(repository.Url(), "project");
    ann.Write("unit1.pas", "1\n");
    ann.Add({"unit1.pas"}, "first");
    for (const char* text : {"2\n", "3\n"}) {
      ann.CheckOut({"unit1.pas"});
      ann.Write("unit1.pas", text);
      ann.CheckIn({"unit1.pas"}, std::string("makes it ") + text + "\nin detail");
    }
  }
  /// The same working copy, opened in this program: for functions that no entry point reaches without a window.
  svnscc::ProviderContext& Opened() {
    svnscc::ProjectNames names{"ann", "project", repository.Url(), ann.Folder(), ""};
    svnscc::OpenProject(session, names, {});
    return session;
  }
  static std::vector<svn_revnum_t> Numbers(const History& history) {
    std::vector<svn_revnum_t> numbers;
    for (const auto& revision : history.Revisions()) numbers.push_back(revision.Number);
    return numbers;
  }
  TTestRepository repository;
  TDeveloper ann{"ann"};
  svnscc::ProviderContext session;
};

}  // namespace

TEST_F(FileHistory, LoadsPageByPageNewestFirst) {
  History history(Opened().Svn(), ann.File("unit1.pas"), 2);
  history.LoadMore();
  EXPECT_THAT(Numbers(history), ElementsAre(4, 3));
  EXPECT_TRUE(history.HasMore());
  EXPECT_EQ("ann", history.Revisions().front().Author);
  EXPECT_EQ("makes it 3\n\nin detail", history.Revisions().front().Comment);
  EXPECT_EQ("2\n", history.TextOf(1).Bytes);
  history.LoadMore();
  EXPECT_THAT(Numbers(history), ElementsAre(4, 3, 2));
  EXPECT_FALSE(history.HasMore());
  EXPECT_EQ("first", history.Revisions().back().Comment);
}

TEST_F(FileHistory, KnowsWhatOthersDid) {
  TDeveloper bob("bob");
  bob.Open(repository.Url(), "project");
  bob.CheckOut({"unit1.pas"});
  bob.Write("unit1.pas", "4\n");
  bob.CheckIn({"unit1.pas"});
  History history(Opened().Svn(), ann.File("unit1.pas"));
  history.LoadMore();
  EXPECT_THAT(Numbers(history), ElementsAre(5, 4, 3, 2));
  bob.Remove({"unit1.pas"});
  History removed(Opened().Svn(), ann.File("unit1.pas"));
  removed.LoadMore();
  EXPECT_THAT(Numbers(removed), ElementsAre(4, 3, 2));
}

TEST_F(FileHistory, GetsARevisionOfAFileThatIsNotCheckedOut) {
  EXPECT_EQ("", svnscc::GetRevision(Opened(), ann.File("unit1.pas"), 2).Copy);
  session.Close();
  EXPECT_EQ("1\n", ann.Read("unit1.pas"));
  EXPECT_FALSE(ann.IsWritable("unit1.pas"));
  EXPECT_EQ(0x21, ann.Status("unit1.pas"));
}

TEST_F(FileHistory, GetsARevisionAsAnEditAndKeepsWhatWasEdited) {
  ann.CheckOut({"unit1.pas"});
  ann.Write("unit1.pas", "mine\n");
  EXPECT_EQ(ann.File("unit1.pas.mine"), svnscc::GetRevision(Opened(), ann.File("unit1.pas"), 2).Copy);
  EXPECT_EQ(ann.File("unit1.pas.mine~"), svnscc::GetRevision(session, ann.File("unit1.pas"), 3).Copy);
  session.Close();
  EXPECT_EQ("mine\n", ann.Read("unit1.pas.mine"));
  EXPECT_EQ("2\n", ann.Read("unit1.pas"));
  EXPECT_EQ(scc::SCC_OK, ann.CheckIn({"unit1.pas"}, "back")) << ann.Said();
  EXPECT_EQ("2\n", repository.Contents("project/unit1.pas"));
}

}  // namespace kestrel::svnscc
