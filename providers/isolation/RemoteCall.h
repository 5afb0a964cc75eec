// A call of one entry point in the provider's process, built from the kinds of its arguments.
#pragma once

#include "isolation/ClientArguments.h"

namespace kestrel::isolation {

template <EntryPoint Called, class... Kinds>
struct RemoteCall {
  /// Calls the running process.  Throws CallFailed.
  static scc::Long Invoke(ProviderProxy& proxy, typename Kinds::Arg... args) {
    FrameWriter call;
    call(static_cast<std::uint8_t>(Called));
    (Kinds::Write(proxy, call, args), ...);
    const auto body = proxy.Execute(Called, call.Body, (kSmallFrameSize + ... + Kinds::Limit(proxy)));
    try {
      FrameReader answer(body);
      NullableText thrown;
      bool faulted = false;
      scc::Long result = 0;
      answer(thrown, faulted, result);
      (Kinds::ReadResult(proxy, answer, args), ...);
      if (thrown.Present()) proxy.ReportException(thrown.Get());
      if (faulted) proxy.End();
      return result;
    } catch (const std::exception& error) {
      throw CallFailed(proxy.FailCall(error.what()));
    }
  }

  /// Calls on behalf of the client: starts a process if necessary, reports failures and returns a code for them.
  static scc::Long Forward(void* context, typename Kinds::Arg... args) {
    return RunLocked(context, [&](ProviderProxy& proxy) {
      proxy.EnsureRunning();
      return Invoke(proxy, args...);
    });
  }

  /// The same, but returns SCC_OK without a call if no process is running.
  static scc::Long ForwardIfRunning(void* context, typename Kinds::Arg... args) {
    return RunLocked(context, [&](ProviderProxy& proxy) {
      return proxy.IsRunning() ? Invoke(proxy, args...) : scc::SCC_OK;
    });
  }

 private:
  template <class Action>
  static scc::Long RunLocked(void* context, Action action) {
    ProviderProxy* const proxy =
        context != nullptr ? ProviderProxy::FromContext(context) : ProviderProxy::Any();
    if (proxy == nullptr) return scc::SCC_E_NONSPECIFICERROR;
    const ProviderProxy::CallLock lock(*proxy);
    if (!lock) return scc::SCC_E_OPNOTPERFORMED;
    try {
      return action(*proxy);
    } catch (const std::exception& error) {
      proxy->Report(scc::SCC_MSG_ERROR, error.what());
      return scc::SCC_E_NONSPECIFICERROR;
    }
  }
};

}  // namespace kestrel::isolation
