// Status queries as a whole: all cells, all names, with and without a repository.

#include <fstream>

#include "Developer.h"
#include "Server.h"

namespace kestrel::svnscc {

namespace {
using Status = TTeam;
}

TEST_F(Status, FillsEveryCellWhateverTheName) {
  ann.AddNew({"unit1.pas"});
  const std::string root = ann.Folder();
  TNamePointers names({root + "/unit1.pas", root + "/sub/.././/unit1.pas", root + "/", root + "/.svn/wc.db",
                       root + "2/unit1.pas", root + "/\xff\xfe.pas", root + "/" + std::string(5000, 'x'), "",
                       "unit1.pas", "/", "/../../etc/passwd", "C:\\x.pas", "file:///x.pas", " ",
                       "/no/such/place", "a null pointer"});
  names.Data()[names.Count() - 1] = nullptr;
  TStatuses cells(static_cast<std::size_t>(names.Count()) + 1, 77);
  ASSERT_EQ(SCC_OK, ann.Library()->SccQueryInfo(ann.Context(), names.Count(), names.Data(), cells.data()));
  TStatuses expected{1, 1, 1};
  expected.resize(cells.size() - 1, 0);
  expected.push_back(77);
  EXPECT_EQ(expected, cells);
}

TEST_F(Status, LeavesOutNamesThatAreNotUtf8AndAnswersTheOthers) {
  ann.AddNew({"in.pas", "out.pas", "sub/old.pas"});
  Join(bob);
  ann.EditAndCheckIn("sub/old.pas", "2\n");
  ann.AddNew({"new.pas"});
  bob.Edit("out.pas", "2\n");
  for (const char* folder : {"", "sub/"}) std::ofstream(bob.File(folder + std::string("\xff.pas"))) << "1\n";
  EXPECT_EQ((TStatuses{1, 0x180B, 0x21, 0x21, 0}),
            bob.Statuses({"in.pas", "out.pas", "sub/old.pas", "new.pas", "\xff.pas"}));
  EXPECT_THAT(bob.Said(), AllOf(HasSubstr("W ?.pas is left out: its name is not UTF-8"),
                                HasSubstr("W sub/?.pas is left out")));
  bob.Status("in.pas");
  EXPECT_EQ("", bob.Said()) << "told once";
  EXPECT_EQ(SCC_E_FILESYNTAXERR, bob.Add({"\xff.pas"}));
  EXPECT_EQ(SCC_OK, bob.Get({"sub/old.pas", "new.pas"})) << bob.Said();
  EXPECT_EQ("2\n", bob.Read("sub/old.pas"));
  EXPECT_EQ(SCC_OK, bob.CheckIn({"out.pas"})) << bob.Said();
  bob.Delete("new.pas");
  EXPECT_EQ(SCC_OK, bob.GetEverything()) << bob.Said();
  EXPECT_EQ("1\n", bob.Read("new.pas"));
  bob.CheckOut({"out.pas"});
  repository.Hide();
  EXPECT_EQ((TStatuses{1, 0x100B, 1}), bob.Statuses({"in.pas", "out.pas", "new.pas"}, SCC_E_ACCESSFAILURE));
}

TEST_F(Status, AnswersFromTheWorkingCopyWithoutTheRepository) {
  ann.AddNew({"out.pas", "in.pas"});
  ann.Write("new.pas", "1\n");
  ann.Edit("out.pas", "2\n");
  repository.Hide();

  EXPECT_EQ((TStatuses{0x180B, 0x0001, 0}),
            ann.Statuses({"out.pas", "in.pas", "new.pas"}, SCC_E_ACCESSFAILURE));
  EXPECT_THAT(ann.Said(), HasSubstr("E The repository could not be asked: "));
  for (const Long result : {ann.CheckIn({"out.pas"}), ann.CheckOut({"in.pas"}), ann.Get({"in.pas"}),
                            ann.Add({"new.pas"}), ann.Remove({"in.pas"}), ann.GetEverything()})
    EXPECT_EQ(SCC_E_ACCESSFAILURE, result);
  EXPECT_EQ("2\n", ann.Read("out.pas"));

  repository.Show();
  EXPECT_EQ(SCC_OK, ann.CheckIn({"out.pas"})) << ann.Said();
  EXPECT_EQ("2\n", repository.Contents("project/out.pas"));
}

// What a client asks between the click on its menu and the list on screen.
TEST_F(Status, AsksServerOnceForQueriesThatFollowEachOther) {
  ann.AddNew({"one.pas", "sub/two.pas"});
  ann.AddNew({"new/three.pas"});
  repository.SetLimit("remember-seconds", 600);
  const TServer server(repository, "write");
  TDeveloper eve("eve");
  ASSERT_EQ(SCC_OK, eve.Open(server.Url(), "project")) << eve.Said();
  ASSERT_EQ(SCC_OK, eve.Get({"one.pas", "sub/two.pas"})) << eve.Said();
  ann.CheckOut({"one.pas"});
  eve.Write("new.pas", "1\n");

  const NameList names{"one.pas", "sub/two.pas", "new/three.pas", "new.pas"};
  TStatuses expected{kOutByOther, kControlled, kControlled | kOutOfDate, 0};
  EXPECT_EQ(expected, eve.Statuses(names));
  const auto connections = server.Connections();
  EXPECT_EQ(expected, eve.Populate(SCC_COMMAND_CHECKOUT, names).Statuses);
  eve.EditWithoutCheckOut("sub/two.pas", "changed after the server was asked\n");
  expected[1] |= kModified;
  EXPECT_EQ(expected, eve.Statuses(names));
  EXPECT_EQ(connections, server.Connections());

  ann.Undo({"one.pas"});
  EXPECT_EQ(expected, eve.Statuses(names)) << "the server's part is remembered";
  ASSERT_EQ(SCC_OK, eve.Get({"new/three.pas"})) << eve.Said();
  expected[0] = expected[2] = kControlled;
  EXPECT_EQ(expected, eve.Statuses(names)) << "a command makes it forget";
}

TEST_F(Status, GivesUpServerThatStaysSilentOrDoesNotConnect) {
  repository.SetLimit("silence-seconds", 1);
  EXPECT_EQ(SCC_E_CONNECTIONFAILURE, bob.Open(TListener().Url(), "project"));
  EXPECT_EQ("E The server has sent nothing for 1 s: the connection was given up.\n", bob.Said());
  repository.SetLimit("connect-seconds", 1);
  EXPECT_EQ(SCC_E_CONNECTIONFAILURE, bob.Open(TListener(/*isFull*/ true).Url(), "project"));
  EXPECT_EQ("E No connection to the server came about within 1 s.\n", bob.Said());
}

}  // namespace kestrel::svnscc
