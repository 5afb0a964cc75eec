// The project half of a session: identity, choosing, opening and closing.
#include "provider/ProviderBorder.h"
#include "provider/ProviderStrings.h"

using namespace scc;

TSCCProviderProject::TSCCProviderProject(const std::string& localPath, TWindowHandle window,
                                         const std::string& userName)
    : window_(window) {
  localPath_.SetUncut(localPath);
  userName_.Set(userName);
}

TSCCProviderProject::~TSCCProviderProject() = default;

WindowHandle TSCCProviderProject::Window() const { return ToWindow(window_); }

std::string TSCCProviderProject::get_ProjName() const { return projName_.Str(); }
void TSCCProviderProject::set_ProjName(const std::string& value) { projName_.Set(value); }
std::string TSCCProviderProject::get_ProjPath() const { return projPath_.Str(); }
void TSCCProviderProject::set_ProjPath(const std::string& value) { projPath_.Set(value); }
std::string TSCCProviderProject::get_LocalPath() const { return localPath_.Str(); }
void TSCCProviderProject::set_LocalPath(const std::string& value) { localPath_.SetUncut(value); }
std::string TSCCProviderProject::get_UserName() const { return userName_.Str(); }
void TSCCProviderProject::set_UserName(const std::string& value) { userName_.Set(value); }

Long TSCCProviderProject::GetProjectPath(TStateMessages& messages, bool mayCreate, bool mayChangePath) {
  const auto toBool = [](bool value) -> Bool { return value ? -1 : 0; };
  TOutWord isNew{toBool(mayCreate)};
  const Long code = AttemptWith(messages, [&] {
    constexpr const char* entry = "SccGetProjPath";
    TScratchText user(entry, userName_), name(entry, projName_), local(entry, RequireFits(localPath_)),
        aux(entry, projPath_);
    const Long result = Invoke(SccGetProjPath, context_, Window(), user.Data(), name.Data(), local.Data(),
                               aux.Data(), toBool(mayChangePath), &isNew.Value);
    user.MoveTo(userName_);
    name.MoveTo(projName_);
    local.MoveTo(localPath_);
    aux.MoveTo(projPath_);
    return result;
  });
  if (code == SCC_OK) messages[0] = isNew.Value != 0 ? sNewProjectCreated : sExistingProjectSelected;
  return code;
}

Long TSCCProviderProject::OpenProject(TStateMessages& messages) { return OpenAt(messages, localPath_); }

Long TSCCProviderProject::OpenProject(TStateMessages& messages, const std::string& localPath) {
  TBoundedText path(localPath_.Size());
  path.SetUncut(localPath);
  return OpenAt(messages, path);
}

Long TSCCProviderProject::OpenAt(TStateMessages& messages, const TBoundedText& localPath) {
  const auto open = [&] {
    constexpr const char* entry = "SccOpenProject";
    const TComment comment({}, sProjectComment);
    TScratchText user(entry, userName_), name(entry, projName_), local(entry, RequireFits(localPath)),
        aux(entry, projPath_);
    const Long result = Invoke(SccOpenProject, context_, Window(), user.Data(), name.Data(), local.Data(),
                               aux.Data(), comment.Data(), &TextOutProc, SCC_OP_CREATEIFNEW);
    user.MoveTo(userName_);
    name.MoveTo(projName_);
    aux.MoveTo(projPath_);
    return result;
  };
  // After an exception the code says 0 all the same: callers find the failure in the error text.
  return AttemptWith(messages, open, SCC_OK);
}

bool TSCCProviderProject::CloseProject(TStateMessages& messages) {
  return AttemptWith(messages, [&] { return Invoke(SccCloseProject, context_); }) == SCC_OK;
}

std::string TSCCProviderProject::GetVersion() {
  const Long answer = AttemptLogged("SccGetVersion", [] { return Invoke(SccGetVersion); });
  if (answer < 0) return {};  // an error code, not a version
  const auto version = static_cast<Dword>(answer);
  return Format(sVersion.str(), {SCC_GET_MAJOR_VER(version), SCC_GET_MINOR_VER(version)});
}

void TSCCProviderProject::Properties(const std::string& fileName, TStateMessages& messages) {
  AttemptWith(messages, [&] {
    TFileArray name({fileName});
    return Invoke(SccProperties, context_, Window(), *name.Data());
  });
}

void TSCCProviderProject::GetEvents(TStateMessages& messages) {
  AttemptWith(messages, [&] {
    TScratchText name("SccGetEvents", "");
    TOutWord status, remaining;
    return Invoke(SccGetEvents, context_, name.Data(), &status.Value, &remaining.Value);
  });
}

Long TSCCProviderProject::RunSCC() {
  return AttemptLogged("SccRunScc", [&] { return Invoke(SccRunScc, context_, Window(), 0, nullptr); });
}
