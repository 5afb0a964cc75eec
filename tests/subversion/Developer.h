// Somebody at work: the provider library loaded as clients load it, a folder, and verbs.
#pragma once

#include <map>

#include "TestRepository.h"
#include "subversion/svn/ProviderContext.h"
#include "subversion/svn/Question.h"
#include "support/EntryPoints.h"
#include "support/Testing.h"
#include "system/System.h"

namespace kestrel::svnscc {

using namespace scc;  // its numbers are on every line

using NameList = std::vector<std::string>;
using TStatuses = std::vector<Long>;

/// The provider, loaded until the end of the scope.
class TProviderLibrary {
 public:
  TProviderLibrary() = default;
  TProviderLibrary(const TProviderLibrary&) = delete;
  TProviderLibrary& operator=(const TProviderLibrary&) = delete;
  ~TProviderLibrary() { UnloadModule(module_); }
  const EntryPoints* operator->() const { return &entries_; }

 private:
  const TModuleHandle module_ = RequireModule(SubversionLibrary());
  const EntryPoints entries_{module_};
};

/// Names as the API takes them.
class TNamePointers {
 public:
  explicit TNamePointers(NameList texts) : texts_(std::move(texts)) {
    for (const auto& text : texts_) pointers_.push_back(text.c_str());
  }
  Long Count() const { return static_cast<Long>(pointers_.size()); }
  const char** Data() { return pointers_.data(); }
  operator Names() const { return pointers_; }

 private:
  NameList texts_;
  std::vector<const char*> pointers_;
};

/// What SccPopulateList reports.
struct TPopulated {
  std::map<std::string, Long> Added;
  NameList Dropped;
  TStatuses Statuses;
  Long Result = 0;
};

/// The user presses the client's Cancel button for as long as it lives, or from when `since` is on disk.
struct TCancelPressed {
  explicit TCancelPressed(const std::string& since = "/") { Since = since; }
  ~TCancelPressed() { Since.clear(); }
  static inline std::string Since;
};

class TDeveloper {
 public:
  /// Works in a fresh folder of that name.
  explicit TDeveloper(const std::string& user, const std::string& folder = "work");
  ~TDeveloper();

  const std::string& Folder() const { return folder_; }
  /// An absolute path; the folder's own for an empty name.
  std::string File(const std::string& name) const { return name.empty() ? folder_ : folder_ + "/" + name; }
  NameList Files(NameList names) const {
    for (auto& name : names) name = File(name);
    return names;
  }
  /// Opens what the user chose in the provider's dialog before.
  Long Open(const std::string& url, const std::string& project, Long flags = SCC_OP_CREATEIFNEW);
  /// Opens what a mapping file names.
  Long OpenMapped(const std::string& url, const std::string& project, Long flags = SCC_OP_CREATEIFNEW);
  Long Close() { return library_->SccCloseProject(context_); }
  /// What the provider holds for the user's name after opening.
  const std::string& User() const { return user_; }

  void Write(const std::string& name, const std::string& text) const {
    temporary_.Write(work_ + "/" + name, text);
  }
  std::string Read(const std::string& name) const { return ReadWholeFile(File(name)); }
  bool Has(const std::string& name) const { return fs::exists(File(name)); }
  void Delete(const std::string& name) const { fs::remove(File(name)); }
  bool IsWritable(const std::string& name) const {
    return (GetFileAttributesOf(File(name)) & faReadOnly) == 0;
  }

  // The commands, on names relative to the folder.
  Long Add(const NameList& names, const std::string& comment = "", Long flags = 0) {
    return Run(library_->SccAdd, names, comment.c_str(), &flags, nullptr);
  }
  Long CheckOut(const NameList& names, const std::string& comment = "") {
    return Run(library_->SccCheckOut, names, comment.c_str(), 0, nullptr);
  }
  Long CheckIn(const NameList& names, const std::string& comment = "", Long flags = 0) {
    return Run(library_->SccCheckin, names, comment.c_str(), flags, nullptr);
  }
  Long Undo(const NameList& names) { return Run(library_->SccUncheckout, names, 0, nullptr); }
  Long Remove(const NameList& names, const std::string& comment = "") {
    return Run(library_->SccRemove, names, comment.c_str(), 0, nullptr);
  }
  Long Get(const NameList& names, Long flags = 0) { return Run(library_->SccGet, names, flags, nullptr); }
  Long GetEverything() { return Get({""}, SCC_GET_ALL | SCC_GET_RECURSIVE); }
  Long Rename(const std::string& from, const std::string& to) {
    return library_->SccRename(context_, nullptr, File(from).c_str(), File(to).c_str());
  }
  Long Diff(const std::string& name, Long flags = SCC_DIFF_QD_TIME);
  Long Status(const std::string& name) { return Statuses({name}).front(); }
  TStatuses Statuses(const NameList& names, Long expected = SCC_OK);
  TPopulated Populate(SCCCommand command, const NameList& names, Long flags = 0);

  // Several steps at once; each is expected to succeed.
  void AddNew(const NameList& names, const std::string& text = "1\n", Long flags = 0);
  /// Checks the file out and edits it.
  void Edit(const std::string& name, const std::string& text);
  void EditAndCheckIn(const std::string& name, const std::string& text, const std::string& comment = "");
  /// Writes over a read-only file.
  void EditWithoutCheckOut(const std::string& name, const std::string& text) const;

  /// The provider's sentences of the last command, one a line, each after its kind's letter: "I Locked a.txt."
  /// Signals are "? 6", status messages "? 4 a.txt"
  std::string Said() const { return said_; }

  const TProviderLibrary& Library() const { return library_; }
  void* Context() const { return context_; }

  template <class Entry, class... Rest>
  Long Run(Entry entry, const NameList& names, Rest... rest) {
    TNamePointers paths(Files(names));
    said_.clear();
    return entry(context_, nullptr, paths.Count(), paths.Data(), rest...);
  }

 private:
  static Long SCC_CALL TakeText(const char* text, Dword kind);

  static inline std::string said_;  // the callback has no argument to find its owner by
  TTemporaryFolder temporary_;
  TProviderLibrary library_;
  void* context_ = nullptr;
  std::string work_;
  std::string folder_;
  std::string user_;
};

// Statuses as clients see them.
constexpr Long kControlled = SCC_STATUS_CONTROLLED;
constexpr Long kOutHere = 0x100B;
constexpr Long kOutElsewhere = 0x1009;
constexpr Long kOutByOther = 0x000D;
constexpr Long kOutOfDate = SCC_STATUS_OUTOFDATE;
constexpr Long kDeleted = SCC_STATUS_DELETED;
constexpr Long kMerged = SCC_STATUS_MERGED;
constexpr Long kModified = SCC_STATUS_MODIFIED;

/// Ann has opened the repository's folder "project"; Bob will.
struct TTeam : testing::Test {
  TTeam();
  /// Opens the project for a colleague, who fetches everything.
  void Join(TDeveloper& colleague);
  TTestRepository repository;
  TDeveloper ann{"ann"};
  TDeveloper bob{"bob"};
};

/// A developer's working copy of "project", opened in this program: for what no entry point reaches without a window.
struct TDirectSession {
  TDirectSession(const TTestRepository& repository, const TDeveloper& developer);
  ProviderContext* operator->() { return &Session; }
  operator ProviderContext&() { return Session; }
  /// Runs one of the provider's commands on files of the developer's.
  template <class Command, class... Arguments>
  Long Run(Command command, const NameList& names, const Arguments&... arguments) {
    return command(Session, TNamePointers(Developer.Files(names)), arguments...);
  }
  const TDeveloper& Developer;
  ProviderContext Session;
};

/// Answers the provider's questions as long as it lives.
struct TAnsweredQuestions {
  TAnsweredQuestions() {
    Asked.clear();
    SetQuestionPrompt([](WindowHandle, const Question& question) {
      Asked += question.Text;
      return std::optional(Answer);
    });
  }
  ~TAnsweredQuestions() { SetQuestionPrompt(nullptr); }
  static inline bool Answer = true;
  static inline std::string Asked;  ///< the texts of all questions
};

}  // namespace kestrel::svnscc
