// Somebody at work: the provider library loaded as clients load it, a folder, and verbs.
#pragma once

#include <map>

#include "TestRepository.h"
#include "subversion/svn/ProviderContext.h"
#include "support/EntryPoints.h"
#include "support/Testing.h"

namespace kestrel::svnscc {

/// The provider, loaded until the end of the scope.
class TProviderLibrary {
 public:
  TProviderLibrary() = default;
  TProviderLibrary(const TProviderLibrary&) = delete;
  TProviderLibrary& operator=(const TProviderLibrary&) = delete;
  ~TProviderLibrary() { UnloadModule(module_); }
  const scc::EntryPoints* operator->() const { return &entries_; }

 private:
  const TModuleHandle module_ = RequireModule(SubversionLibrary());
  const scc::EntryPoints entries_{module_};
};

/// A file's row in what SccPopulateList reports.
struct TPopulated {
  std::map<std::string, scc::Long> Added;
  std::vector<std::string> Dropped;
  std::vector<scc::Long> Statuses;
  scc::Long Result = 0;
};

/// The user presses the client's Cancel button for as long as it lives, or from when `since` is on disk.
class TCancelPressed {
 public:
  explicit TCancelPressed(const std::string& since = {});
  TCancelPressed(const TCancelPressed&) = delete;
  TCancelPressed& operator=(const TCancelPressed&) = delete;
  ~TCancelPressed();
};

class TDeveloper {
 public:
  /// Works in a fresh folder of that name.
  explicit TDeveloper(const std::string& user, const std::string& folder = "work");
  ~TDeveloper();

  const std::string& Folder() const { return folder_; }
  std::string File(const std::string& name) const { return folder_ + "/" + name; }
  /// Opens what the user chose in the provider's dialog before.
  scc::Long Open(const std::string& url, const std::string& project,
                 scc::Long flags = scc::SCC_OP_CREATEIFNEW);
  /// Opens what a mapping file names.
  scc::Long OpenMapped(const std::string& url, const std::string& project,
                       scc::Long flags = scc::SCC_OP_CREATEIFNEW);
  scc::Long Close();
  /// What the provider holds for the user's name after opening.
  const std::string& User() const { return user_; }

  void Write(const std::string& name, const std::string& text) const {
    temporary_.Write(work_ + "/" + name, text);
  }
  std::string Read(const std::string& name) const;
  bool Has(const std::string& name) const;
  bool IsWritable(const std::string& name) const;

  // The commands, on names relative to the folder.
  scc::Long Add(const std::vector<std::string>& names, const std::string& comment = "", scc::Long flags = 0);
  scc::Long CheckOut(const std::vector<std::string>& names, const std::string& comment = "");
  scc::Long CheckIn(const std::vector<std::string>& names, const std::string& comment = "",
                    scc::Long flags = 0);
  scc::Long Undo(const std::vector<std::string>& names);
  scc::Long Remove(const std::vector<std::string>& names, const std::string& comment = "");
  scc::Long Get(const std::vector<std::string>& names, scc::Long flags = 0);
  scc::Long GetEverything() { return Get({""}, scc::SCC_GET_ALL | scc::SCC_GET_RECURSIVE); }
  scc::Long QuickDiff(const std::string& name, scc::Long flags = scc::SCC_DIFF_QD_TIME);
  scc::Long Status(const std::string& name) { return Statuses({name}).front(); }
  std::vector<scc::Long> Statuses(const std::vector<std::string>& names, scc::Long expected = scc::SCC_OK);
  TPopulated Populate(scc::SCCCommand command, const std::vector<std::string>& names, scc::Long flags = 0);

  // Several steps at once; each is expected to succeed.
  void AddNew(const std::vector<std::string>& names, const std::string& text = "1\n", scc::Long flags = 0);
  /// Checks the file out and edits it.
  void Edit(const std::string& name, const std::string& text);
  void EditAndCheckIn(const std::string& name, const std::string& text, const std::string& comment = "");
  /// Writes over a read-only file.
  void EditWithoutCheckOut(const std::string& name, const std::string& text) const;

  /// The provider's sentences of the last command, one a line, each after its kind's letter: "I Locked a.txt."
  /// Signals are "? 6", status messages "? 4 a.txt"
  std::string Said() const;

  const TProviderLibrary& Library() const { return library_; }
  void* Context() const { return context_; }

 private:
  TTemporaryFolder temporary_;
  TProviderLibrary library_;
  void* context_ = nullptr;
  std::string work_;
  std::string folder_;
  std::string user_;
};

// Statuses as clients see them.
constexpr scc::Long kControlled = scc::SCC_STATUS_CONTROLLED;
constexpr scc::Long kOutHere = 0x100B;
constexpr scc::Long kOutElsewhere = 0x1009;
constexpr scc::Long kOutByOther = 0x000D;
constexpr scc::Long kOutOfDate = scc::SCC_STATUS_OUTOFDATE;
constexpr scc::Long kDeleted = scc::SCC_STATUS_DELETED;
constexpr scc::Long kMerged = scc::SCC_STATUS_MERGED;
constexpr scc::Long kModified = scc::SCC_STATUS_MODIFIED;
using TStatuses = std::vector<scc::Long>;

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
  svnscc::ProviderContext* operator->() { return &Session; }
  operator svnscc::ProviderContext&() { return Session; }
  svnscc::ProviderContext Session;
};

/// Answers the provider's questions as long as it lives.
struct TAnsweredQuestions {
  TAnsweredQuestions();
  ~TAnsweredQuestions();
  static inline bool Answer = true;
  static inline std::string Asked;  ///< the texts of all questions
};

}  // namespace kestrel::svnscc
