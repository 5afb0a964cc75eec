// The revisions of a file, and getting one of them, without the window.

#include "Developer.h"
#include "subversion/commands/GetRevision.h"
#include "subversion/svn/History.h"

namespace kestrel::svnscc {

namespace {

struct FileHistory : TTeam {
  FileHistory() {
    ann.Write("unit1.pas", "1\n");
    ann.Add({"unit1.pas"}, "first");
    for (const char* text : {"2\n", "3\n"})
      ann.EditAndCheckIn("unit1.pas", text, std::string("makes it ") + text + "\nin detail");
  }
  static std::vector<svn_revnum_t> Load(History& history) {
    history.LoadMore();
    std::vector<svn_revnum_t> numbers;
    for (const auto& revision : history.Revisions()) numbers.push_back(revision.Number);
    return numbers;
  }
};

}  // namespace

TEST_F(FileHistory, LoadsPageByPageNewestFirst) {
  TDirectSession session(repository, ann);
  History history(session->Svn(), ann.File("unit1.pas"), 2);
  EXPECT_THAT(Load(history), ElementsAre(4, 3));
  EXPECT_TRUE(history.HasMore());
  EXPECT_EQ("ann", history.Revisions().front().Author);
  EXPECT_EQ("makes it 3\n\nin detail", history.Revisions().front().Comment);
  EXPECT_EQ("2\n", history.TextOf(1).Bytes);
  EXPECT_THAT(Load(history), ElementsAre(4, 3, 2));
  EXPECT_FALSE(history.HasMore());
  EXPECT_EQ("first", history.Revisions().back().Comment);
}

TEST_F(FileHistory, GetsARevisionAndKeepsACopyOfEdits) {
  EXPECT_EQ("", GetRevision(TDirectSession(repository, ann), ann.File("unit1.pas"), 2).Copy);
  EXPECT_EQ("1\n", ann.Read("unit1.pas"));
  EXPECT_FALSE(ann.IsWritable("unit1.pas"));
  EXPECT_EQ(kControlled | kOutOfDate, ann.Status("unit1.pas"));
  ann.Edit("unit1.pas", "mine\n");
  for (const auto& [revision, copy] : {std::pair(2, "unit1.pas.mine"), std::pair(3, "unit1.pas.mine~")}) {
    TDirectSession session(repository, ann);
    EXPECT_EQ(ann.File(copy), GetRevision(session, ann.File("unit1.pas"), revision).Copy);
  }
  EXPECT_EQ("mine\n", ann.Read("unit1.pas.mine"));
  EXPECT_EQ("2\n", ann.Read("unit1.pas"));
  EXPECT_EQ(SCC_OK, ann.CheckIn({"unit1.pas"}, "back")) << ann.Said();
  EXPECT_EQ("2\n", repository.Contents("project/unit1.pas"));
}

}  // namespace kestrel::svnscc
