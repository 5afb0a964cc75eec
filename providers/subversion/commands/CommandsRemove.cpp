// Removing files from the repository.
#include "subversion/commands/CommandStrings.h"
#include "subversion/commands/CommandTable.h"
#include "subversion/commands/Commands.h"
#include "subversion/commands/TemporaryRename.h"
#include "subversion/svn/SvnStrings.h"

namespace kestrel::svnscc {
namespace {

/// The step before a removal.  Throws Failure if the file cannot be removed.
Step PrepareRemoval(const Survey& survey, const std::string& path) {
  const FileStatus status = survey.StatusOf(path);
  const auto has = [&](scc::Long bits) { return (status.Bits & bits) != 0; };
  if (status.IsFolder) throw Failure(scc::SCC_E_TYPENOTSUPPORTED, sNotAFile);
  if (has(scc::SCC_STATUS_OUTBYUSER)) throw Failure(scc::SCC_E_FILEISCHECKEDOUT, sStillOut);
  if (has(scc::SCC_STATUS_OUTOTHER))
    throw Failure(scc::SCC_E_FILEOUTEXCLUSIVE, Format(sOutBy.Text, {status.LockOwner}));
  return Require(survey.StateOf(path), Command::Remove);
}

void ScheduleDeletion(ProviderContext& context, const std::vector<std::string>& paths, bool keepLocal) {
  if (paths.empty()) return;
  const Pool pool;
  context.Svn().Run(svn_client_delete4(ToArray(paths, pool), /*force*/ TRUE, keepLocal, nullptr, nullptr,
                                       nullptr, context.ClientContext(), pool));
}

}  // namespace

scc::Long Remove(ProviderContext& context, Names names, const std::string& comment) {
  Outcome outcome(context);
  const auto paths = outcome.PathsOf(names);
  ResolveFoldersAbove(context, paths);
  const Survey survey(context, paths);
  if (survey.Result() < 0) return survey.Result();

  std::vector<std::string> kept;     // stay on disk
  std::vector<std::string> fetched;  // were not on disk, and are deleted there again
  for (const auto& path : paths)
    outcome.Try(path, [&] {
      const bool onDisk = IsOnDisk(path);
      const Step step = PrepareRemoval(survey, path);
      if (step == Step::Resolve) MarkResolved(context, path);
      if (step == Step::Update) Update(context, {path});
      (onDisk ? kept : fetched).push_back(path);
    });
  if (kept.empty() && fetched.empty()) return outcome.Result();

  auto all = kept;
  all.insert(all.end(), fetched.begin(), fetched.end());
  try {
    ScheduleDeletion(context, kept, true);
    ScheduleDeletion(context, fetched, false);
    Commit(context, all, comment, AfterCommit::Release);
  } catch (const Failure& failure) {
    Unschedule(context, all);
    FailAll(context, all, failure, outcome);
    return outcome.Result();
  }
  for (const auto& path : kept) outcome.Try(path, [&] { MakeWritable(path); });
  return outcome.Result();
}

}  // namespace kestrel::svnscc
