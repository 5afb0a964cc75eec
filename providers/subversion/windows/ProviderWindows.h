// The provider's windows as its entry points call them.  Each is modal and runs on the user interface thread; each
// throws Failure, and SCC_E_NONSPECIFICERROR when this process shows no windows.
#pragma once

#include <string>

#include "subversion/svn/Login.h"
#include "subversion/svn/ProviderContext.h"
#include "subversion/svn/Question.h"

namespace kestrel::svnscc {

/// Throws Failure (SCC_E_NONSPECIFICERROR) unless this thread may show windows.
void RequireWindows();

/// The file in the repository beside the local one.  SCC_OK when they are the same, else SCC_I_FILEDIFFERS; `flags` are
/// those of SccDiff.
scc::Long ShowDifferences(ProviderContext& context, scc::WindowHandle parent, const char* name,
                          scc::Long flags);
/// The history of the first file or folder.  SCC_I_RELOADFILE when the user had the local file replaced.
scc::Long ShowHistory(ProviderContext& context, scc::WindowHandle parent, Names names);
/// All there is to tell of a file or folder.
scc::Long ShowProperties(ProviderContext& context, scc::WindowHandle parent, const char* name);
/// The provider's own application, at the first file if one is named.  Works without an open project, too.
scc::Long RunBrowser(ProviderContext& context, scc::WindowHandle parent, Names names);
/// SccGetCommandOptions: answers a probe (`options` null), or lets the user choose and stores the block.
scc::Long AskCommandOptions(ProviderContext& context, scc::WindowHandle parent, scc::SCCCommand command,
                            void** options);
/// A LoginPrompt with a window of its own.  Nothing is asked, and nothing thrown, where none can be shown.
std::optional<Login> AskLogin(const LoginQuestion& question);
/// A QuestionPrompt with a window of its own.
std::optional<bool> ShowQuestion(scc::WindowHandle parent, const Question& question);
/// Gets files that only the repository has, as the user chooses; `names` receives them.  `folder` (may be null) limits
/// the choice to what is below it.
scc::Long ChooseMissingFiles(ProviderContext& context, scc::WindowHandle parent, const char* folder,
                             std::vector<std::string>& names);

}  // namespace kestrel::svnscc
