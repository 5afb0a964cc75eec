// The 23 exported functions.  entry_arguments.def defines how each is forwarded; this file adds the handling of contexts,
// records the state to be restored after a restart, and answers calls that need no process.
#include "isolation/RemoteCall.h"

namespace kestrel::isolation {

using namespace scc;

namespace {

#define SCC_ENTRY_ARGUMENTS(name, ...) \
  using name##Call = RemoteCall<EntryPoint::name __VA_OPT__(, ) __VA_ARGS__>;
using namespace client;
#include "isolation/entry_arguments.def"
#undef SCC_ENTRY_ARGUMENTS

/// Made for a call before SccInitialize; becomes the first context.
ProviderProxy* earlyProxy = nullptr;

/// Reads a text from a client's buffer of at least `size` bytes.
std::string TextIn(const char* buffer, std::size_t size) {
  return buffer != nullptr ? std::string(buffer, strnlen(buffer, size)) : std::string();
}

Long Initialize(void** context, WindowHandle window, const char* caller, char* sccName, Long* capabilities,
                char* auxPathLabel, Long* checkOutCommentLength, Long* commentLength) {
  if (context == nullptr) return SCC_E_INITIALIZEFAILED;
  ProviderProxy& proxy = *(earlyProxy != nullptr ? std::exchange(earlyProxy, nullptr) : new ProviderProxy);
  *context = &proxy;  // also when the call fails: the next one retries
  proxy.Caller = caller != nullptr ? caller : "";
  proxy.HasAddInBuffers = proxy.Caller == kAddInCaller;
  const Long result = SccInitializeCall::Forward(&proxy, context, window, caller, sccName, capabilities,
                                                 auxPathLabel, checkOutCommentLength, commentLength);
  proxy.Initialized = true;
  proxy.Name = TextIn(sccName, SCC_NAME_SIZE);
  return result;
}

Long Uninitialize(void* context) {
  const Long result = SccUninitializeCall::ForwardIfRunning(context, context);
  auto* proxy = ProviderProxy::FromContext(context);
  if (proxy == nullptr || result == SCC_E_OPNOTPERFORMED) return result;
  proxy->End();
  delete proxy;
  return result;
}

Long SetOption(void* context, Long option, Long value) {
  // The values are pointers, which mean nothing in the other process.
  if (option == SCC_OPT_USERDATA || option == SCC_OPT_NAMECHANGEPFN) return SCC_E_OPNOTSUPPORTED;
  const Long result = SccSetOptionCall::Forward(context, context, option, value);
  if (auto* proxy = ProviderProxy::FromContext(context); proxy != nullptr && result >= 0)
    proxy->OptionValues[option] = value;
  return result;
}

Long OpenProject(void* context, WindowHandle window, char* user, char* projectName, const char* localPath,
                 char* auxPath, const char* comment, TTextOutProc textOut, Long flags) {
  auto* proxy = ProviderProxy::FromContext(context);
  if (proxy != nullptr) {
    const ProviderProxy::CallLock turn(*proxy);
    if (!turn) return SCC_E_OPNOTPERFORMED;
    proxy->SetTextOut(textOut);
  }
  const Long result = SccOpenProjectCall::Forward(context, context, window, user, projectName, localPath,
                                                  auxPath, comment, textOut, flags);
  if (proxy != nullptr && result >= 0)
    proxy->Opened = OpenedProject{TextIn(user, SCC_USER_SIZE), TextIn(projectName, SCC_PRJPATH_SIZE),
                                  localPath != nullptr ? localPath : "", TextIn(auxPath, SCC_PRJPATH_SIZE),
                                  (flags & ~SCC_OP_CREATEIFNEW) | SCC_OP_SILENTOPEN};
  return result;
}

Long CloseProject(void* context) {
  const Long result = SccCloseProjectCall::ForwardIfRunning(context, context);
  if (auto* proxy = ProviderProxy::FromContext(context); proxy != nullptr && result != SCC_E_OPNOTPERFORMED) {
    proxy->Opened.reset();
    proxy->ClearTextOut();
  }
  return result;
}

/// The user waits for its window, mostly before a project is open and with it the callback for text.
Long GetProjPath(void* context, WindowHandle window, char* user, char* projectName, char* localPath,
                 char* auxPath, Bool allowChangePath, Bool* isNew) {
  const Long result = SccGetProjPathCall::Forward(context, context, window, user, projectName, localPath,
                                                  auxPath, allowChangePath, isNew);
  if (auto* proxy = ProviderProxy::FromContext(context)) proxy->ShowQueued();
  return result;
}

Long GetEvents(void* context, char* name, Long* status, Long* remaining) {
  // Clients poll this function: it does not start a process.
  if (name != nullptr) *name = '\0';
  if (remaining != nullptr) *remaining = 0;
  return SccGetEventsCall::ForwardIfRunning(context, context, name, status, remaining);
}

Long ProviderVersion() {
  if (ProviderProxy::Any() == nullptr) earlyProxy = new ProviderProxy;
  return SccGetVersionCall::Forward(nullptr);
}

}  // namespace

Long RestoreProvider(ProviderProxy& proxy) {
  std::vector<char> user(kAddInTextSize), project(kAddInTextSize), aux(kAddInTextSize);
  void* context = nullptr;
  Long capabilities = 0, checkOutCommentLength = 0, commentLength = 0;
  const Long initialized =
      SccInitializeCall::Invoke(proxy, &context, nullptr, proxy.Caller.c_str(), user.data(), &capabilities,
                                aux.data(), &checkOutCommentLength, &commentLength);
  if (initialized < 0) return initialized;
  for (const auto& [option, value] : proxy.OptionValues)
    SccSetOptionCall::Invoke(proxy, &proxy, option, value);
  if (!proxy.Opened) return SCC_OK;
  const auto put = [](std::vector<char>& buffer, const std::string& text) {
    std::ranges::fill(buffer, '\0');
    std::ranges::copy(text, buffer.begin());
  };
  put(user, proxy.Opened->User);
  put(project, proxy.Opened->Name);
  put(aux, proxy.Opened->Aux);
  return SccOpenProjectCall::Invoke(proxy, &proxy, nullptr, user.data(), project.data(),
                                    proxy.Opened->Local.c_str(), aux.data(), nullptr, proxy.TextOut,
                                    proxy.Opened->Flags);
}

// Declared from the client's table, so that a wrong signature does not compile.
#define SccCheckOut SccCheckout
extern "C" {
#define SCC_ENTRY(variable, name, result, arguments) SCC_EXPORT result SCC_CALL variable arguments;
#include "scc/entry_points.def"
#undef SCC_ENTRY
}
#undef SccCheckOut

Long SCC_CALL SccInitialize(void** c, WindowHandle w, const char* caller, char* name, Long* caps, char* label,
                            Long* out, Long* in) {
  return Initialize(c, w, caller, name, caps, label, out, in);
}
Long SCC_CALL SccUninitialize(void* c) { return Uninitialize(c); }
Long SCC_CALL SccGetVersion() { return ProviderVersion(); }
Long SCC_CALL SccSetOption(void* c, Long option, Long value) { return SetOption(c, option, value); }
Long SCC_CALL SccOpenProject(void* c, WindowHandle w, char* user, char* name, const char* local, char* aux,
                             const char* comment, TTextOutProc text, Long flags) {
  return OpenProject(c, w, user, name, local, aux, comment, text, flags);
}
Long SCC_CALL SccCloseProject(void* c) { return CloseProject(c); }
Long SCC_CALL SccGetEvents(void* c, char* name, Long* status, Long* left) {
  return GetEvents(c, name, status, left);
}

// The others are only forwarded.
#define FORWARD(name, ...) return name##Call::Forward(c, c, __VA_ARGS__)
Long SCC_CALL SccAdd(void* c, WindowHandle w, Long n, const char** f, const char* t, Long* g, void* o) {
  FORWARD(SccAdd, w, n, f, t, g, o);
}
Long SCC_CALL SccAddFromScc(void* c, WindowHandle w, Long* n, const char*** f) {
  FORWARD(SccAddFromScc, w, n, f);
}
Long SCC_CALL SccCheckin(void* c, WindowHandle w, Long n, const char** f, const char* t, Long g, void* o) {
  FORWARD(SccCheckin, w, n, f, t, g, o);
}
Long SCC_CALL SccCheckout(void* c, WindowHandle w, Long n, const char** f, const char* t, Long g, void* o) {
  FORWARD(SccCheckout, w, n, f, t, g, o);
}
Long SCC_CALL SccDiff(void* c, WindowHandle w, const char* f, Long g, void* o) {
  FORWARD(SccDiff, w, f, g, o);
}
Long SCC_CALL SccGet(void* c, WindowHandle w, Long n, const char** f, Long g, void* o) {
  FORWARD(SccGet, w, n, f, g, o);
}
Long SCC_CALL SccGetCommandOptions(void* c, WindowHandle w, SCCCommand i, void** o) {
  FORWARD(SccGetCommandOptions, w, i, o);
}
Long SCC_CALL SccGetProjPath(void* c, WindowHandle w, char* u, char* p, char* l, char* a, Bool m, Bool* n) {
  return GetProjPath(c, w, u, p, l, a, m, n);
}
Long SCC_CALL SccHistory(void* c, WindowHandle w, Long n, const char** f, Long g, void* o) {
  FORWARD(SccHistory, w, n, f, g, o);
}
Long SCC_CALL SccPopulateList(void* c, SCCCommand i, Long n, const char** f, TPopListFunc p, void* d, Long* s,
                              Long g) {
  FORWARD(SccPopulateList, i, n, f, p, d, s, g);
}
Long SCC_CALL SccProperties(void* c, WindowHandle w, const char* f) { FORWARD(SccProperties, w, f); }
Long SCC_CALL SccQueryInfo(void* c, Long n, const char** f, Long* s) { FORWARD(SccQueryInfo, n, f, s); }
Long SCC_CALL SccRemove(void* c, WindowHandle w, Long n, const char** f, const char* t, Long g, void* o) {
  FORWARD(SccRemove, w, n, f, t, g, o);
}
Long SCC_CALL SccRename(void* c, WindowHandle w, const char* f, const char* t) {
  FORWARD(SccRename, w, f, t);
}
Long SCC_CALL SccRunScc(void* c, WindowHandle w, Long n, const char** f) { FORWARD(SccRunScc, w, n, f); }
Long SCC_CALL SccUncheckout(void* c, WindowHandle w, Long n, const char** f, Long g, void* o) {
  FORWARD(SccUncheckout, w, n, f, g, o);
}

}  // namespace kestrel::isolation
