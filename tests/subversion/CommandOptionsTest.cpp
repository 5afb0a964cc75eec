// Options of commands: the blocks that travel through a client, and what the options do.
#include <svn_props.h>

#include "Developer.h"
#include "subversion/commands/Commands.h"
#include "subversion/svn/CommandOptions.h"

namespace kestrel::svnscc {

TEST(OptionBlocks, AreFoundByThemselvesAndThroughTheClientsVariable) {
  OptionBlocks blocks, others;
  std::uint64_t something = 12345;
  for (void* unknown :
       {static_cast<void*>(nullptr), static_cast<void*>(&something), reinterpret_cast<void*>(16)})
    EXPECT_EQ(nullptr, blocks.Find(unknown)) << "nothing was handed out: not looked at";
  CommandOptions* block = blocks.Make();
  void* variable = block;
  EXPECT_EQ(block, blocks.Find(block));
  EXPECT_EQ(block, blocks.Find(&variable));
  EXPECT_EQ(nullptr, blocks.Find(&something));
  EXPECT_EQ(nullptr, others.Find(&variable));
}

TEST(OptionBlocks, CountUntilTheirCommandHasRunOrANewListBegins) {
  OptionBlocks blocks;
  void* variable = blocks.Make();
  const auto choose = [&] { *blocks.Find(variable) = {7, true, true, true}; };
  const auto take = [&](SCCCommand command) {
    const OptionBlocks::Call call(blocks);
    return blocks.Use(&variable, command);
  };
  choose();
  EXPECT_FALSE(take(SCC_COMMAND_REMOVE).StealLocks);
  EXPECT_EQ(SVN_INVALID_REVNUM, take(SCC_COMMAND_CHECKOUT).GetRevision);
  EXPECT_TRUE(take(SCC_COMMAND_CHECKOUT).StealLocks) << "a run calls once per file";
  EXPECT_EQ(7, take(SCC_COMMAND_GET).GetRevision);
  EXPECT_FALSE(take(SCC_COMMAND_CHECKOUT).StealLocks) << "it has run";
  EXPECT_TRUE(take(SCC_COMMAND_CHECKIN).KeepUnchangedOut);
  { const OptionBlocks::Call another(blocks); }
  EXPECT_FALSE(take(SCC_COMMAND_CHECKIN).KeepUnchangedOut) << "something else was called";
  EXPECT_TRUE(take(SCC_COMMAND_ADD).WithoutNeedsLock);
  choose();
  blocks.Reset();
  for (const auto command : {SCC_COMMAND_CHECKOUT, SCC_COMMAND_CHECKIN})
    EXPECT_FALSE(take(command).StealLocks || take(command).KeepUnchangedOut);
}

struct OptionsAtWork : TTeam {};

TEST_F(OptionsAtWork, ChangeWhatTheCommandsDo) {
  Join(bob);
  TDirectSession session(repository, ann);
  CommandOptions options;
  options.WithoutNeedsLock = true;
  ann.Write("free.pas", "1\n");
  EXPECT_EQ(SCC_OK, session.Run(Add, {"free.pas"}, "", 0, AfterCommit::Release, options));
  EXPECT_EQ(std::nullopt, repository.Property("project/free.pas", SVN_PROP_NEEDS_LOCK));
  EXPECT_TRUE(ann.IsWritable("free.pas"));

  bob.GetEverything();
  bob.CheckOut({"free.pas"});
  EXPECT_EQ(SCC_E_FILEOUTEXCLUSIVE, session.Run(CheckOut, {"free.pas"}, "", CommandOptions{}));
  options.StealLocks = true;
  EXPECT_EQ(SCC_OK, session.Run(CheckOut, {"free.pas"}, "", options));
  EXPECT_EQ("ann", repository.LockOwner("project/free.pas"));

  options.KeepUnchangedOut = true;
  EXPECT_EQ(SCC_OK, session.Run(CheckIn, {"free.pas"}, "", AfterCommit::Release, options));
  EXPECT_EQ("ann", repository.LockOwner("project/free.pas"));
  ann.Write("free.pas", "2\n");
  EXPECT_EQ(SCC_OK, session.Run(CheckIn, {"free.pas"}, "", AfterCommit::Release, options));
  EXPECT_EQ(std::nullopt, repository.LockOwner("project/free.pas"));

  options.GetRevision = 2;
  EXPECT_EQ(SCC_OK, session.Run(GetFiles, {"free.pas"}, options));
  EXPECT_EQ("1\n", ann.Read("free.pas"));
  options.GetRevision = 3;
  EXPECT_EQ(SCC_OK, session.Run(GetFolders, {""}, Below::Everything, options));
  EXPECT_EQ("2\n", ann.Read("free.pas"));
  options.GetRevision = 99;
  EXPECT_EQ(SCC_E_NOSPECIFIEDVERSION, session.Run(GetFiles, {"free.pas"}, options));
}

}  // namespace kestrel::svnscc
