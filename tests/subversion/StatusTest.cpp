// Status queries as a whole: all cells, all names, with and without a repository.
#include <gmock/gmock.h>

#include <fstream>

#include "Developer.h"

namespace kestrel::svnscc {

using testing::Each;
using testing::HasSubstr;

namespace {

struct Status : testing::Test {
  Status() { EXPECT_EQ(scc::SCC_OK, ann.Open(repository.Url(), "project")); }
  TTestRepository repository;
  TDeveloper ann{"ann"};
};

}  // namespace

TEST_F(Status, EveryCellIsFilledWhateverTheName) {
  ann.Write("unit1.pas", "1\n");
  ann.Add({"unit1.pas"});
  const std::string inside = ann.File("unit1.pas");
  const std::string dotted = ann.Folder() + "/sub/.././/unit1.pas";
  const std::string folder = ann.Folder() + "/";
  const std::string administrative = ann.File(".svn/wc.db");
  const std::string twin = ann.Folder() + "2/unit1.pas";
  const std::string broken = ann.File("\xff\xfe.pas");
  const std::string longName = ann.File(std::string(5000, 'x'));
  std::vector<const char*> names{inside.c_str(),
                                 dotted.c_str(),
                                 folder.c_str(),
                                 administrative.c_str(),
                                 twin.c_str(),
                                 broken.c_str(),
                                 longName.c_str(),
                                 nullptr,
                                 "",
                                 "unit1.pas",
                                 "/",
                                 "/../../etc/passwd",
                                 "C:\\x.pas",
                                 "file:///x.pas",
                                 " ",
                                 "/no/such/place"};
  std::vector<scc::Long> cells(names.size() + 1, 77);
  ASSERT_EQ(scc::SCC_OK, ann.Library()->SccQueryInfo(ann.Context(), static_cast<scc::Long>(names.size()),
                                                     names.data(), cells.data()));
  EXPECT_EQ(1, cells[0]);
  EXPECT_EQ(1, cells[1]);
  EXPECT_EQ(1, cells[2]);
  EXPECT_EQ(77, cells.back());
  EXPECT_THAT(std::vector<scc::Long>(cells.begin() + 3, cells.end() - 1), Each(0));
}

TEST_F(Status, ANameThatIsNotUtf8IsLeftOutAndTheOthersAreAnswered) {
  for (const char* name : {"in.pas", "out.pas", "sub/old.pas"}) ann.Write(name, "1\n");
  ann.Add({"in.pas", "out.pas", "sub/old.pas"});
  TDeveloper bob("bob");
  bob.Open(repository.Url(), "project");
  bob.GetEverything();
  ann.CheckOut({"sub/old.pas"});
  ann.Write("sub/old.pas", "2\n");
  ann.CheckIn({"sub/old.pas"});
  ann.Write("new.pas", "1\n");
  ann.Add({"new.pas"});
  bob.CheckOut({"out.pas"});
  bob.Write("out.pas", "2\n");
  for (const char* folder : {"", "sub/"}) std::ofstream(bob.File(folder + std::string("\xff.pas"))) << "1\n";
  EXPECT_EQ((std::vector<scc::Long>{1, 0x180B, 0x21, 0x21, 0}),
            bob.Statuses({"in.pas", "out.pas", "sub/old.pas", "new.pas", "\xff.pas"}));
  EXPECT_THAT(bob.Said(), HasSubstr("W ?.pas is left out: its name is not UTF-8"));
  EXPECT_THAT(bob.Said(), HasSubstr("W sub/?.pas is left out"));
  bob.Status("in.pas");
  EXPECT_EQ("", bob.Said()) << "told once";
  EXPECT_EQ(scc::SCC_E_FILESYNTAXERR, bob.Add({"\xff.pas"}));
  EXPECT_EQ(scc::SCC_OK, bob.Get({"sub/old.pas", "new.pas"})) << bob.Said();
  EXPECT_EQ("2\n", bob.Read("sub/old.pas"));
  EXPECT_EQ(scc::SCC_OK, bob.CheckIn({"out.pas"})) << bob.Said();
  std::filesystem::remove(bob.File("new.pas"));
  EXPECT_EQ(scc::SCC_OK, bob.GetEverything()) << bob.Said();
  EXPECT_EQ("1\n", bob.Read("new.pas"));
  bob.CheckOut({"out.pas"});
  std::filesystem::rename(repository.Folder(), repository.Folder() + "-gone");
  EXPECT_EQ((std::vector<scc::Long>{1, 0x100B, 1}),
            bob.Statuses({"in.pas", "out.pas", "new.pas"}, scc::SCC_E_ACCESSFAILURE));
}

TEST_F(Status, WithoutTheRepositoryTheWorkingCopyAnswers) {
  ann.Write("out.pas", "1\n");
  ann.Write("in.pas", "1\n");
  ann.Write("new.pas", "1\n");
  ann.Add({"out.pas", "in.pas"});
  ann.CheckOut({"out.pas"});
  ann.Write("out.pas", "2\n");
  std::filesystem::rename(repository.Folder(), repository.Folder() + "-gone");

  EXPECT_EQ((std::vector<scc::Long>{0x180B, 0x0001, 0}),
            ann.Statuses({"out.pas", "in.pas", "new.pas"}, scc::SCC_E_ACCESSFAILURE));
  EXPECT_THAT(ann.Said(), HasSubstr("E The repository could not be asked: "));
  for (const scc::Long result : {ann.CheckIn({"out.pas"}), ann.CheckOut({"in.pas"}), ann.Get({"in.pas"}),
                                 ann.Add({"new.pas"}), ann.Remove({"in.pas"}), ann.GetEverything()})
    EXPECT_EQ(scc::SCC_E_ACCESSFAILURE, result);
  EXPECT_EQ("2\n", ann.Read("out.pas"));

  std::filesystem::rename(repository.Folder() + "-gone", repository.Folder());
  EXPECT_EQ(scc::SCC_OK, ann.CheckIn({"out.pas"})) << ann.Said();
  EXPECT_EQ("2\n", repository.Contents("project/out.pas"));
}

TEST_F(Status, FilesThatOnlyTheRepositoryHasAreControlledAndOld) {
  TDeveloper bob("bob");
  bob.Open(repository.Url(), "project");
  bob.Write("sub/theirs.pas", "1\n");
  bob.Write("both.pas", "1\n");
  bob.Add({"sub/theirs.pas", "both.pas"});
  bob.CheckOut({"both.pas"});
  ann.Write("both.pas", "a file of the same name\n");
  EXPECT_EQ((std::vector<scc::Long>{0x0021, 0x002D}), ann.Statuses({"sub/theirs.pas", "both.pas"}));
  EXPECT_EQ(scc::SCC_I_FILEDIFFERS, ann.QuickDiff("both.pas"));
  EXPECT_EQ(scc::SCC_E_FILENOTEXIST, ann.QuickDiff("sub/theirs.pas"));

  ASSERT_EQ(scc::SCC_OK, ann.CheckOut({"sub/theirs.pas"})) << ann.Said();
  EXPECT_EQ("1\n", ann.Read("sub/theirs.pas"));
  EXPECT_EQ(0x100B, ann.Status("sub/theirs.pas"));
}

TEST_F(Status, ManyFilesAreAnsweredInOneQuery) {
  std::vector<std::string> names;
  for (int i = 0; i < 65536; ++i)
    names.push_back("d" + std::to_string(i % 100) + "/unit" + std::to_string(i) + ".pas");
  EXPECT_THAT(ann.Statuses(names), Each(0));
}

}  // namespace kestrel::svnscc
