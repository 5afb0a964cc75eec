// The exported functions.  They only convert: arguments to types, exceptions to return codes.
#include <algorithm>
#include <cstring>

#include "subversion/EntryPointStrings.h"
#include "subversion/EntryPointWrapper.h"
#include "subversion/commands/Commands.h"
#include "subversion/commands/Populate.h"
#include "subversion/project/OpenProject.h"
#include "subversion/project/ProjectPrompt.h"
#include "subversion/windows/ProviderWindows.h"

namespace kestrel::svnscc {

using namespace scc;

namespace {

constexpr Long kVersion = 0x00010001;
constexpr Long kLongestComment = 0x7FFF;
constexpr Dword kCapabilities =
    SCC_CAP_REMOVE | SCC_CAP_QUERYINFO | SCC_CAP_GETPROJPATH | SCC_CAP_TEXTOUT | SCC_CAP_COMMENTCHECKOUT |
    SCC_CAP_COMMENTCHECKIN | SCC_CAP_COMMENTADD | SCC_CAP_COMMENTREMOVE | SCC_CAP_COMMENTPROJECT |
    SCC_CAP_POPULATELIST | SCC_CAP_DIFF | SCC_CAP_HISTORY | SCC_CAP_PROPERTIES | SCC_CAP_RUNSCC |
    SCC_CAP_GETCOMMANDOPTIONS | SCC_CAP_RENAME | SCC_CAP_GETEVENTS | SCC_CAP_ADDFROMSCC | SCC_CAP_DIFFALWAYS |
    SCC_CAP_IGNORECASE | SCC_CAP_IGNORESPACE;

std::string Text(const char* text) { return text != nullptr ? text : ""; }

/// Writes `text`, truncated, into a client's buffer of `size` bytes, which may be null.
void Return(char* buffer, const std::string& text, std::size_t size) {
  if (buffer == nullptr) return;
  const auto cut = TruncateUtf8(text, size - 1);
  std::memcpy(buffer, cut.data(), cut.size());
  buffer[cut.size()] = '\0';
}

AfterCommit AfterFlags(Long flags) {
  return (flags & SCC_KEEP_CHECKEDOUT) != 0 ? AfterCommit::KeepCheckedOut : AfterCommit::Release;
}

}  // namespace

extern "C" {

// ------------------------------------------------------------------------------------------------ life

SCC_EXPORT Long SCC_CALL SccGetVersion() { return kVersion; }

SCC_EXPORT Long SCC_CALL SccInitialize(void** handle, WindowHandle, const char*, char* sccName,
                                       Long* capabilities, char* auxPathLabel, Long* checkOutCommentLength,
                                       Long* commentLength) {
  if (handle == nullptr) return SCC_E_INITIALIZEFAILED;
  *handle = nullptr;
  try {
    EnsureRuntime();
    SetLoginPrompt(AskLogin);
    SetQuestionPrompt(ShowQuestion);
    *handle = new ProviderContext;
  } catch (...) {  // there is no text-out callback yet
    return SCC_E_INITIALIZEFAILED;
  }
  Return(sccName, sProviderName, SCC_NAME_SIZE);
  Return(auxPathLabel, sAuxPathLabel, SCC_AUXLABEL_SIZE);
  if (capabilities != nullptr) *capabilities = static_cast<Long>(kCapabilities);
  if (checkOutCommentLength != nullptr) *checkOutCommentLength = kLongestComment;
  if (commentLength != nullptr) *commentLength = kLongestComment;
  return SCC_OK;
}

SCC_EXPORT Long SCC_CALL SccUninitialize(void* handle) {
  delete static_cast<ProviderContext*>(handle);
  return SCC_OK;
}

SCC_EXPORT Long SCC_CALL SccSetOption(void* handle, Long option, Long value) {
  return RunEntryPoint(handle, [&](ProviderContext& context) -> Long {
    switch (option) {
      case SCC_OPT_EVENTQUEUE:
        context.Events().Enable(value != 0);
        return SCC_OK;
      case SCC_OPT_HASCANCELMODE:
        context.ClientCancels = value != 0;
        return SCC_OK;
      case SCC_OPT_SCCCHECKOUTONLY:  // none of the provider's windows checks files out
        return SCC_OK;
      case SCC_OPT_SHARESUBPROJ:
        context.SharesSubprojects = true;
        return SCC_I_SHARESUBPROJOK;
      default:  // the other options are pointers, which do not fit into 32 bits
        return SCC_E_OPNOTSUPPORTED;
    }
  });
}

// ------------------------------------------------------------------------------------------------ projects

SCC_EXPORT Long SCC_CALL SccGetProjPath(void* handle, WindowHandle window, char* user, char* projectName,
                                        char* localPath, char* auxPath, Bool, Bool* isNew) {
  return RunEntryPoint(handle, [&](ProviderContext& context) -> Long {
    ProjectRequest request;
    request.User = Text(user);
    request.ProjectName = Text(projectName);
    request.Repository = Text(auxPath);
    request.LocalFolder = Text(localPath);
    request.MayCreate = isNew != nullptr && *isNew != 0;
    const Long result = PromptForProject(context, window, request);
    Return(user, request.User, SCC_USER_SIZE);
    if (result != SCC_OK) return result;
    Return(projectName, request.ProjectName, SCC_PRJPATH_SIZE);
    Return(auxPath, request.Repository, SCC_PRJPATH_SIZE);
    if (isNew != nullptr) *isNew = request.IsNew ? 1 : 0;
    return SCC_OK;
  });
}

SCC_EXPORT Long SCC_CALL SccOpenProject(void* handle, WindowHandle window, char* user, char* projectName,
                                        const char* localPath, char* auxPath, const char* comment,
                                        TTextOutProc textOut, Long flags) {
  bool opened = false;
  bool busy = false;
  const Long result = RunEntryPoint(handle, [&](ProviderContext& context) -> Long {
    busy = context.IsOpen();
    if (busy) return SCC_E_PROJECTALREADYOPEN;
    context.Out().Attach(textOut);
    ProjectNames names{Text(user), Text(projectName), Text(auxPath), Text(localPath), Text(comment)};
    const auto given = names;
    const bool silent = (flags & SCC_OP_SILENTOPEN) != 0;
    OpenProject(
        context, names,
        {.MayCreate = !silent && (flags & SCC_OP_CREATEIFNEW) != 0, .Silent = silent, .Parent = window});
    // Only what the client left empty is filled in.
    if (given.User.empty()) Return(user, names.User, SCC_USER_SIZE);
    if (given.ProjectName.empty()) Return(projectName, names.ProjectName, SCC_PRJPATH_SIZE);
    if (given.Repository.empty()) Return(auxPath, names.Repository, SCC_PRJPATH_SIZE);
    opened = true;
    return SCC_OK;
  });
  if (!opened && !busy && handle != nullptr) static_cast<ProviderContext*>(handle)->Close();
  return result;
}

SCC_EXPORT Long SCC_CALL SccCloseProject(void* handle) {
  return RunWithProject(handle, [](ProviderContext& context) -> Long {
    context.Close();
    return SCC_OK;
  });
}

// ------------------------------------------------------------------------------------------------ status

SCC_EXPORT Long SCC_CALL SccQueryInfo(void* handle, Long count, const char** names, Long* statuses) {
  if (statuses != nullptr && count > 0)
    std::fill_n(statuses, count, static_cast<Long>(SCC_STATUS_NOTCONTROLLED));
  return RunWithFiles(handle, count, names, [&](ProviderContext& context, Names files) -> Long {
    if (files.empty()) return SCC_OK;
    if (statuses == nullptr) return SCC_E_NONSPECIFICERROR;
    const StatusTable& table = WalkProject(context, Answer::MayBeRecent);
    for (std::size_t i = 0; i < files.size(); ++i) {
      const std::string path = context.InsidePath(files[i]);
      statuses[i] = table.Of(path).Bits;
      if (!path.empty() && table.Result >= 0) context.Events().MarkReported(path, statuses[i]);
    }
    return table.Result;
  });
}

SCC_EXPORT Long SCC_CALL SccPopulateList(void* handle, SCCCommand command, Long count, const char** names,
                                         TPopListFunc populate, void* callerData, Long* statuses,
                                         Long flags) {
  return RunWithFiles(handle, count, names, [&](ProviderContext& context, Names files) {
    context.Options().Reset();
    const auto named = (flags & SCC_PL_DIR) != 0 ? Named::Folders : Named::Files;
    return Populate(context, command, files, named, populate, callerData, statuses);
  });
}

SCC_EXPORT Long SCC_CALL SccDiff(void* handle, WindowHandle window, const char* name, Long flags, void*) {
  return RunWithProject(handle, [&](ProviderContext& context) -> Long {
    return (flags & SCC_DIFF_QUICK_DIFF) != 0 ? QuickDiff(context, name, flags)
                                              : ShowDifferences(context, window, name, flags);
  });
}

// ------------------------------------------------------------------------------------------------ commands

SCC_EXPORT Long SCC_CALL SccGet(void* handle, WindowHandle, Long count, const char** names, Long flags,
                                void* options) {
  return RunFileCommand(handle, count, names, [&](ProviderContext& context, Names files) {
    const auto chosen = context.Options().Use(options, SCC_COMMAND_GET);
    if ((flags & SCC_GET_ALL) == 0) return GetFiles(context, files, chosen);
    const bool recursive = (flags & SCC_GET_RECURSIVE) != 0;
    return GetFolders(context, files, recursive ? Below::Everything : Below::FilesOnly, chosen);
  });
}

SCC_EXPORT Long SCC_CALL SccCheckout(void* handle, WindowHandle, Long count, const char** names,
                                     const char* comment, Long, void* options) {
  return RunFileCommand(handle, count, names, [&](ProviderContext& context, Names files) {
    return CheckOut(context, files, Text(comment), context.Options().Use(options, SCC_COMMAND_CHECKOUT));
  });
}

SCC_EXPORT Long SCC_CALL SccUncheckout(void* handle, WindowHandle, Long count, const char** names, Long,
                                       void*) {
  return RunFileCommand(handle, count, names,
                        [](ProviderContext& context, Names files) { return UndoCheckOut(context, files); });
}

SCC_EXPORT Long SCC_CALL SccCheckin(void* handle, WindowHandle, Long count, const char** names,
                                    const char* comment, Long flags, void* options) {
  return RunFileCommand(handle, count, names, [&](ProviderContext& context, Names files) {
    return CheckIn(context, files, Text(comment), AfterFlags(flags),
                   context.Options().Use(options, SCC_COMMAND_CHECKIN));
  });
}

// Clients pass one flag word whatever the number of files, so only the first is read.
SCC_EXPORT Long SCC_CALL SccAdd(void* handle, WindowHandle, Long count, const char** names,
                                const char* comment, Long* flags, void* options) {
  return RunFileCommand(handle, count, names, [&](ProviderContext& context, Names files) {
    const Long word = flags != nullptr ? *flags : 0;
    return Add(context, files, Text(comment), word, AfterFlags(word),
               context.Options().Use(options, SCC_COMMAND_ADD));
  });
}

SCC_EXPORT Long SCC_CALL SccRemove(void* handle, WindowHandle, Long count, const char** names,
                                   const char* comment, Long, void*) {
  return RunFileCommand(handle, count, names, [&](ProviderContext& context, Names files) {
    return Remove(context, files, Text(comment));
  });
}

SCC_EXPORT Long SCC_CALL SccRename(void* handle, WindowHandle, const char* name, const char* newName) {
  return RunWithProject(handle, [&](ProviderContext& context) { return Rename(context, name, newName); });
}

// Contacts no repository and reads no working copy.
SCC_EXPORT Long SCC_CALL SccGetEvents(void* handle, char* name, Long* status, Long* remaining) {
  constexpr std::size_t kSize = SCC_LOCALPATH_SIZE;
  Return(name, "", kSize);
  if (remaining != nullptr) *remaining = 0;
  return RunEntryPoint(handle, [&](ProviderContext& context) -> Long {
    auto event = context.Events().Pop();
    while (event && NativeName(event->Path).size() >= kSize)
      event = context.Events().Pop();  // a truncated name would be that of another file
    if (!event) return SCC_OK;
    Return(name, NativeName(event->Path), kSize);
    if (status != nullptr) *status = event->Bits;
    if (remaining != nullptr) *remaining = static_cast<Long>(context.Events().Count());
    return SCC_OK;
  });
}

}  // extern "C"

}  // namespace kestrel::svnscc
