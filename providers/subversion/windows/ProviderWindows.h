// The provider's windows as functions.  They are modal, belong to the user interface thread, and throw Failure:
// SCC_E_NONSPECIFICERROR if this process shows no windows.
#pragma once

#include <string>

#include "subversion/svn/Login.h"
#include "subversion/svn/ProviderContext.h"
#include "subversion/svn/Question.h"

namespace kestrel::svnscc {

/// Throws Failure (SCC_E_NONSPECIFICERROR) unless this thread may show windows.
void RequireWindows();

/// Compares a local file with the newest revision.  `flags` are those of SccDiff.  Returns SCC_OK if they are the same, else
/// SCC_I_FILEDIFFERS.
scc::Long ShowDifferences(ProviderContext& context, scc::WindowHandle parent, const char* name,
                          scc::Long flags);
/// The history of the first file or folder.  Returns SCC_I_RELOADFILE if the local file was replaced.
scc::Long ShowHistory(ProviderContext& context, scc::WindowHandle parent, Names names);
/// The properties of a file or folder.
scc::Long ShowProperties(ProviderContext& context, scc::WindowHandle parent, const char* name);
/// The repository browser, at the first file if there is one.  Needs no open project.
scc::Long RunBrowser(ProviderContext& context, scc::WindowHandle parent, Names names);
/// SccGetCommandOptions.  With a null `options` only returns whether the command has options; else shows the dialog and
/// stores the block in `options`.
scc::Long AskCommandOptions(ProviderContext& context, scc::WindowHandle parent, scc::SCCCommand command,
                            void** options);
/// A LoginPrompt.  Returns nullopt if no window can be shown; throws no Failure.
std::optional<Login> AskLogin(const LoginQuestion& question);
/// A QuestionPrompt.
std::optional<bool> ShowQuestion(scc::WindowHandle parent, const Question& question);
/// Lets the user choose from the files that are not on disk, gets them, and returns them in `names`.  `folder` (may be null)
/// limits the choice to the files below it.
scc::Long ChooseMissingFiles(ProviderContext& context, scc::WindowHandle parent, const char* folder,
                             std::vector<std::string>& names);

}  // namespace kestrel::svnscc
