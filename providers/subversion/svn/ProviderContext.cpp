#include "subversion/svn/ProviderContext.h"

#include <svn_dirent_uri.h>

#include <unordered_set>

#include "subversion/svn/LockOwner.h"
#include "subversion/svn/NonUtf8Names.h"
#include "subversion/svn/SvnNotifications.h"
#include "subversion/svn/SvnStrings.h"
#include "subversion/svn/WorkingCopyLocks.h"

namespace kestrel::svnscc {

std::string NativeName(const std::string& path) {
  const Pool pool;
  return svn_dirent_local_style(path.c_str(), pool);
}

void ProviderContext::Open(std::unique_ptr<Client> client, Project project) {
  client_ = std::move(client);
  project_ = std::move(project);
  client_->OnNotice([this](const svn_wc_notify_t& notice) { HandleNotice(notice); });
  client_->OnPoll([this] { return IsCancelled(); });
  client_->OnCommitted([this] {
    canCancel_ = false;
    recent_.Forget();
  });
  const std::string root = WorkingCopyRoot(project_.Folder);
  mark_ = UseMarker(root);
  journal_ = {};  // first: the new one would find its file in use
  journal_ = LockJournal(root);
  recent_ = RecentAnswer(root, client_->TimeLimits().Remember);
}

void ProviderContext::Reconnect() {
  const std::string user = client_->User();
  client_.reset();  // first: both would share the working copy
  Open(std::make_unique<Client>(user), std::move(project_));
}

void ProviderContext::Close() {
  client_.reset();
  project_ = {};
  mark_ = {};
  journal_ = {};
  lastStatuses_ = {};
  recent_.Forget();
  justAdded_.clear();
  refusals_.clear();
  leftOut_.clear();
  lostLocks_.clear();
  events_.Clear();
  options_.Reset();
  output_.Attach(nullptr);
}

std::string ProviderContext::InsidePath(const char* name) const {
  if (name == nullptr || *name == '\0') return {};
  const Pool pool;
  const char* path = svn_dirent_internal_style(name, pool);
  if (!svn_dirent_is_absolute(path)) return {};
  const char* absolute = nullptr;  // without ".."
  svn_error_t* error = svn_dirent_get_absolute(&absolute, path, pool);
  svn_error_clear(error);
  if (error != SVN_NO_ERROR || !svn_dirent_is_ancestor(project_.Folder.c_str(), absolute)) return {};
  return absolute;
}

std::string ProviderContext::Label(const std::string& path) const {
  const Pool pool;
  const char* inside = svn_dirent_skip_ancestor(project_.Folder.c_str(), path.c_str());
  return svn_dirent_local_style(inside != nullptr ? inside : path.c_str(), pool);
}

void NameArray::Assign(std::vector<std::string> names) {
  names_ = std::move(names);
  pointers_.clear();
  for (const auto& name : names_) pointers_.push_back(name.c_str());
}

void ProviderContext::BeginCommand() {
  canCancel_ = ClientCancels;
  nextPoll_ = {};
  recent_.Forget();
  if (canCancel_) output_.Signal(scc::SCC_MSG_STARTCANCEL);
}

void ProviderContext::EndCommand() {
  canCancel_ = false;
  recent_.Forget();
  if (ClientCancels) output_.Signal(scc::SCC_MSG_STOPCANCEL);
}

void ProviderContext::StopIfCancelled() {
  if (IsCancelled()) throw Failure(scc::SCC_I_OPERATIONCANCELED, sCancelled);
}

bool ProviderContext::IsCancelled() {
  // libsvn polls at every block it reads; a client dispatches events to answer.
  constexpr std::chrono::milliseconds kPause{50};
  const auto now = std::chrono::steady_clock::now();
  if (!canCancel_ || now < nextPoll_) return false;
  nextPoll_ = now + kPause;
  const bool cancelled = output_.Signal(scc::SCC_MSG_DOCANCEL);
  if (cancelled) canCancel_ = false;
  return cancelled;
}

void ProviderContext::HandleNotice(const svn_wc_notify_t& notice) {
  if (notice.action == svn_wc_notify_failed_lock || notice.action == svn_wc_notify_failed_unlock) {
    if (notice.err != nullptr) refusals_.insert_or_assign(notice.path, ToFailure(notice.err));
    return;
  }
  if (canCancel_) {
    output_.Write(Label(notice.path), scc::SCC_MSG_STATUS);
    nextPoll_ = {};
  }
  if (notice.action == svn_wc_notify_update_broken_lock) {  // the connection is busy now
    lostLocks_.emplace_back(notice.path);
    return;
  }
  if (const auto sentence = ToSentence(notice, Label(notice.path)))
    output_.Write(sentence->Text, sentence->Kind);
}

void ProviderContext::ReportNonUtf8Names(const std::vector<std::string>& paths) {
  for (const auto& path : paths)
    if (leftOut_.insert(path).second) output_.Warning(Format(sNameNotUtf8.Text, {Readable(Label(path))}));
}

void ProviderContext::ReportLostLocks() {
  for (const auto& path : std::exchange(lostLocks_, {})) ReportBrokenLock(*this, path);
}

void Outcome::Fail(const std::string& path, const Failure& failure) {
  // These concern the command, which ends or is retried, rather than the file.
  if (failure.Result() == scc::SCC_I_OPERATIONCANCELED || failure.MeansBusyWorkingCopy()) throw failure;
  result_ = failure.Result();
  const std::string reason =
      failure.MeansOthersLock() ? ExplainForeignLock(context_, path, failure) : failure.what();
  context_.Out().Error(Format(sFileFailed.Text, {Readable(context_.Label(path)), reason}));
}

void Outcome::Fail(const std::string& path, scc::Long result, const char* reason) {
  Fail(path, Failure(result, reason));
}

std::vector<std::string> Outcome::PathsOf(Names names) {
  std::vector<std::string> paths;
  std::unordered_set<std::string> seen;
  paths.reserve(names.size());
  for (const char* name : names) {
    std::string path = context_.InsidePath(name);
    if (name != nullptr && !IsUtf8(name))
      Fail(name, scc::SCC_E_FILESYNTAXERR, sNotUtf8.Text);
    else if (path.empty())
      Fail(name != nullptr ? name : "", scc::SCC_E_FILENOTCONTROLLED, sOutsideProject.Text);
    else if (seen.insert(path).second)
      paths.push_back(std::move(path));
  }
  return paths;
}

}  // namespace kestrel::svnscc
