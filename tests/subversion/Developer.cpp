#include "Developer.h"

#include <array>
#include <cstring>

#include "subversion/project/OpenProject.h"
#include "subversion/project/UsedRepositories.h"
#include "subversion/svn/Question.h"
#include "system/System.h"

namespace kestrel::svnscc {

namespace {

std::string said;  // the callback has no argument to find its owner by

bool cancelPressed = false;
std::string cancelSince;

bool IsCancelPressed() {
  return cancelPressed && (cancelSince.empty() || std::filesystem::exists(cancelSince));
}

scc::Long SCC_CALL TakeText(const char* text, scc::Dword kind) {
  const bool isLine = kind < scc::SCC_MSG_STATUS;
  said += isLine ? std::string(1, "?IWE"[kind]) : "? " + std::to_string(kind);
  if (text != nullptr) said += std::string(" ") + text;
  said += "\n";
  return kind == scc::SCC_MSG_DOCANCEL && IsCancelPressed() ? scc::SCC_MSG_RTN_CANCEL : scc::SCC_MSG_RTN_OK;
}

scc::Bool SCC_CALL TakeFile(void* callerData, scc::Bool add, scc::Long status, const char* name) {
  auto& list = *static_cast<TPopulated*>(callerData);
  if (add != 0)
    list.Added[name] = status;
  else
    list.Dropped.push_back(name);
  return 1;
}

/// Names as the API takes them.
class NamePointers {
 public:
  NamePointers(const TDeveloper& developer, const std::vector<std::string>& names) {
    for (const auto& name : names) texts_.push_back(name.empty() ? developer.Folder() : developer.File(name));
    for (const auto& text : texts_) pointers_.push_back(text.c_str());
    said.clear();
  }
  scc::Long Count() const { return static_cast<scc::Long>(pointers_.size()); }
  const char** Data() { return pointers_.data(); }

 private:
  std::vector<std::string> texts_;
  std::vector<const char*> pointers_;
};

template <std::size_t Size>
void Fill(std::array<char, Size>& buffer, const std::string& text) {
  ASSERT_LT(text.size(), Size);
  buffer.fill('\0');
  std::memcpy(buffer.data(), text.data(), text.size());
}

}  // namespace

TCancelPressed::TCancelPressed(const std::string& since) {
  cancelPressed = true;
  cancelSince = since;
}
TCancelPressed::~TCancelPressed() { cancelPressed = false; }

TDeveloper::TDeveloper(const std::string& user, const std::string& folder)
    : work_(folder), folder_(temporary_.MakeFolder(folder)), user_(user) {
  std::array<char, scc::SCC_NAME_SIZE> name{};
  std::array<char, scc::SCC_AUXLABEL_SIZE> label{};
  std::array<scc::Long, 3> words{};
  EXPECT_EQ(scc::SCC_OK, library_->SccInitialize(&context_, nullptr, "tests", name.data(), &words[0],
                                                 label.data(), &words[1], &words[2]));
}

TDeveloper::~TDeveloper() {
  library_->SccCloseProject(context_);
  library_->SccUninitialize(context_);
}

scc::Long TDeveloper::Open(const std::string& url, const std::string& project, scc::Long flags) {
  svnscc::MarkProjectUsed(url, project);
  return OpenMapped(url, project, flags);
}

scc::Long TDeveloper::OpenMapped(const std::string& url, const std::string& project, scc::Long flags) {
  std::array<char, 33> user;  // as small as clients make them
  std::array<char, 261> name;
  std::array<char, scc::SCC_PRJPATH_SIZE> aux;
  Fill(user, user_);
  Fill(name, project);
  Fill(aux, url);
  said.clear();
  const scc::Long result =
      library_->SccOpenProject(context_, nullptr, user.data(), name.data(), folder_.c_str(), aux.data(),
                               "Made for the tests", TakeText, flags);
  user_ = user.data();
  return result;
}

scc::Long TDeveloper::Close() { return library_->SccCloseProject(context_); }

std::string TDeveloper::Read(const std::string& name) const { return ReadWholeFile(File(name)); }
bool TDeveloper::Has(const std::string& name) const { return FileExists(File(name)); }
bool TDeveloper::IsWritable(const std::string& name) const {
  return (GetFileAttributesOf(File(name)) & faReadOnly) == 0;
}

scc::Long TDeveloper::Add(const std::vector<std::string>& names, const std::string& comment,
                          scc::Long flags) {
  NamePointers array(*this, names);
  return library_->SccAdd(context_, nullptr, array.Count(), array.Data(), comment.c_str(), &flags, nullptr);
}

scc::Long TDeveloper::CheckOut(const std::vector<std::string>& names, const std::string& comment) {
  NamePointers array(*this, names);
  return library_->SccCheckOut(context_, nullptr, array.Count(), array.Data(), comment.c_str(), 0, nullptr);
}

scc::Long TDeveloper::CheckIn(const std::vector<std::string>& names, const std::string& comment,
                              scc::Long flags) {
  NamePointers array(*this, names);
  return library_->SccCheckin(context_, nullptr, array.Count(), array.Data(), comment.c_str(), flags,
                              nullptr);
}

scc::Long TDeveloper::Undo(const std::vector<std::string>& names) {
  NamePointers array(*this, names);
  return library_->SccUncheckout(context_, nullptr, array.Count(), array.Data(), 0, nullptr);
}

scc::Long TDeveloper::Remove(const std::vector<std::string>& names, const std::string& comment) {
  NamePointers array(*this, names);
  return library_->SccRemove(context_, nullptr, array.Count(), array.Data(), comment.c_str(), 0, nullptr);
}

scc::Long TDeveloper::Get(const std::vector<std::string>& names, scc::Long flags) {
  NamePointers array(*this, names);
  return library_->SccGet(context_, nullptr, array.Count(), array.Data(), flags, nullptr);
}

scc::Long TDeveloper::QuickDiff(const std::string& name, scc::Long flags) {
  said.clear();
  return library_->SccDiff(context_, nullptr, File(name).c_str(), flags, nullptr);
}

std::vector<scc::Long> TDeveloper::Statuses(const std::vector<std::string>& names, scc::Long expected) {
  NamePointers array(*this, names);
  std::vector<scc::Long> statuses(names.size(), scc::SCC_STATUS_INVALID);
  EXPECT_EQ(expected, library_->SccQueryInfo(context_, array.Count(), array.Data(), statuses.data())) << said;
  return statuses;
}

TPopulated TDeveloper::Populate(scc::SCCCommand command, const std::vector<std::string>& names,
                                scc::Long flags) {
  NamePointers array(*this, names);
  TPopulated list;
  list.Statuses.assign(names.size(), scc::SCC_STATUS_INVALID);
  list.Result = library_->SccPopulateList(context_, command, array.Count(), array.Data(), TakeFile, &list,
                                          list.Statuses.data(), flags);
  return list;
}

void TDeveloper::AddNew(const std::vector<std::string>& names, const std::string& text, scc::Long flags) {
  for (const auto& name : names) Write(name, text);
  ASSERT_EQ(scc::SCC_OK, Add(names, "", flags)) << said;
}

void TDeveloper::Edit(const std::string& name, const std::string& text) {
  ASSERT_EQ(scc::SCC_OK, CheckOut({name})) << said;
  Write(name, text);
}

void TDeveloper::EditAndCheckIn(const std::string& name, const std::string& text,
                                const std::string& comment) {
  Edit(name, text);
  ASSERT_EQ(scc::SCC_OK, CheckIn({name}, comment)) << said;
}

void TDeveloper::EditWithoutCheckOut(const std::string& name, const std::string& text) const {
  std::filesystem::permissions(File(name), std::filesystem::perms::owner_all);
  Write(name, text);
}

std::string TDeveloper::Said() const { return said; }

TTeam::TTeam() { EXPECT_EQ(scc::SCC_OK, ann.Open(repository.Url(), "project")) << ann.Said(); }

void TTeam::Join(TDeveloper& colleague) {
  ASSERT_EQ(scc::SCC_OK, colleague.Open(repository.Url(), "project")) << colleague.Said();
  ASSERT_EQ(scc::SCC_OK, colleague.GetEverything()) << colleague.Said();
}

TDirectSession::TDirectSession(const TTestRepository& repository, const TDeveloper& developer) {
  repository.Choose("project");
  svnscc::ProjectNames names{developer.User(), "project", repository.Url(), developer.Folder(), ""};
  svnscc::OpenProject(Session, names, {.MayCreate = true});
}

TAnsweredQuestions::TAnsweredQuestions() {
  Asked.clear();
  svnscc::SetQuestionPrompt([](scc::WindowHandle, const svnscc::Question& question) {
    Asked += question.Text;
    return std::optional(Answer);
  });
}
TAnsweredQuestions::~TAnsweredQuestions() { svnscc::SetQuestionPrompt(nullptr); }

}  // namespace kestrel::svnscc
