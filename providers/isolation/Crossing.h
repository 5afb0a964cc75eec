// How one entry point crosses: its kinds of arguments, one after the other, there and back.
#pragma once

#include "Client.h"

namespace isolation {

template <Entry Called, class... Kinds>
struct Crossing {
  /// With a process that is there.  Throws CallFailed.
  static scc::Long Carry(Session& session, typename Kinds::Arg... args) {
    Out call;
    call(static_cast<std::uint8_t>(Called));
    (Kinds::Give(session, call, args), ...);
    const auto body = session.Carry(Called, call.Body, (kSmallFrame + ... + Kinds::Limit(session)));
    try {
      In answer(body);
      MaybeText thrown;
      bool damaged = false;
      scc::Long result = 0;
      answer(thrown, damaged, result);
      (Kinds::Take(session, answer, args), ...);
      if (thrown.Present()) session.SayThrown(thrown.Get());
      if (damaged) session.End();
      return result;
    } catch (const std::exception& error) {
      throw CallFailed(session.Condemn(error.what()));
    }
  }

  /// For the client: starts a process where there is none, and turns failures into a code and a sentence.
  static scc::Long Forward(void* context, typename Kinds::Arg... args) {
    return InTurn(context, [&](Session& session) {
      session.Require();
      return Carry(session, args...);
    });
  }

  /// The same for what is done anyway when the process has ended.
  static scc::Long ForwardIfAlive(void* context, typename Kinds::Arg... args) {
    return InTurn(
        context, [&](Session& session) { return session.IsAlive() ? Carry(session, args...) : scc::SCC_OK; });
  }

 private:
  template <class Action>
  static scc::Long InTurn(void* context, Action action) {
    Session* const session = context != nullptr ? Session::Of(context) : Session::Any();
    if (session == nullptr) return scc::SCC_E_NONSPECIFICERROR;
    const Session::Turn turn(*session);
    if (!turn) return scc::SCC_E_OPNOTPERFORMED;
    try {
      return action(*session);
    } catch (const std::exception& error) {
      session->Say(scc::SCC_MSG_ERROR, error.what());
      return scc::SCC_E_NONSPECIFICERROR;
    }
  }
};

}  // namespace isolation
