// Binding folders to projects.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <iostream>

#include "Developer.h"
#include "subversion/commands/Commands.h"
#include "subversion/svn/Repository.h"
#include "support/PlainUser.h"
#include "system/System.h"

namespace kestrel::svnscc {

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

TEST_F(OpenProject, WorksInAFolderThatIsALink) {
  std::filesystem::rename(ann.Folder(), ann.Folder() + " itself");
  std::filesystem::create_directory_symlink(ann.Folder() + " itself", ann.Folder());
  ASSERT_EQ(scc::SCC_OK, ann.Open(repository.Url(), "project")) << ann.Said();
  ann.Write("sub/unit1.pas", "1\n");
  EXPECT_EQ(scc::SCC_OK, ann.Add({"sub/unit1.pas"})) << ann.Said();
  EXPECT_EQ(scc::SCC_OK, ann.CheckOut({"sub/unit1.pas"})) << ann.Said();
  const auto list = ann.Populate(scc::SCC_COMMAND_CHECKIN, {});
  EXPECT_TRUE(list.Added.contains(ann.File("sub/unit1.pas"))) << "under the name that the client knows";
  ann.Write("sub/unit1.pas", "2\n");
  EXPECT_EQ(scc::SCC_OK, ann.CheckIn({"sub/unit1.pas"})) << ann.Said();
  EXPECT_EQ(scc::SCC_OK, ann.GetEverything()) << ann.Said();
  EXPECT_EQ(1, ann.Status("sub/unit1.pas"));
}

TEST_F(OpenProject, ReportsAReadOnlyWorkingCopyAsNotAuthorized) {
  ann.Open(repository.Url(), "project");
  ann.Close();
  const auto let = [&](unsigned folder, unsigned file) {
    std::filesystem::permissions(ann.File(".svn"), std::filesystem::perms(folder));
    std::filesystem::permissions(ann.File(".svn/wc.db"), std::filesystem::perms(file));
  };
  let(0555, 0444);
  {
    const TPlainUser nobody;
    EXPECT_EQ(scc::SCC_OK, ann.Open(repository.Url(), "project")) << ann.Said();
    EXPECT_EQ(scc::SCC_E_NOTAUTHORIZED, ann.GetEverything());
    EXPECT_THAT(ann.Said(), HasSubstr("he working copy cannot be written to: it is read-only"));
    ann.Close();
  }
  let(0755, 0644);
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
TEST_F(OpenProject, DoesNotContactANewRepositoryWithoutConsent) {
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

TEST_F(OpenProject, LeavesAnotherWorkingCopyAlone) {
  ann.Open(repository.Url(), "one");
  ann.Close();
  EXPECT_EQ(scc::SCC_E_INVALIDFILEPATH, ann.Open(repository.Url(), "two"));
  EXPECT_THAT(ann.Said(), HasSubstr("/one already"));
  EXPECT_FALSE(repository.Exists("two"));
}

TEST_F(OpenProject, RefusesBadAddressesAndNamesWithAReason) {
  ASSERT_EQ(scc::SCC_OK, ann.Open(repository.Folder(), "/")) << ann.Said();  // the root, named as a folder
  ann.AddNew({"unit1.pas"});
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
                          Row{repository.Url(), "unit1.pas", scc::SCC_E_PROJSYNTAXERR},
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

namespace {

/// Runs `work` in a process of its own.
pid_t Start(const std::function<void()>& work) {
  const pid_t child = fork();
  if (child != 0) return child;
  work();
  _exit(0);
}

int Join(pid_t child) {
  int status = 0;
  waitpid(child, &status, 0);
  return status;
}

void Svn(const std::string& arguments) {
  const std::string command = "exec svn --non-interactive --no-auth-cache " + arguments;
  execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
}

}  // namespace

// The commit hangs, and its process is killed in the middle of it, as with a whole IDE.
TEST_F(OpenProject, CleansUpAfterCommandsThatWereKilledAndLeavesLiveOnesAlone) {
  ann.Open(repository.Url(), "project");
  ann.AddNew({"sub/unit1.pas"}, "1\n", scc::SCC_KEEP_CHECKEDOUT);
  ann.Write("sub/unit1.pas", "2\n");
  ann.Close();
  const std::string marker = repository.Folder() + "/hook-pid";
  const std::vector<std::function<void()>> commits{
      [&] {
        ann.Open(repository.Url(), "project");
        ann.CheckIn({"sub/unit1.pas"});
      },
      [&] { Svn("commit -q -m svn --username ann '" + ann.File("sub/unit1.pas") + "'"); }};
  for (const auto& commit : commits) {
    repository.WriteHook("pre-commit", "echo $$ > '" + marker + ".new' && mv '" + marker + ".new' '" +
                                           marker + "'\nexec sleep 600\n");
    const pid_t child = Start(commit);
    while (!FileExists(marker) && waitpid(child, nullptr, WNOHANG) == 0) usleep(10000);
    ASSERT_TRUE(FileExists(marker));
    ASSERT_EQ(scc::SCC_OK, ann.Open(repository.Url(), "project")) << ann.Said();
    EXPECT_EQ("", ann.Said()) << "it lives";
    EXPECT_EQ(scc::SCC_E_ACCESSFAILURE, ann.CheckIn({"sub/unit1.pas"}));
    EXPECT_THAT(ann.Said(), HasSubstr("is still working on"));
    ann.Close();

    kill(child, SIGKILL);
    Join(child);
    kill(std::stoi(ReadWholeFile(marker)), SIGKILL);
    std::filesystem::remove(marker);
    ASSERT_EQ(scc::SCC_OK, ann.Open(repository.Url(), "project")) << ann.Said();
    EXPECT_THAT(ann.Said(), HasSubstr("was cleaned up"));
    ann.Close();
  }
  repository.WriteHook("pre-commit", "exit 0\n");
  ann.Open(repository.Url(), "project");
  EXPECT_EQ(scc::SCC_OK, ann.CheckIn({"sub/unit1.pas"})) << ann.Said();
  EXPECT_EQ("2\n", repository.Contents("project/sub/unit1.pas"));
}

TEST_F(OpenProject, TwoProgramsAndSvnShareAWorkingCopy) {
  ann.Open(repository.Url(), "project");
  ann.AddNew({"a.pas", "b.pas"}, "0\n");
  ann.Close();
  std::vector<pid_t> programs;
  for (const char* name : {"a.pas", "b.pas"})
    programs.push_back(Start([&, name] {
      for (int round = 0; round < 5; ++round) {
        const bool done = ann.Open(repository.Url(), "project") == scc::SCC_OK &&
                          ann.CheckOut({name}) == scc::SCC_OK &&
                          (ann.Write(name, std::to_string(round)), ann.CheckIn({name})) == scc::SCC_OK;
        if (!done || ann.Said().find("cleaned up") != std::string::npos) {
          std::cerr << name << ": " << ann.Said();
          _exit(1);
        }
        ann.Close();
      }
    }));
  bool working = true;
  while (working) {
    EXPECT_EQ(0, Join(Start([&] { Svn("info -R '" + ann.Folder() + "' > /dev/null"); })));
    siginfo_t end{};
    working = waitid(P_PID, static_cast<id_t>(programs[0]), &end, WEXITED | WNOHANG | WNOWAIT) == 0 &&
              end.si_pid == 0;
  }
  for (const pid_t program : programs) EXPECT_EQ(0, Join(program));
  EXPECT_EQ("4", repository.Contents("project/a.pas"));
}

// The process dies when it has asked for the lock, and another one takes the answer's place: the repository has locked the
// file, and the working copy does not know.
TEST_F(OpenProject, OffersToTakeOverTheLocksOfAKilledCheckOut) {
  ann.Open(repository.Url(), "project");
  ann.AddNew({"unit1.pas"});
  ann.Close();
  const std::string marker = repository.Folder() + "/hook-ran";
  repository.WriteHook("pre-lock", "touch '" + marker + "'\nexec sleep 600\n");
  const pid_t child = Start([&] {
    ann.Open(repository.Url(), "project");
    ann.CheckOut({"unit1.pas"});
  });
  while (!FileExists(marker)) usleep(10000);
  kill(child, SIGKILL);
  Join(child);
  repository.WriteHook("pre-lock", "exit 0\n");
  ASSERT_EQ(0,
            Join(Start([&] { Svn("lock -q --username ann " + repository.Url() + "/project/unit1.pas"); })));
  ASSERT_EQ("ann", repository.LockOwner("project/unit1.pas"));

  ann.Open(repository.Url(), "project");
  EXPECT_EQ(1, ann.Status("unit1.pas")) << "can be checked out";
  TDeveloper elsewhere("ann", "another folder");
  elsewhere.Open(repository.Url(), "project");
  EXPECT_EQ(0x1029, elsewhere.Status("unit1.pas"));
  EXPECT_EQ(scc::SCC_E_ALREADYCHECKEDOUT, elsewhere.CheckOut({"unit1.pas"}));
  EXPECT_EQ(0x1009, elsewhere.Status("unit1.pas")) << "fetched; being refused leaves nothing to take over";
  EXPECT_EQ(scc::SCC_E_ALREADYCHECKEDOUT, ann.CheckOut({"unit1.pas"})) << "nothing can be asked here";
  EXPECT_THAT(ann.Said(), HasSubstr("interrupted"));
  ann.Close();

  {
    const TAnsweredQuestions questions;
    TDirectSession session(repository, ann);
    const std::string file = ann.File("unit1.pas");
    const char* const path = file.c_str();
    EXPECT_EQ(scc::SCC_OK, svnscc::CheckOut(session, svnscc::Names(&path, 1), "", {}));
    EXPECT_THAT(questions.Asked, HasSubstr("unit1.pas"));
  }
  ann.Open(repository.Url(), "project");
  EXPECT_EQ(0x100B, ann.Status("unit1.pas"));
}

TEST_F(OpenProject, ReportsAHookThatRefusesTheUser) {
  repository.WriteHook("start-commit", "exit 1\n");
  EXPECT_EQ(scc::SCC_E_NOTAUTHORIZED, ann.Open(repository.Url(), "project"));
  EXPECT_EQ(scc::SCC_E_PROJNOTOPEN, ann.Close());
}

}  // namespace kestrel::svnscc
