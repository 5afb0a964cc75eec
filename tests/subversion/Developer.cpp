#include "Developer.h"

#include <array>
#include <cstring>

#include "subversion/project/OpenProject.h"
#include "subversion/project/UsedRepositories.h"

namespace kestrel::svnscc {

namespace {

Bool SCC_CALL TakeFile(void* callerData, Bool add, Long status, const char* name) {
  auto& list = *static_cast<TPopulated*>(callerData);
  if (add != 0)
    list.Added[name] = status;
  else
    list.Dropped.push_back(name);
  return 1;
}

template <std::size_t Size>
void Fill(std::array<char, Size>& buffer, const std::string& text) {
  ASSERT_LT(text.size(), Size);
  buffer.fill('\0');
  std::memcpy(buffer.data(), text.data(), text.size());
}

}  // namespace

Long SCC_CALL TDeveloper::TakeText(const char* text, Dword kind) {
  said_ += kind < SCC_MSG_STATUS ? std::string(1, "?IWE"[kind]) : "? " + std::to_string(kind);
  if (text) said_ += std::string(" ") + text;
  said_ += "\n";
  const bool pressed = !TCancelPressed::Since.empty() && fs::exists(TCancelPressed::Since);
  return kind == SCC_MSG_DOCANCEL && pressed ? SCC_MSG_RTN_CANCEL : SCC_MSG_RTN_OK;
}

TDeveloper::TDeveloper(const std::string& user, const std::string& folder)
    : work_(folder), folder_(temporary_.MakeFolder(folder)), user_(user) {
  std::array<char, SCC_NAME_SIZE> name{};
  std::array<char, SCC_AUXLABEL_SIZE> label{};
  std::array<Long, 3> words{};
  EXPECT_EQ(SCC_OK, library_->SccInitialize(&context_, nullptr, "tests", name.data(), &words[0], label.data(),
                                            &words[1], &words[2]));
}

TDeveloper::~TDeveloper() {
  library_->SccCloseProject(context_);
  library_->SccUninitialize(context_);
}

Long TDeveloper::Open(const std::string& url, const std::string& project, Long flags) {
  MarkProjectUsed(url, project);
  return OpenMapped(url, project, flags);
}

Long TDeveloper::OpenMapped(const std::string& url, const std::string& project, Long flags) {
  std::array<char, 33> user;  // as small as clients make them
  std::array<char, 261> name;
  std::array<char, SCC_PRJPATH_SIZE> aux;
  Fill(user, user_);
  Fill(name, project);
  Fill(aux, url);
  said_.clear();
  const Long result = library_->SccOpenProject(context_, nullptr, user.data(), name.data(), folder_.c_str(),
                                               aux.data(), "Made for the tests", TakeText, flags);
  user_ = user.data();
  return result;
}

Long TDeveloper::Diff(const std::string& name, Long flags) {
  said_.clear();
  return library_->SccDiff(context_, nullptr, File(name).c_str(), flags, nullptr);
}

TStatuses TDeveloper::Statuses(const NameList& names, Long expected) {
  TNamePointers paths(Files(names));
  said_.clear();
  TStatuses statuses(names.size(), SCC_STATUS_INVALID);
  EXPECT_EQ(expected, library_->SccQueryInfo(context_, paths.Count(), paths.Data(), statuses.data()))
      << said_;
  return statuses;
}

TPopulated TDeveloper::Populate(SCCCommand command, const NameList& names, Long flags) {
  TNamePointers paths(Files(names));
  said_.clear();
  TPopulated list;
  list.Statuses.assign(names.size(), SCC_STATUS_INVALID);
  list.Result = library_->SccPopulateList(context_, command, paths.Count(), paths.Data(), TakeFile, &list,
                                          list.Statuses.data(), flags);
  return list;
}

void TDeveloper::AddNew(const NameList& names, const std::string& text, Long flags) {
  for (const auto& name : names) Write(name, text);
  ASSERT_EQ(SCC_OK, Add(names, "", flags)) << said_;
}

void TDeveloper::Edit(const std::string& name, const std::string& text) {
  ASSERT_EQ(SCC_OK, CheckOut({name})) << said_;
  Write(name, text);
}

void TDeveloper::EditAndCheckIn(const std::string& name, const std::string& text,
                                const std::string& comment) {
  Edit(name, text);
  ASSERT_EQ(SCC_OK, CheckIn({name}, comment)) << said_;
}

void TDeveloper::EditWithoutCheckOut(const std::string& name, const std::string& text) const {
  fs::permissions(File(name), fs::perms::owner_all);
  Write(name, text);
}

TTeam::TTeam() { EXPECT_EQ(SCC_OK, ann.Open(repository.Url(), "project")) << ann.Said(); }

void TTeam::Join(TDeveloper& colleague) {
  ASSERT_EQ(SCC_OK, colleague.Open(repository.Url(), "project")) << colleague.Said();
  ASSERT_EQ(SCC_OK, colleague.GetEverything()) << colleague.Said();
}

TDirectSession::TDirectSession(const TTestRepository& repository, const TDeveloper& developer)
    : Developer(developer) {
  repository.Choose("project");
  ProjectNames names{developer.User(), "project", repository.Url(), developer.Folder(), ""};
  OpenProject(Session, names, {.MayCreate = true});
}

}  // namespace kestrel::svnscc
