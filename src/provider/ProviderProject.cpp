// Identity, choosing, opening and closing of a provider project.
#include <initializer_list>
#include <optional>
#include <string>

#include "provider/ProviderBorder.h"
#include "provider/ProviderStrings.h"

namespace kestrel::addin {

using namespace scc;

namespace {

/// Buffers for the project's texts during one call.  Throws EAbort for a text that cannot be passed to the provider.
struct TIdentityTexts {
  TIdentityTexts(const char* entry, const TBoundedText& user, const TBoundedText& name,
                 const TBoundedText& local, const TBoundedText& aux)
      : User(entry, user), Name(entry, name), Local(entry, RequireFits(local)), Aux(entry, aux) {}
  TScratchBuffer User, Name, Local, Aux;
};

/// A buffer and the field that receives its text after the call.
struct TReturned {
  const TScratchBuffer& Text;
  TBoundedText& Field;
};

/// The mapping file and the registry store these texts as one line each.
std::string FirstLine(const std::string& text) { return text.substr(0, text.find_first_of("\r\n")); }

/// Copies the buffers' texts to their fields: all of them, or none if one cannot be converted.  Paths are not reduced to
/// their first line, because that would name another directory.
void CopyBack(std::initializer_list<TReturned> lines, std::initializer_list<TReturned> paths = {}) {
  TStringList converted;
  for (const auto& [text, field] : lines) converted.push_back(FirstLine(text.TextFor(field)));
  for (const auto& [text, field] : paths) converted.push_back(text.TextFor(field));
  auto next = converted.begin();
  for (const auto& texts : {lines, paths})
    for (const auto& returned : texts) returned.Field.SetUntruncated(*next++);
}

}  // namespace

TSCCProviderProject::TSCCProviderProject(const std::string& localPath, TWindowHandle window,
                                         const std::string& userName, void* context)
    : context_(context), window_(window) {
  localPath_.SetUntruncated(localPath);
  userName_.Set(userName);
}

TSCCProviderProject::~TSCCProviderProject() = default;

WindowHandle TSCCProviderProject::Window() const { return ToWindow(window_); }

std::string TSCCProviderProject::get_ProjName() const { return projName_.Str(); }
void TSCCProviderProject::set_ProjName(const std::string& value) { projName_.Set(value); }
std::string TSCCProviderProject::get_ProjPath() const { return projPath_.Str(); }
void TSCCProviderProject::set_ProjPath(const std::string& value) { projPath_.Set(value); }
std::string TSCCProviderProject::get_LocalPath() const { return localPath_.Truncated(); }
void TSCCProviderProject::set_LocalPath(const std::string& value) { localPath_.SetUntruncated(value); }
bool TSCCProviderProject::IsAt(const std::string& localPath) const {
  return SameText(localPath_.Str(), localPath);
}
std::string TSCCProviderProject::get_UserName() const { return userName_.Str(); }
void TSCCProviderProject::set_UserName(const std::string& value) { userName_.Set(value); }

Long TSCCProviderProject::GetProjectPath(TStateMessages& messages, bool mayCreate, bool mayChangePath) {
  const auto toBool = [](bool value) -> Bool { return value ? -1 : 0; };
  TOutParam32 isNew{toBool(mayCreate)};
  const Long code = RunWithMessages(messages, [&] {
    TIdentityTexts texts("SccGetProjPath", userName_, projName_, localPath_, projPath_);
    const Long result = Invoke(SccGetProjPath, context_, Window(), texts.User.Data(), texts.Name.Data(),
                               texts.Local.Data(), texts.Aux.Data(), toBool(mayChangePath), &isNew.Value);
    CopyBack({{texts.User, userName_}, {texts.Name, projName_}, {texts.Aux, projPath_}},
             {{texts.Local, localPath_}});
    return result;
  });
  if (code == SCC_OK) messages[0] = isNew.Value != 0 ? sNewProjectCreated : sExistingProjectSelected;
  return code;
}

Long TSCCProviderProject::OpenProject(TStateMessages& messages) { return OpenAt(messages, localPath_); }

Long TSCCProviderProject::OpenProject(TStateMessages& messages, const std::string& localPath) {
  TBoundedText path(localPath_.Size());
  path.SetUntruncated(localPath);
  return OpenAt(messages, path);
}

Long TSCCProviderProject::OpenAt(TStateMessages& messages, const TBoundedText& localPath) {
  std::optional<TIdentityTexts> texts;
  const auto prepare = [&] {
    texts.emplace("SccOpenProject", userName_, projName_, localPath, projPath_);
    return SCC_OK;
  };
  const auto open = [&] {
    const TProviderComment comment({}, sProjectComment);
    const Long result =
        Invoke(SccOpenProject, context_, Window(), texts->User.Data(), texts->Name.Data(),
               texts->Local.Data(), texts->Aux.Data(), comment.Data(), &TextOutProc, SCC_OP_CREATEIFNEW);
    CopyBack({{texts->User, userName_}, {texts->Name, projName_}, {texts->Aux, projPath_}});
    return result;
  };
  // A text that cannot be passed is a failure, because the provider was not called.
  if (const Long refused = RunWithMessages(messages, prepare); refused != SCC_OK) return refused;
  // Intentional: 0 even after an exception; callers find the failure in the error text.
  return RunWithMessages(messages, open, SCC_OK);
}

bool TSCCProviderProject::CloseProject(TStateMessages& messages) {
  return RunWithMessages(messages, [&] { return Invoke(SccCloseProject, context_); }) == SCC_OK;
}

std::string TSCCProviderProject::GetVersion() {
  const Long answer = RunLogged("SccGetVersion", [] { return Invoke(SccGetVersion); });
  if (answer < 0) return {};  // an error code
  const auto version = static_cast<Dword>(answer);
  return Format(sVersion, {SCC_GET_MAJOR_VER(version), SCC_GET_MINOR_VER(version)});
}

void TSCCProviderProject::Properties(const std::string& fileName, TStateMessages& messages) {
  RunWithMessages(messages, [&] {
    TFileArray name({fileName});
    return Invoke(SccProperties, context_, Window(), *name.Data());
  });
}

void TSCCProviderProject::GetEvents(TStateMessages& messages) {
  RunWithMessages(messages, [&] {
    TScratchBuffer name("SccGetEvents", "");
    TOutParam32 status, remaining;
    return Invoke(SccGetEvents, context_, name.Data(), &status.Value, &remaining.Value);
  });
}

Long TSCCProviderProject::RunSCC() {
  return RunLogged("SccRunScc", [&] { return Invoke(SccRunScc, context_, Window(), 0, nullptr); });
}

}  // namespace kestrel::addin
