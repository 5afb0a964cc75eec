// The scripted provider's side of the API.
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <thread>

#include "support/ProviderFaults.h"
#include "support/ScriptedProvider.h"

namespace kestrel {

using namespace scc;

// Declared from the table that the client binds by, so that a wrong signature does not compile.  The one variable that
// is spelled differently from its export is declared by hand.
#define SccCheckOut SccCheckout
extern "C" {
#define SCC_ENTRY(variable, name, result, arguments) SCC_EXPORT result SCC_CALL variable arguments;
#include "scc/entry_points.def"
#undef SCC_ENTRY
SCC_EXPORT ScriptedProvider* ScriptedProviderControl();
}
#undef SccCheckOut

namespace {

ScriptedProvider script;

constexpr std::size_t kScratchRoom = 4096;
constexpr int kMaxFiles = 65536;

std::string Text(const char* text) { return text != nullptr ? text : ""; }

void TakeFiles(ScriptedCall& call, Long count, const char** names) {
  if (!script.Record && script.OnCall.empty()) return;
  call.Files.assign(names, names + count);
  call.Terminated = names == nullptr || names[count] == nullptr;
}

void WriteTexts(const std::string& entry) {
  const auto texts = script.Texts.find(entry);
  if (texts == script.Texts.end() || script.TextOut == nullptr) return;
  for (const ScriptedText& text : texts->second)
    script.TextOut(text.Text ? text.Text->c_str() : nullptr, text.Kind);
}

/// What every entry point does: keep the call, write its texts, fail if told to.  The scripted result, or `result`.
Long Play(const ScriptedCall& call, Long result = SCC_OK) {
  CommitFault(call.Entry, script.TextOut);
  if (script.Record) script.Calls.push_back(call);
  if (const auto hook = script.OnCall.find(call.Entry); hook != script.OnCall.end()) hook->second(call);
  WriteTexts(call.Entry);
  if (script.Faults.ThrowException.contains(call.Entry))
    throw std::runtime_error("scripted failure in " + call.Entry);
  if (script.Faults.ThrowInt.contains(call.Entry)) throw 42;
  if (call.Context != &script) return SCC_E_NONSPECIFICERROR;
  const auto scripted = script.Results.find(call.Entry);
  return scripted != script.Results.end() ? scripted->second : result;
}

ScriptedCall Called(const char* entry, const void* context, WindowHandle window = nullptr,
                    std::vector<std::string> files = {}) {
  ScriptedCall call;
  call.Entry = entry;
  call.Context = context;
  call.Window = window;
  call.Files = std::move(files);
  return call;
}

ScriptedCall Identified(const char* entry, const void* context, WindowHandle window, const char* user,
                        const char* projectName, const char* localPath, const char* auxPath) {
  ScriptedCall call = Called(entry, context, window);
  call.User = user;
  call.ProjName = projectName;
  call.LocalPath = localPath;
  call.AuxPath = auxPath;
  return call;
}

Long PlayFiles(const char* entry, const void* context, WindowHandle window, Long count, const char** names,
               const char* comment, Long flags, const void* options) {
  ScriptedCall call = Called(entry, context, window);
  TakeFiles(call, count, names);
  call.Comment = Text(comment);
  call.Flags = flags;
  call.Options = options;
  return Play(call);
}

/// Writes an in/out text of `size` bytes, in the way that the faults ask for.
void PutText(char* place, const std::optional<std::string>& text, int size) {
  if (text) std::strcpy(place, text->c_str());
  if (script.Faults.Unterminated) std::memset(place, 'u', static_cast<std::size_t>(size));
  if (const auto more = script.Faults.WriteFarBehind) std::memset(place, 'o', kScratchRoom + more);
}

void PutIdentity(const ScriptedIdentity& identity, char* user, char* name, char* aux) {
  PutText(user, identity.User, SCC_USER_SIZE);
  PutText(name, identity.ProjName, SCC_PRJPATH_SIZE);
  PutText(aux, identity.AuxPath, SCC_PRJPATH_SIZE);
  if (script.Faults.LongProjName) std::strcpy(name, std::string(SCC_PRJPATH_SIZE - 1, 'n').c_str());
}

void PutWord(Long* place, Long value) {
  const std::int64_t wide = value;
  std::memcpy(place, &wide, script.Faults.WideWords ? sizeof wide : sizeof value);
}

Long StatusOf(const char* name) {
  if (script.Statuses.empty() && !script.StatusOf) return script.DefaultStatus;
  const auto known = script.Statuses.find(name);
  if (known != script.Statuses.end()) return known->second;
  return script.StatusOf ? script.StatusOf(name) : script.DefaultStatus;
}

void PutStatuses(Long count, const char** names, Long* statuses) {
  std::transform(names, names + count, statuses, StatusOf);
  if (script.Faults.WriteBehindStatuses) statuses[kMaxFiles] = 1;
}

void CallBack(TPopListFunc populate, void* data) {
  for (const ScriptedListEntry& entry : script.List) {
    ++script.ListAnswers;
    if (!populate(data, entry.Add ? 1 : 0, entry.Status, entry.File ? entry.File->c_str() : nullptr)) return;
  }
  for (int i = 0; script.Faults.FloodList && i < 300'000; ++i, ++script.ListAnswers)
    populate(data, 1, SCC_STATUS_CONTROLLED, ("flood" + std::to_string(i)).c_str());
}

void WriteLate() {
  if (script.Faults.LateText && script.TextOut != nullptr) script.TextOut("late", SCC_MSG_INFO);
}

}  // namespace

ScriptedProvider* ScriptedProviderControl() { return &script; }

Long SCC_CALL SccInitialize(void** context, WindowHandle window, const char* caller, char* sccName,
                            Long* capabilities, char* auxPathLabel, Long* checkOutCommentLength,
                            Long* commentLength) {
  ScriptedCall call = Called("SccInitialize", &script, window);
  call.User = Text(caller);
  *context = &script;
  PutText(sccName, script.Name, SCC_NAME_SIZE);
  PutText(auxPathLabel, "Scripted path:", SCC_AUXLABEL_SIZE);
  PutWord(capabilities, static_cast<Long>(script.Capabilities));
  PutWord(checkOutCommentLength, 128);
  PutWord(commentLength, 128);
  const Long result = Play(call);
  script.Initialized = result == SCC_OK;
  return result;
}

Long SCC_CALL SccUninitialize(void* context) {
  WriteLate();
  script.Initialized = false;
  return Play(Called("SccUninitialize", context));
}

Long SCC_CALL SccGetVersion() { return Play(Called("SccGetVersion", &script), script.Version); }

Long SCC_CALL SccSetOption(void* context, Long option, Long value) {
  ScriptedCall call = Called("SccSetOption", context);
  call.Command = option;
  call.Flags = value;
  return Play(call, option == SCC_OPT_SHARESUBPROJ ? SCC_I_SHARESUBPROJOK : SCC_OK);
}

Long SCC_CALL SccGetProjPath(void* context, WindowHandle window, char* user, char* projectName,
                             char* localPath, char* auxPath, Bool allowChangePath, Bool* isNew) {
  ScriptedCall call = Identified("SccGetProjPath", context, window, user, projectName, localPath, auxPath);
  call.Allowed = allowChangePath == -1;
  call.IsNew = *isNew == -1;
  PutIdentity(script.GetProjPath, user, projectName, auxPath);
  PutText(localPath, script.GetProjPath.LocalPath, SCC_LOCALPATH_SIZE);
  if (script.IsNew) PutWord(isNew, *script.IsNew ? 1 : 0);
  return Play(call);
}

Long SCC_CALL SccOpenProject(void* context, WindowHandle window, char* user, char* projectName,
                             const char* localPath, char* auxPath, const char* comment, TTextOutProc textOut,
                             Long flags) {
  ScriptedCall call = Identified("SccOpenProject", context, window, user, projectName, localPath, auxPath);
  call.Comment = Text(comment);
  call.Flags = flags;
  call.TextOut = textOut != nullptr;
  script.TextOut = textOut;
  PutIdentity(script.OpenProject, user, projectName, auxPath);
  const Long result = Play(call, script.Open ? SCC_E_PROJECTALREADYOPEN : SCC_OK);
  script.Open = script.Open || result >= SCC_OK;
  return result;
}

Long SCC_CALL SccCloseProject(void* context) {
  const Long result = Play(Called("SccCloseProject", context), script.Open ? SCC_OK : SCC_E_PROJNOTOPEN);
  script.Open = false;
  WriteLate();
  return result;
}

Long SCC_CALL SccQueryInfo(void* context, Long count, const char** names, Long* statuses) {
  ScriptedCall call = Called("SccQueryInfo", context);
  TakeFiles(call, count, names);
  PutStatuses(count, names, statuses);
  return Play(call);
}

Long SCC_CALL SccPopulateList(void* context, SCCCommand command, Long count, const char** names,
                              TPopListFunc populate, void* callerData, Long* statuses, Long flags) {
  ScriptedCall call = Called("SccPopulateList", context);
  TakeFiles(call, count, names);
  call.Command = command;
  call.Flags = flags;
  PutStatuses(count, names, statuses);
  CallBack(populate, callerData);
  return Play(call);
}

// These differ in their names only.
#define SCRIPTED_COMMAND(name)                                                           \
  Long SCC_CALL name(void* context, WindowHandle window, Long count, const char** names, \
                     const char* comment, Long flags, void* options) {                   \
    return PlayFiles(#name, context, window, count, names, comment, flags, options);     \
  }
SCRIPTED_COMMAND(SccCheckout)
SCRIPTED_COMMAND(SccCheckin)
SCRIPTED_COMMAND(SccRemove)
#undef SCRIPTED_COMMAND
#define SCRIPTED_COMMAND(name)                                                                       \
  Long SCC_CALL name(void* context, WindowHandle window, Long count, const char** names, Long flags, \
                     void* options) {                                                                \
    return PlayFiles(#name, context, window, count, names, nullptr, flags, options);                 \
  }
SCRIPTED_COMMAND(SccGet)
SCRIPTED_COMMAND(SccUncheckout)
SCRIPTED_COMMAND(SccHistory)
#undef SCRIPTED_COMMAND

Long SCC_CALL SccAdd(void* context, WindowHandle window, Long count, const char** names, const char* comment,
                     Long* flags, void* options) {
  ScriptedCall call = Called("SccAdd", context, window);
  TakeFiles(call, count, names);
  call.Comment = Text(comment);
  call.Flags = *flags;
  call.FileFlags.assign(flags, flags + count);
  call.Options = options;
  return Play(call);
}

Long SCC_CALL SccDiff(void* context, WindowHandle window, const char* name, Long flags, void* options) {
  ScriptedCall call = Called("SccDiff", context, window, {name});
  call.Flags = flags;
  call.Options = options;
  // For a program that the script cannot reach: how long a difference takes.
  if (const char* time = std::getenv("SCRIPTED_DIFF_MS"))
    std::this_thread::sleep_for(std::chrono::milliseconds(std::atoi(time)));
  return Play(call, script.Differing.contains(name) ? SCC_I_FILEDIFFERS : SCC_OK);
}

Long SCC_CALL SccProperties(void* context, WindowHandle window, const char* name) {
  return Play(Called("SccProperties", context, window, {name}));
}

Long SCC_CALL SccRename(void* context, WindowHandle window, const char* name, const char* newName) {
  return Play(Called("SccRename", context, window, {name, newName}));
}

Long SCC_CALL SccRunScc(void* context, WindowHandle window, Long count, const char** names) {
  ScriptedCall call = Called("SccRunScc", context, window);
  if (names != nullptr) TakeFiles(call, count, names);
  return Play(call);
}

Long SCC_CALL SccGetCommandOptions(void* context, WindowHandle window, SCCCommand command, void** options) {
  ScriptedCall call = Called("SccGetCommandOptions", context, window);
  call.Command = command;
  call.Options = options;
  if (options != nullptr) *options = script.AdvancedBlock;
  return Play(call, options == nullptr && script.Advanced.contains(command) ? SCC_I_ADV_SUPPORT : SCC_OK);
}

Long SCC_CALL SccGetEvents(void* context, char* name, Long* status, Long* remaining) {
  PutText(name, std::string(), SCC_LOCALPATH_SIZE + 1);
  PutWord(status, 0);
  PutWord(remaining, 0);
  return Play(Called("SccGetEvents", context));
}

Long SCC_CALL SccAddFromScc(void* context, WindowHandle window, Long* count, const char*** names) {
  PutWord(count, 0);
  *names = nullptr;
  return Play(Called("SccAddFromScc", context, window));
}

}  // namespace kestrel
