// Binding folders to projects.
#include <gmock/gmock.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Developer.h"
#include "Server.h"
#include "host/System.h"
#include "subversion/Repository.h"

using testing::HasSubstr;

namespace {

struct OpenProject : testing::Test {
  TTestRepository repository;
  TDeveloper ann{"ann"};
};

}  // namespace

TEST_F(OpenProject, CreatesTheProjectAroundAnExistingFolder) {
  ann.Write("unit1.pas", "old work\n");
  std::filesystem::permissions(ann.File("unit1.pas"), std::filesystem::perms::owner_read);
  ASSERT_EQ(scc::SCC_OK, ann.Open(repository.Url(), "team/Größe & Co/app")) << ann.Said();
  EXPECT_TRUE(repository.Exists("team/Größe & Co/app"));
  EXPECT_EQ("Made for the tests", repository.Log(1));
  EXPECT_EQ("ann", repository.Author(1));
  EXPECT_EQ("old work\n", ann.Read("unit1.pas"));
  EXPECT_FALSE(ann.IsWritable("unit1.pas"));
  EXPECT_EQ(0, ann.Status("unit1.pas"));
  ASSERT_EQ(scc::SCC_OK, ann.Add({"unit1.pas"})) << ann.Said();

  EXPECT_EQ(scc::SCC_OK, ann.Close());
  EXPECT_EQ(scc::SCC_OK, ann.Open(repository.Url(), "/team/Größe & Co/app/"));
  EXPECT_EQ(2, repository.Youngest());  // nothing was created again
  EXPECT_EQ(1, ann.Status("unit1.pas"));
}

TEST_F(OpenProject, ExistingFilesOfTheSameNameStay) {
  ann.Write("unit1.pas", "in the repository\n");
  ann.Open(repository.Url(), "project");
  ann.Add({"unit1.pas"});
  TDeveloper bob("bob");
  bob.Write("unit1.pas", "bob's own\n");
  ASSERT_EQ(scc::SCC_OK, bob.Open(repository.Url(), "project"));
  ASSERT_EQ(scc::SCC_OK, bob.GetEverything());
  EXPECT_EQ("bob's own\n", bob.Read("unit1.pas"));
  EXPECT_EQ(0x0801, bob.Status("unit1.pas"));
}

TEST_F(OpenProject, TheRootAndAFolderNameWillDo) {
  ASSERT_EQ(scc::SCC_OK, ann.Open(repository.Folder(), "/")) << ann.Said();
  ann.Write("unit1.pas", "1\n");
  ASSERT_EQ(scc::SCC_OK, ann.Add({"unit1.pas"})) << ann.Said();
  EXPECT_TRUE(repository.Exists("unit1.pas"));
}

TEST_F(OpenProject, UnknownProjectsAreCreatedOnlyOnRequest) {
  EXPECT_EQ(scc::SCC_E_UNKNOWNPROJECT, ann.Open(repository.Url(), "nowhere", scc::SCC_OP_SILENTOPEN));
  EXPECT_THAT(ann.Said(), HasSubstr("has no folder \"nowhere\""));
  EXPECT_EQ(0, repository.Youngest());
  EXPECT_FALSE(std::filesystem::exists(ann.File(".svn")));
  EXPECT_EQ(scc::SCC_E_PROJNOTOPEN, ann.CheckOut({"unit1.pas"}));
  EXPECT_EQ(scc::SCC_OK, ann.Open(repository.Url(), "nowhere"));
  EXPECT_EQ(scc::SCC_E_PROJECTALREADYOPEN, ann.Open(repository.Url(), "nowhere"));
  EXPECT_EQ(scc::SCC_OK, ann.Close());
  EXPECT_EQ(scc::SCC_E_PROJNOTOPEN, ann.Close());
}

// Nothing can be asked here; what the question is answered with is in ProjectDialogTest.cpp.
TEST_F(OpenProject, RepositoriesThatWereNeverUsedAreNotTouchedUnasked) {
  const TTemporaryFolder elsewhere;
  const std::string url = svnscc::CreateRepository(elsewhere / "repository");
  for (const auto flags : {scc::SCC_OP_CREATEIFNEW, scc::SCC_OP_SILENTOPEN}) {
    EXPECT_EQ(scc::SCC_E_OPNOTPERFORMED, ann.OpenMapped(url, "project", flags));
    EXPECT_THAT(ann.Said(), HasSubstr("has not been used on this computer before"));
  }
  EXPECT_EQ(scc::SCC_E_OPNOTPERFORMED, ann.OpenMapped("svn://127.0.0.1:1/r", "p"))
      << "asked before it is contacted";
  EXPECT_EQ(scc::SCC_E_OPNOTPERFORMED, ann.OpenMapped(repository.Url(), "made unasked"));
  EXPECT_EQ(0, repository.Youngest());
  EXPECT_FALSE(std::filesystem::exists(ann.File(".svn")));

  ASSERT_EQ(scc::SCC_OK, ann.Open(url, "project")) << "chosen meanwhile: " << ann.Said();
  ann.Close();
  const TEnvironmentVariable another("CORVANE_REGISTRY_DIR", elsewhere.MakeFolder("registry").c_str());
  EXPECT_EQ(scc::SCC_E_OPNOTPERFORMED, ann.OpenMapped("", "")) << "a folder can bring its working copy along";
}

TEST_F(OpenProject, AnotherWorkingCopyIsLeftAlone) {
  ann.Open(repository.Url(), "one");
  ann.Close();
  EXPECT_EQ(scc::SCC_E_INVALIDFILEPATH, ann.Open(repository.Url(), "two"));
  EXPECT_THAT(ann.Said(), HasSubstr("/one already"));
  EXPECT_FALSE(repository.Exists("two"));
}

TEST_F(OpenProject, BadNamesAreRefusedInWords) {
  ann.Open(repository.Url(), "project");
  ann.Write("unit1.pas", "1\n");
  ann.Add({"unit1.pas"});
  ann.Close();
  struct Row {
    std::string url, project;
    scc::Long result;
  };
  for (const auto& row : {Row{"not an address", "p", scc::SCC_E_PROJSYNTAXERR},
                          Row{"xyz://host/path", "p", scc::SCC_E_PROJSYNTAXERR},
                          Row{"repository", "p", scc::SCC_E_PROJSYNTAXERR},
                          Row{"file://repository", "p", scc::SCC_E_PROJSYNTAXERR},
                          Row{"file:///proc/self/cwd/repository", "p", scc::SCC_E_PROJSYNTAXERR},
                          Row{"file:///%70roc/self/cwd/repository", "p", scc::SCC_E_PROJSYNTAXERR},
                          Row{"/home/../proc/self/cwd/repository", "p", scc::SCC_E_PROJSYNTAXERR},
                          Row{repository.Url(), "../p", scc::SCC_E_PROJSYNTAXERR},
                          Row{repository.Url(), "project/unit1.pas", scc::SCC_E_PROJSYNTAXERR},
                          Row{"file:///no/such/repository", "p", scc::SCC_E_ACCESSFAILURE},
                          Row{"svn://127.0.0.1:1/repository", "p", scc::SCC_E_CONNECTIONFAILURE}}) {
    SCOPED_TRACE(row.url + " " + row.project);
    TDeveloper bob("bob");
    EXPECT_EQ(row.result, bob.Open(row.url, row.project));
    EXPECT_THAT(bob.Said(), HasSubstr("E "));
  }
}

TEST_F(OpenProject, EmptyNamesAreFilledIn) {
  TDeveloper nobody("");
  ASSERT_EQ(scc::SCC_OK, nobody.Open(repository.Url(), "project"));
  EXPECT_FALSE(nobody.User().empty());
  EXPECT_EQ(nobody.User(), repository.Author(1));
  nobody.Close();
  EXPECT_EQ(scc::SCC_OK, nobody.Open("", ""));  // the working copy knows
  EXPECT_EQ(scc::SCC_E_UNKNOWNPROJECT, ann.Open("", ""));
}

// The command is killed in the middle of a commit, as with a whole IDE.
TEST_F(OpenProject, CleansUpAfterACommandThatWasKilled) {
  ann.Open(repository.Url(), "project");
  ann.Write("unit1.pas", "1\n");
  ann.Add({"unit1.pas"}, "", scc::SCC_KEEP_CHECKEDOUT);
  ann.Write("unit1.pas", "2\n");
  ann.Close();
  const std::string marker = repository.Folder() + "/hook-pid";
  repository.WriteHook("pre-commit", "echo $$ > '" + marker + ".new' && mv '" + marker + ".new' '" + marker +
                                         "'\nexec sleep 60\n");
  const pid_t child = fork();
  if (child == 0) {
    ann.Open(repository.Url(), "project");
    ann.CheckIn({"unit1.pas"});
    _exit(0);
  }
  while (!FileExists(marker) && waitpid(child, nullptr, WNOHANG) == 0) usleep(10000);
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  ASSERT_TRUE(FileExists(marker));
  kill(std::stoi(ReadWholeFile(marker)), SIGKILL);
  repository.WriteHook("pre-commit", "exit 0\n");

  ASSERT_EQ(scc::SCC_OK, ann.Open(repository.Url(), "project")) << ann.Said();
  EXPECT_THAT(ann.Said(), HasSubstr("was cleaned up"));
  EXPECT_EQ(scc::SCC_OK, ann.CheckIn({"unit1.pas"})) << ann.Said();
  EXPECT_EQ("2\n", repository.Contents("project/unit1.pas"));
}

TEST_F(OpenProject, AServerThatAsksForAPasswordRefusesTheUser) {
  const TServer server(repository);
  EXPECT_EQ(scc::SCC_E_INVALIDUSER, ann.Open(server.Url(), "project"));
  EXPECT_THAT(ann.Said(), HasSubstr("E "));
}

TEST_F(OpenProject, AHookThatRefusesTheUserIsReported) {
  repository.WriteHook("start-commit", "exit 1\n");
  EXPECT_EQ(scc::SCC_E_NOTAUTHORIZED, ann.Open(repository.Url(), "project"));
  EXPECT_EQ(scc::SCC_E_PROJNOTOPEN, ann.Close());
}
