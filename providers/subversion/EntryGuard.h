// What stands around every entry point.
#pragma once

#include "Session.h"
#include "SubversionSccStrings.h"

namespace svnscc {

/// No exception leaves an entry point: it becomes a sentence for the user and a code for the client.
template <class Body>
scc::Long Guard(void* context, Body&& body) noexcept {
  auto* session = static_cast<Session*>(context);
  if (session == nullptr) return scc::SCC_E_INITIALIZEFAILED;
  try {
    return body(*session);
  } catch (const Failure& failure) {
    session->Out().Error(failure.what());
    return failure.Result();
  } catch (const std::exception& exception) {
    session->Out().Error(exception.what());
  } catch (...) {
    session->Out().Error(sUnknownFault);
  }
  return scc::SCC_E_NONSPECIFICERROR;
}

template <class Body>
scc::Long GuardOpen(void* context, Body&& body) noexcept {
  return Guard(context, [&](Session& session) -> scc::Long {
    return session.IsOpen() ? body(session) : static_cast<scc::Long>(scc::SCC_E_PROJNOTOPEN);
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

}  // namespace svnscc
