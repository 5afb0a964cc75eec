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
  /// Opens Ann's project again, as a new start of the client does.
  void Reopen() {
    ann.Close();
    EXPECT_EQ(SCC_OK, ann.Open(repository.Url(), "project")) << ann.Said();
  }
  TTestRepository repository;
  TDeveloper ann{"ann"};
};

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

void Kill(pid_t child) {
  kill(child, SIGKILL);
  Join(child);
}

void Svn(const std::string& arguments) {
  const std::string command = "exec svn --non-interactive --no-auth-cache " + arguments;
  execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
}

/// A hook that never returns, once it has written its process to the file.
std::string HangingHook(const std::string& marker) {
  return "echo $$ > '" + marker + ".new' && mv '" + marker + ".new' '" + marker + "'\nexec sleep 600\n";
}

void WaitFor(const std::string& marker, pid_t child) {
  while (!FileExists(marker) && waitpid(child, nullptr, WNOHANG) == 0) usleep(10000);
  ASSERT_TRUE(FileExists(marker));
}

}  // namespace

TEST_F(OpenProject, CreatesTheProjectAroundAnExistingFolder) {
  ann.Write("unit1.pas", "old work\n");
  fs::permissions(ann.File("unit1.pas"), fs::perms::owner_read);
  ASSERT_EQ(SCC_OK, ann.Open(repository.Url(), "team/Größe & Co/app")) << ann.Said();
  EXPECT_EQ("Made for the tests", repository.Log(1));
  EXPECT_EQ("ann", repository.Author(1));
  EXPECT_EQ("old work\n", ann.Read("unit1.pas"));
  ASSERT_EQ(SCC_OK, ann.Add({"unit1.pas"})) << ann.Said();
  ann.Close();
  EXPECT_EQ(SCC_OK, ann.Open(repository.Url(), "/team/Größe & Co/app/"));
  EXPECT_EQ(2, repository.Youngest()) << "nothing was created again";
  EXPECT_EQ(kControlled, ann.Status("unit1.pas"));
}

TEST_F(OpenProject, WorksInAFolderThatIsALink) {
  fs::rename(ann.Folder(), ann.Folder() + " itself");
  fs::create_directory_symlink(ann.Folder() + " itself", ann.Folder());
  Reopen();
  ann.AddNew({"sub/unit1.pas"});
  ann.Edit("sub/unit1.pas", "2\n");
  const auto list = ann.Populate(SCC_COMMAND_CHECKIN, {});
  EXPECT_TRUE(list.Added.contains(ann.File("sub/unit1.pas"))) << "under the name that the client knows";
  EXPECT_EQ(SCC_OK, ann.CheckIn({"sub/unit1.pas"})) << ann.Said();
  EXPECT_EQ(SCC_OK, ann.GetEverything()) << ann.Said();
  EXPECT_EQ(kControlled, ann.Status("sub/unit1.pas"));
}

TEST_F(OpenProject, ReportsAReadOnlyWorkingCopyAsNotAuthorized) {
  Reopen();
  const auto permit = [&](unsigned folder, unsigned file) {
    fs::permissions(ann.File(".svn"), fs::perms(folder));
    fs::permissions(ann.File(".svn/wc.db"), fs::perms(file));
  };
  permit(0555, 0444);
  {
    const TPlainUser nobody;
    Reopen();
    EXPECT_EQ(SCC_E_NOTAUTHORIZED, ann.GetEverything());
    EXPECT_THAT(ann.Said(), HasSubstr("he working copy cannot be written to: it is read-only"));
    ann.Close();
  }
  permit(0755, 0644);
}

TEST_F(OpenProject, CreatesUnknownProjectsOnlyOnRequest) {
  EXPECT_EQ(SCC_E_UNKNOWNPROJECT, ann.Open(repository.Url(), "nowhere", SCC_OP_SILENTOPEN));
  EXPECT_THAT(ann.Said(), HasSubstr("has no folder \"nowhere\""));
  EXPECT_EQ(0, repository.Youngest());
  EXPECT_FALSE(ann.Has(".svn"));
  EXPECT_EQ(SCC_E_PROJNOTOPEN, ann.CheckOut({"unit1.pas"}));
  EXPECT_EQ(SCC_OK, ann.Open(repository.Url(), "nowhere"));
  EXPECT_EQ(SCC_E_PROJECTALREADYOPEN, ann.Open(repository.Url(), "nowhere"));
  EXPECT_EQ(SCC_OK, ann.Close());
  EXPECT_EQ(SCC_E_PROJNOTOPEN, ann.Close());
}

// Nothing can be asked here; what the question is answered with is in DialogsTest.cpp.
TEST_F(OpenProject, DoesNotContactANewRepositoryWithoutConsent) {
  const TTemporaryFolder elsewhere;
  const std::string url = CreateRepository(elsewhere / "repository");
  for (const auto flags : {SCC_OP_CREATEIFNEW, SCC_OP_SILENTOPEN}) {
    EXPECT_EQ(SCC_E_OPNOTPERFORMED, ann.OpenMapped(url, "project", flags));
    EXPECT_THAT(ann.Said(), HasSubstr("has not been used on this computer before"));
  }
  EXPECT_EQ(SCC_E_OPNOTPERFORMED, ann.OpenMapped("svn://127.0.0.1:1/r", "p"))
      << "asked before it is contacted";
  EXPECT_EQ(SCC_E_OPNOTPERFORMED, ann.OpenMapped(repository.Url(), "made unasked"));
  EXPECT_EQ(0, repository.Youngest());
  EXPECT_FALSE(ann.Has(".svn"));

  ASSERT_EQ(SCC_OK, ann.Open(url, "project")) << "chosen meanwhile: " << ann.Said();
  ann.Close();
  const TEnvironmentVariable another("CORVANE_REGISTRY_DIR", elsewhere.MakeFolder("registry").c_str());
  EXPECT_EQ(SCC_E_OPNOTPERFORMED, ann.OpenMapped("", "")) << "a folder can bring its working copy along";
}

TEST_F(OpenProject, RefusesBadAddressesAndNamesWithAReason) {
  ASSERT_EQ(SCC_OK, ann.Open(repository.Folder(), "/")) << ann.Said();  // the root, named as a folder
  ann.AddNew({"unit1.pas"});
  struct Row {
    std::string url, project;
    Long result = SCC_E_PROJSYNTAXERR;
  };
  for (const auto& row :
       {Row{"not an address", "p"}, Row{"xyz://host/path", "p"}, Row{"repository", "p"},
        Row{"file://repository", "p"}, Row{"file:///proc/self/cwd/repository", "p"},
        Row{"file:///%70roc/self/cwd/repository", "p"}, Row{"/home/../proc/self/cwd/repository", "p"},
        Row{repository.Url(), "../p"}, Row{repository.Url(), "unit1.pas"},
        Row{"file:///no/such/repository", "p", SCC_E_ACCESSFAILURE},
        Row{"svn://127.0.0.1:1/repository", "p", SCC_E_CONNECTIONFAILURE}}) {
    SCOPED_TRACE(row.url + " " + row.project);
    TDeveloper bob("bob");
    EXPECT_EQ(row.result, bob.Open(row.url, row.project));
    EXPECT_THAT(bob.Said(), HasSubstr("E "));
  }
}

TEST_F(OpenProject, FillsInEmptyNames) {
  TDeveloper nobody("");
  ASSERT_EQ(SCC_OK, nobody.Open(repository.Url(), "project"));
  EXPECT_FALSE(nobody.User().empty());
  EXPECT_EQ(nobody.User(), repository.Author(1));
  nobody.Close();
  EXPECT_EQ(SCC_OK, nobody.Open("", "")) << "the working copy knows";
  EXPECT_EQ(SCC_E_UNKNOWNPROJECT, ann.Open("", ""));
}

// The commit hangs, and its process is killed in the middle of it, as with a whole IDE.
TEST_F(OpenProject, CleansUpAfterCommandsThatWereKilledAndLeavesLiveOnesAlone) {
  Reopen();
  ann.AddNew({"sub/unit1.pas"}, "1\n", SCC_KEEP_CHECKEDOUT);
  ann.Write("sub/unit1.pas", "2\n");
  ann.Close();
  const std::string marker = repository.Folder() + "/hook-pid";
  const std::vector<std::function<void()>> commits{
      [&] {
        Reopen();
        ann.CheckIn({"sub/unit1.pas"});
      },
      [&] { Svn("commit -q -m svn --username ann '" + ann.File("sub/unit1.pas") + "'"); }};
  for (const auto& commit : commits) {
    repository.WriteHook("pre-commit", HangingHook(marker));
    const pid_t child = Start(commit);
    ASSERT_NO_FATAL_FAILURE(WaitFor(marker, child));
    Reopen();
    EXPECT_EQ("", ann.Said()) << "it lives";
    EXPECT_EQ(SCC_E_ACCESSFAILURE, ann.CheckIn({"sub/unit1.pas"}));
    EXPECT_THAT(ann.Said(), HasSubstr("is still working on"));

    Kill(child);
    kill(std::stoi(ReadWholeFile(marker)), SIGKILL);
    fs::remove(marker);
    Reopen();
    EXPECT_THAT(ann.Said(), HasSubstr("was cleaned up"));
    ann.Close();
  }
  repository.WriteHook("pre-commit", "exit 0\n");
  Reopen();
  EXPECT_EQ(SCC_OK, ann.CheckIn({"sub/unit1.pas"})) << ann.Said();
  EXPECT_EQ("2\n", repository.Contents("project/sub/unit1.pas"));
}

TEST_F(OpenProject, SharesAWorkingCopyWithAnotherProgramAndSvn) {
  Reopen();
  ann.AddNew({"a.pas", "b.pas"}, "0\n");
  ann.Close();
  std::vector<pid_t> programs;
  for (const char* name : {"a.pas", "b.pas"})
    programs.push_back(Start([&, name] {
      for (int round = 0; round < 5; ++round) {
        const bool done = ann.Open(repository.Url(), "project") == SCC_OK && ann.CheckOut({name}) == SCC_OK &&
                          (ann.Write(name, std::to_string(round)), ann.CheckIn({name})) == SCC_OK;
        if (!done || ann.Said().find("cleaned up") != std::string::npos) {
          std::cerr << name << ": " << ann.Said();
          _exit(1);
        }
        ann.Close();
      }
    }));
  for (bool working = true; working;) {
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
  Reopen();
  ann.AddNew({"unit1.pas"});
  ann.Close();
  const std::string marker = repository.Folder() + "/hook-pid";
  repository.WriteHook("pre-lock", HangingHook(marker));
  const pid_t child = Start([&] {
    Reopen();
    ann.CheckOut({"unit1.pas"});
  });
  ASSERT_NO_FATAL_FAILURE(WaitFor(marker, child));
  Kill(child);
  repository.WriteHook("pre-lock", "exit 0\n");
  ASSERT_EQ(0,
            Join(Start([&] { Svn("lock -q --username ann " + repository.Url() + "/project/unit1.pas"); })));

  Reopen();
  EXPECT_EQ(kControlled, ann.Status("unit1.pas")) << "can be checked out";
  TDeveloper elsewhere("ann", "another folder");
  elsewhere.Open(repository.Url(), "project");
  EXPECT_EQ(kOutElsewhere | kOutOfDate, elsewhere.Status("unit1.pas"));
  EXPECT_EQ(SCC_E_ALREADYCHECKEDOUT, elsewhere.CheckOut({"unit1.pas"}));
  EXPECT_EQ(kOutElsewhere, elsewhere.Status("unit1.pas")) << "a refusal leaves nothing to take over";
  EXPECT_EQ(SCC_E_ALREADYCHECKEDOUT, ann.CheckOut({"unit1.pas"})) << "nothing can be asked here";
  EXPECT_THAT(ann.Said(), HasSubstr("interrupted"));
  ann.Close();
  {
    const TAnsweredQuestions questions;
    TDirectSession session(repository, ann);
    EXPECT_EQ(SCC_OK, session.Run(svnscc::CheckOut, {"unit1.pas"}, "", CommandOptions{}));
    EXPECT_THAT(questions.Asked, HasSubstr("unit1.pas"));
  }
  Reopen();
  EXPECT_EQ(kOutHere, ann.Status("unit1.pas"));
}

}  // namespace kestrel::svnscc
