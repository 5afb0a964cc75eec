// Wrappers that turn exceptions into SCC return codes.
#pragma once

#include "subversion/EntryPointStrings.h"
#include "subversion/svn/ConnectionWatch.h"
#include "subversion/svn/ProviderContext.h"
#include "subversion/svn/SvnStrings.h"
#include "subversion/svn/WorkingCopyLocks.h"

namespace kestrel::svnscc {

/// Runs `body(context)`.  An exception becomes a message for the user and a return code.
template <class Body>
scc::Long RunEntryPoint(void* handle, Body&& body) noexcept {
  auto* context = static_cast<ProviderContext*>(handle);
  if (context == nullptr) return scc::SCC_E_INITIALIZEFAILED;
  const OptionBlocks::Call call(context->Options());
  const ConnectionWatch watch;
  try {
    return body(*context);
  } catch (const Failure& failure) {
    if (failure.Result() == scc::SCC_I_OPERATIONCANCELED)
      context->Out().Info(sCancelled);
    else
      context->Out().Error(AsSentence(failure.what()));
    return failure.Result();
  } catch (const std::exception& exception) {
    context->Out().Error(AsSentence(exception.what()));
  } catch (...) {
    context->Out().Error(sUnknownFault);
  }
  return scc::SCC_E_NONSPECIFICERROR;
}

/// The same; SCC_E_PROJNOTOPEN without an open project, whose working copy is marked as in use meanwhile.
template <class Body>
scc::Long RunWithProject(void* handle, Body&& body) noexcept {
  return RunEntryPoint(handle, [&](ProviderContext& context) -> scc::Long {
    if (!context.IsOpen()) return scc::SCC_E_PROJNOTOPEN;
    const UseMarker::Work work(context.Mark());
    return body(context);
  });
}

/// The same for `body(context, names)`.
template <class Body>
scc::Long RunWithFiles(void* handle, scc::Long count, const char** names, Body&& body) noexcept {
  return RunWithProject(handle, [&](ProviderContext& context) -> scc::Long {
    if (count < 0 || (count > 0 && names == nullptr)) return scc::SCC_E_NONSPECIFICERROR;
    return body(context, Names(names, static_cast<std::size_t>(count)));
  });
}

/// Scoped: the user can cancel.
class RunningCommand {
 public:
  explicit RunningCommand(ProviderContext& context) : context_(context) { context_.BeginCommand(); }
  RunningCommand(const RunningCommand&) = delete;
  RunningCommand& operator=(const RunningCommand&) = delete;
  ~RunningCommand() { context_.EndCommand(); }

 private:
  ProviderContext& context_;
};

/// The same for a command that changes files and may take long: the user can cancel it, and status changes become events.
template <class Body>
scc::Long RunFileCommand(void* handle, scc::Long count, const char** names, Body&& body) noexcept {
  return RunWithFiles(handle, count, names, [&](ProviderContext& context, Names files) -> scc::Long {
    const scc::Long result = [&] {
      const RunningCommand running(context);
      return RunCommand(context, [&] { return body(context, files); });
    }();
    if (result == scc::SCC_OK) RecordCommandResult(context, files);
    return result;
  });
}

}  // namespace kestrel::svnscc
