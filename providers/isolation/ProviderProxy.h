// Stands for one provider context of the client: runs its calls in the provider's process, and restarts that process with
// the state that the client had set up.
#pragma once

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "isolation/HostConnection.h"
#include "isolation/OptionsTable.h"

namespace kestrel::isolation {

/// A call could not be made or did not return; what() is a sentence for the user.
struct CallFailed : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Arguments for opening the project again after a restart.
struct OpenedProject {
  std::string User, Name, Local, Aux;
  scc::Long Flags = 0;
};

class ProviderProxy {
 public:
  ProviderProxy();
  ~ProviderProxy();
  ProviderProxy(const ProviderProxy&) = delete;
  ProviderProxy& operator=(const ProviderProxy&) = delete;

  /// Returns the proxy that the client has as `context`; null for any other pointer.
  static ProviderProxy* FromContext(void* context);

  /// Returns any proxy, for calls without a context; null if there is none.
  static ProviderProxy* Any();

  /// Serialises calls.  Other threads wait; a nested call of the same thread (from a window or a callback) is refused, and
  /// the lock is then false.
  class CallLock {
   public:
    explicit CallLock(ProviderProxy& proxy);
    ~CallLock();
    CallLock(const CallLock&) = delete;
    CallLock& operator=(const CallLock&) = delete;
    explicit operator bool() const { return granted_; }

   private:
    ProviderProxy& proxy_;
    bool granted_;
  };

  /// Starts a process if none is running and restores its state.  Throws CallFailed.
  void EnsureRunning();
  /// Whether a process is running; does not start one.
  bool IsRunning();
  /// Executes a call in the running process and returns the body of its answer, of at most `answerLimit` bytes.  Throws
  /// CallFailed.
  std::string Execute(EntryPoint entry, const std::string& body, std::size_t answerLimit);
  /// Reports that the provider wrote beyond a buffer of the client.
  void ReportOverrun();
  void ReportException(const std::string& what);
  /// Ends the process because its answer is invalid; returns the sentence for the user.
  std::string FailCall(const std::string& why);
  /// Ends the process in good order; does not wait for it.
  void End();
  /// Sends a message to the client; queued while the client has no callback for text.
  void Report(scc::MessageKind kind, const std::string& text);
  /// Sets the callback for text of the project that is being opened, and sends it the queued messages.
  void SetTextOut(scc::TTextOutProc textOut);
  /// Queues messages from now on, as the project is closed.  The provider may still write to the callback.
  void ClearTextOut() { listening_ = false; }
  /// Shows the queued messages in a box, if the program has windows.
  void ShowQueued();
  /// The provider's display name.
  std::string ProviderName() const;

  // Used by the arguments of the current call.
  std::uint64_t Context = 0;     ///< the provider's context, a pointer of its process
  std::uint64_t Owner = 0;       ///< the client's window that owns the provider's, see WindowId.h
  bool HasAddInBuffers = false;  ///< the client is the add-in, see BufferSizes.h
  scc::Long Count = 0;           ///< number of files
  OptionsTable Options;
  scc::Long* ReturnedCount = nullptr;         ///< the client's count of SccAddFromScc, during the call
  NameList Returned;                          ///< names that the provider returned from SccAddFromScc...
  std::vector<const char*> ReturnedPointers;  ///< ...and the array of them that the client got
  scc::TTextOutProc TextOut = nullptr;
  scc::TPopListFunc Populate = nullptr;
  void* CallerData = nullptr;

  // Restored after a restart.
  bool Initialized = false;  ///< SccInitialize was called, with any result
  std::string Caller, Name;
  std::map<scc::Long, scc::Long> OptionValues;
  std::optional<OpenedProject> Opened;
  bool Muted = false;  ///< messages of the provider are dropped

 private:
  void Start();
  void RestoreState();
  bool Step(std::chrono::milliseconds wait, std::size_t answerLimit);
  bool HandleFrame(const Frame& frame);
  scc::Long ForwardMessage(const std::string& line);
  scc::Long ForwardListItem(const std::string& item);
  bool ShowsLiveWindow() const;
  std::string AwaitAnswer(const char* call, std::size_t answerLimit);
  std::string DescribeFailure(const char* call);

  ProxyConfig config_;
  std::unique_ptr<HostConnection> connection_;
  bool stopped_ = false;
  std::string unloadable_;
  bool listening_ = false;
  std::string lastReported_;
  const char* call_ = "";
  int fruitlessStarts_ = 0;  // consecutive processes that ended before they completed a call
  std::optional<std::string> answer_;
  std::string failure_;
  std::uint32_t windows_ = 0;
  std::chrono::steady_clock::time_point windowsReported_;
  std::string lastLine_;
  std::vector<std::pair<scc::MessageKind, std::string>> queued_;
  std::mutex busy_;
  std::atomic<std::thread::id> owner_;
};

/// Initialises a started process, sets its options and opens the project again.  Returns the first failure of the provider,
/// otherwise SCC_OK.  Throws CallFailed.
scc::Long RestoreProvider(ProviderProxy& proxy);

}  // namespace kestrel::isolation
