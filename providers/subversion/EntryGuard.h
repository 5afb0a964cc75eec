// What stands around every entry point.
#pragma once

#include "Session.h"
#include "SubversionSccStrings.h"
#include "WindowStrings.h"
#include "WorkingCopyLocks.h"

namespace svnscc {

/// No exception leaves an entry point: it becomes a sentence for the user and a code for the client.
template <class Body>
scc::Long Guard(void* context, Body&& body) noexcept {
  auto* session = static_cast<Session*>(context);
  if (session == nullptr) return scc::SCC_E_INITIALIZEFAILED;
  const OptionBlocks::Call call(session->Options());
  try {
    return body(*session);
  } catch (const Failure& failure) {
    if (failure.Result() == scc::SCC_I_OPERATIONCANCELED)
      session->Out().Info(sCancelled);
    else
      session->Out().Error(AsSentence(failure.what()));
    return failure.Result();
  } catch (const std::exception& exception) {
    session->Out().Error(AsSentence(exception.what()));
  } catch (...) {
    session->Out().Error(sUnknownFault);
  }
  return scc::SCC_E_NONSPECIFICERROR;
}

template <class Body>
scc::Long GuardOpen(void* context, Body&& body) noexcept {
  return Guard(context, [&](Session& session) -> scc::Long {
    if (!session.IsOpen()) return scc::SCC_E_PROJNOTOPEN;
    const UseMark::Work work(session.Mark());
    return body(session);
  });
}

/// The same for a list of files.
template <class Body>
scc::Long GuardFiles(void* context, scc::Long count, const char** names, Body&& body) noexcept {
  return GuardOpen(context, [&](Session& session) -> scc::Long {
    if (count < 0 || (count > 0 && names == nullptr)) return scc::SCC_E_NONSPECIFICERROR;
    return body(session, Names(names, static_cast<std::size_t>(count)));
  });
}

/// The user can cancel while this lives.
class RunningCommand {
 public:
  explicit RunningCommand(Session& session) : session_(session) { session_.BeginCommand(); }
  RunningCommand(const RunningCommand&) = delete;
  RunningCommand& operator=(const RunningCommand&) = delete;
  ~RunningCommand() { session_.EndCommand(); }

 private:
  Session& session_;
};

/// The same for a command that can take long and changes the files: the user can cancel it, and what it did to them
/// becomes events.
template <class Body>
scc::Long GuardCommand(void* context, scc::Long count, const char** names, Body&& body) noexcept {
  return GuardFiles(context, count, names, [&](Session& session, Names files) -> scc::Long {
    const scc::Long result = [&] {
      const RunningCommand running(session);
      return RunCommand(session, [&] { return body(session, files); });
    }();
    if (result == scc::SCC_OK) NoteCommand(session, files);
    return result;
  });
}

}  // namespace svnscc
