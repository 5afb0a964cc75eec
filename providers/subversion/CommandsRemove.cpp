// Taking files out of the repository.
#include "CommandTable.h"
#include "Commands.h"
#include "SetAside.h"
#include "SubversionSccStrings.h"

namespace svnscc {
namespace {

/// Whether the file can be removed, and what comes before.
Step PrepareRemoval(const Survey& survey, const std::string& path) {
  const FileStatus status = survey.StatusOf(path);
  const auto has = [&](scc::Long bits) { return (status.Bits & bits) != 0; };
  if (status.IsFolder) throw Failure(scc::SCC_E_TYPENOTSUPPORTED, sNotAFile);
  if (has(scc::SCC_STATUS_OUTBYUSER)) throw Failure(scc::SCC_E_FILEISCHECKEDOUT, sStillOut);
  if (has(scc::SCC_STATUS_OUTOTHER)) throw Failure(scc::SCC_E_FILEOUTEXCLUSIVE, sOutByOther);
  return Require(survey.StateOf(path), Command::Remove);
}

void ScheduleDeletion(Session& session, const std::vector<std::string>& paths, bool keepLocal) {
  if (paths.empty()) return;
  const Pool pool;
  session.Svn().Run(svn_client_delete4(ToArray(paths, pool), /*force*/ TRUE, keepLocal, nullptr, nullptr,
                                       nullptr, session.Context(), pool));
}

/// Takes the deletion back; local edits stay.
void Unschedule(Session& session, const std::vector<std::string>& paths) {
  const Silence silence(session);
  const Pool pool;
  svn_error_clear(svn_client_revert4(ToArray(paths, pool), svn_depth_empty, nullptr, FALSE,
                                     /*metadata_only*/ TRUE,
                                     /*added_keep_local*/ TRUE, session.Context(), pool));
}

}  // namespace

scc::Long Remove(Session& session, Names names, const std::string& comment) {
  Outcome outcome(session);
  const auto paths = outcome.PathsOf(names);
  SettleFoldersAbove(session, paths);
  const Survey survey(session, paths);
  if (survey.Result() < 0) return survey.Result();

  std::vector<std::string> kept;     // the copies on disk stay
  std::vector<std::string> fetched;  // only the repository had them: nothing is left behind
  for (const auto& path : paths)
    outcome.Try(path, [&] {
      const bool onDisk = IsOnDisk(path);
      const Step step = PrepareRemoval(survey, path);
      if (step == Step::Settle) Settle(session, path);
      if (step == Step::Update) Update(session, {path});
      (onDisk ? kept : fetched).push_back(path);
    });
  if (kept.empty() && fetched.empty()) return outcome.Result();

  auto all = kept;
  all.insert(all.end(), fetched.begin(), fetched.end());
  try {
    ScheduleDeletion(session, kept, true);
    ScheduleDeletion(session, fetched, false);
    Commit(session, all, comment, AfterCommit::Release);
  } catch (const Failure& failure) {
    Unschedule(session, all);
    for (const auto& path : all) outcome.Fail(path, failure);
    return outcome.Result();
  }
  for (const auto& path : kept) outcome.Try(path, [&] { MakeWritable(path); });
  return outcome.Result();
}

}  // namespace svnscc
