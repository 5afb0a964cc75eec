// Options of commands: the blocks that travel through a client, and what the options do.
#include <svn_props.h>

#include <list>

#include "Developer.h"
#include "subversion/commands/Commands.h"
#include "subversion/svn/CommandOptions.h"

namespace kestrel::svnscc {

using svnscc::CommandOptions;

namespace {

struct OptionsAtWork : TTeam {
  OptionsAtWork() { Join(bob); }
  const std::string& File(const char* name) { return names_.emplace_back(ann.File(name)); }
  template <class Command, class... Arguments>
  scc::Long Run(Command command, const char* name, Arguments... arguments) {
    const char* const path = File(name).c_str();
    return command(session.Session, svnscc::Names(&path, 1), arguments...);
  }
  TDirectSession session{repository, ann};
  std::list<std::string> names_;
};

}  // namespace

TEST(OptionBlocks, AreFoundByThemselvesAndThroughTheClientsVariable) {
  svnscc::OptionBlocks blocks;
  std::uint64_t something = 12345;
  EXPECT_EQ(nullptr, blocks.Find(nullptr));
  EXPECT_EQ(nullptr, blocks.Find(&something));
  EXPECT_EQ(nullptr, blocks.Find(reinterpret_cast<void*>(16)));  // nothing was handed out: not looked at
  CommandOptions* block = blocks.Make();
  void* variable = block;
  EXPECT_EQ(block, blocks.Find(block));
  EXPECT_EQ(block, blocks.Find(&variable));
  EXPECT_EQ(nullptr, blocks.Find(&something));
  svnscc::OptionBlocks others;
  EXPECT_EQ(nullptr, others.Find(&variable));
}

TEST(OptionBlocks, CountUntilTheirCommandHasRunOrANewListBegins) {
  svnscc::OptionBlocks blocks;
  void* variable = blocks.Make();
  const auto choose = [&] { *blocks.Find(variable) = {7, true, true, true}; };
  const auto take = [&](scc::SCCCommand command) {
    const svnscc::OptionBlocks::Call call(blocks);
    return blocks.Use(&variable, command);
  };
  choose();
  EXPECT_FALSE(take(scc::SCC_COMMAND_REMOVE).StealLocks);
  EXPECT_EQ(SVN_INVALID_REVNUM, take(scc::SCC_COMMAND_CHECKOUT).GetRevision);
  EXPECT_TRUE(take(scc::SCC_COMMAND_CHECKOUT).StealLocks) << "a run calls once per file";
  EXPECT_EQ(7, take(scc::SCC_COMMAND_GET).GetRevision);
  EXPECT_FALSE(take(scc::SCC_COMMAND_CHECKOUT).StealLocks) << "it has run";
  EXPECT_TRUE(take(scc::SCC_COMMAND_CHECKIN).KeepUnchangedOut);
  { const svnscc::OptionBlocks::Call another(blocks); }
  EXPECT_FALSE(take(scc::SCC_COMMAND_CHECKIN).KeepUnchangedOut) << "something else was called";
  EXPECT_TRUE(take(scc::SCC_COMMAND_ADD).WithoutNeedsLock);
  choose();
  blocks.Reset();
  for (const auto command : {scc::SCC_COMMAND_CHECKOUT, scc::SCC_COMMAND_CHECKIN})
    EXPECT_FALSE(take(command).StealLocks || take(command).KeepUnchangedOut);
}

TEST_F(OptionsAtWork, ChangeWhatTheCommandsDo) {
  CommandOptions options;
  options.WithoutNeedsLock = true;
  ann.Write("free.pas", "1\n");
  EXPECT_EQ(scc::SCC_OK, Run(svnscc::Add, "free.pas", "", 0, svnscc::AfterCommit::Release, options));
  EXPECT_EQ(std::nullopt, repository.Property("project/free.pas", SVN_PROP_NEEDS_LOCK));
  EXPECT_TRUE(ann.IsWritable("free.pas"));

  bob.GetEverything();
  bob.CheckOut({"free.pas"});
  EXPECT_EQ(scc::SCC_E_FILEOUTEXCLUSIVE, Run(svnscc::CheckOut, "free.pas", "", CommandOptions{}));
  options.StealLocks = true;
  EXPECT_EQ(scc::SCC_OK, Run(svnscc::CheckOut, "free.pas", "", options));
  EXPECT_EQ("ann", repository.LockOwner("project/free.pas"));

  options.KeepUnchangedOut = true;
  EXPECT_EQ(scc::SCC_OK, Run(svnscc::CheckIn, "free.pas", "", svnscc::AfterCommit::Release, options));
  EXPECT_EQ("ann", repository.LockOwner("project/free.pas"));
  ann.Write("free.pas", "2\n");
  EXPECT_EQ(scc::SCC_OK, Run(svnscc::CheckIn, "free.pas", "", svnscc::AfterCommit::Release, options));
  EXPECT_EQ(std::nullopt, repository.LockOwner("project/free.pas"));

  options.GetRevision = 2;
  EXPECT_EQ(scc::SCC_OK, Run(svnscc::GetFiles, "free.pas", options));
  EXPECT_EQ("1\n", ann.Read("free.pas"));
  options.GetRevision = 3;
  EXPECT_EQ(scc::SCC_OK, Run(svnscc::GetFolders, "", svnscc::Below::Everything, options));
  EXPECT_EQ("2\n", ann.Read("free.pas"));
  options.GetRevision = 99;
  EXPECT_EQ(scc::SCC_E_NOSPECIFIEDVERSION, Run(svnscc::GetFiles, "free.pas", options));
}

}  // namespace kestrel::svnscc
