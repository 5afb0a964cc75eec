// One context of the client: the provider's process, what it has to be told again after a restart, and the calls.
#pragma once

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "Child.h"
#include "Options.h"

namespace isolation {

/// The call did not come about or did not come back; its text is a sentence.
struct CallFailed : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The open project as it is opened again.
struct OpenedProject {
  std::string User, Name, Local, Aux;
  scc::Long Flags = 0;
};

class Session {
 public:
  Session();
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  /// The session behind a context; nullptr for anything else.
  static Session* Of(void* context);

  /// One of them, for calls without a context; nullptr when there is none.
  static Session* Any();

  /// One call at a time: another thread waits, the same thread (out of a window or a callback) does not get in.
  class Turn {
   public:
    explicit Turn(Session& session);
    ~Turn();
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    explicit operator bool() const { return granted_; }

   private:
    Session& session_;
    bool granted_;
  };

  /// A process that takes calls.  Starts one if there is none, and tells it what the last one was told.  Throws CallFailed.
  void Require();
  /// Whether a process is there, without starting one.
  bool IsAlive();
  /// Carries out a call; the answer's body.  Throws CallFailed.
  std::string Carry(Entry entry, const std::string& body, std::size_t answerLimit);
  /// The provider wrote further than the client's memory goes.
  void WarnOfOverrun();
  void SayThrown(const std::string& what);
  /// The answer made no sense: ends the process.  The sentence for it.
  std::string Condemn(const std::string& why);
  /// Ends the process in good order.
  void End();
  /// A line for the client's user; kept until a project is open when there is nobody yet to take it.
  void Say(scc::MessageKind kind, const std::string& text);
  /// The project has a callback for text: what is unsaid goes there, and all lines from now on.
  void Listen(scc::TTextOutProc textOut);
  /// The project is closed; the provider may still write to its callback.
  void StopListening() { listener_ = false; }
  /// What the user knows the provider by.
  std::string ProviderName() const;

  // What the arguments of a call need on their way.
  std::uint64_t Context = 0;  ///< the provider's own
  bool RoomIsKnown = false;   ///< the client is the add-in, whose buffers are larger than the API asks for
  scc::Long Count = 0;        ///< of the files of the call
  OptionsTable Options;
  scc::Long* HandedCount = nullptr;         ///< the client's, during the call
  NameList Handed;                          ///< names that the provider has handed out...
  std::vector<const char*> HandedPointers;  ///< ...and the array of them that the client has
  scc::TTextOutProc TextOut = nullptr;
  scc::TPopListFunc Populate = nullptr;
  void* CallerData = nullptr;

  // What is told again.
  bool Initialized = false;  ///< SccInitialize was called, whatever it answered
  std::string Caller, Name;
  std::map<scc::Long, scc::Long> SetOptions;
  std::optional<OpenedProject> Opened;
  bool Silent = false;  ///< the text of the provider is not wanted now

 private:
  void Start();
  void TellAgain();
  bool Step(std::chrono::milliseconds wait, std::size_t answerLimit);
  bool Take(const Frame& frame);
  scc::Long Pass(const std::string& line);
  scc::Long PassItem(const std::string& item);
  std::string Await(const char* call, std::size_t answerLimit);
  std::string SentenceOfEnd(const char* call);

  Place place_;
  std::unique_ptr<Child> child_;
  bool stopped_ = false;
  std::string unloadable_;
  bool listener_ = false;
  std::string said_;
  const char* call_ = "";
  int fruitless_ = 0;  // processes in a row that ended without having carried out a call
  std::optional<std::string> answer_;
  std::string failure_;
  std::uint32_t windows_ = 0;
  std::string lastLine_;
  std::vector<std::pair<scc::MessageKind, std::string>> unsaid_;
  std::mutex busy_;
  std::atomic<std::thread::id> owner_;
};

/// Initialises a started process and opens the project as the last one had it; what the reopening answered, 0 without a
/// project.  Throws CallFailed.
scc::Long Replay(Session& session);

}  // namespace isolation
