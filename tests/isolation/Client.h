// A client of the API on the scripted provider, which runs in a process of its own.
#pragma once

#include <array>
#include <fstream>
#include <functional>
#include <map>
#include <utility>

#include "support/EntryPoints.h"
#include "support/Environment.h"
#include "support/TemporaryFolder.h"
#include "support/Testing.h"
#include "system/Library.h"
#include "system/System.h"

namespace kestrel::isolation {

using namespace scc;

inline std::vector<std::string> lines;  // the callback has no argument to find its owner by

class TIsolatedClient {
 public:
  explicit TIsolatedClient(const char* caller = "tests") : Caller(caller) { lines.clear(); }
  ~TIsolatedClient() {
    if (Context != nullptr) Scc.SccUninitialize(Context);
  }
  TIsolatedClient(const TIsolatedClient&) = delete;
  TIsolatedClient& operator=(const TIsolatedClient&) = delete;

  Long Initialize() {
    return Scc.SccInitialize(&Context, nullptr, Caller, Name.data(), &Words[0], Label.data(), &Words[1],
                             &Words[2]);
  }
  Long Open() {
    return Scc.SccOpenProject(Context, nullptr, User.data(), Project.data(), "/p", Aux.data(), nullptr,
                              TakeText, 1);
  }
  Long Status() { return Scc.SccQueryInfo(Context, 1, Names, Words.data()); }
  /// Calls the entry point of that name.
  Long Call(const std::string& entry);
  /// The provider will commit it in the next call of that entry point.
  void Arm(const std::string& entry, const std::string& fault) {
    std::ofstream(faults_) << entry << ' ' << fault;
  }

  const std::string& Faults() const { return faults_; }

  const EntryPoints Scc{RequireModule(ISOLATED_SCRIPTED)};  // stays loaded: it does so anyway
  const char* Caller;
  void* Context = nullptr;
  std::array<char, 5120> Name{}, Label{}, User{}, Project{}, Aux{}, Local{}, Event{};
  std::vector<Long> Words = std::vector<Long>(66'000);
  const char* Names[2] = {"/p/unit1.pas", nullptr};
  const char** Handed = nullptr;
  void* Options = nullptr;

 private:
  static Long SCC_CALL TakeText(const char* text, Dword) {
    lines.push_back(text != nullptr ? text : "");
    return SCC_MSG_RTN_OK;
  }
  TTemporaryFolder folder_;
  std::string faults_ = folder_ / "faults";
  TEnvironmentVariable variable_{"SCRIPTED_FAULTS", faults_.c_str()};
};

inline Long TIsolatedClient::Call(const std::string& entry) {
  const TPopListFunc goOn = [](void*, Bool, Long, const char*) -> Bool { return 1; };
  const std::map<std::string, std::function<Long()>> calls{
      {"SccInitialize", [&] { return Initialize(); }},
      {"SccUninitialize", [&] { return Scc.SccUninitialize(std::exchange(Context, nullptr)); }},
      {"SccGetVersion", [&] { return Scc.SccGetVersion(); }},
      {"SccOpenProject", [&] { return Open(); }},
      {"SccCloseProject", [&] { return Scc.SccCloseProject(Context); }},
      {"SccSetOption", [&] { return Scc.SccSetOption(Context, SCC_OPT_EVENTQUEUE, 1); }},
      {"SccGetProjPath",
       [&] {
         return Scc.SccGetProjPath(Context, nullptr, User.data(), Project.data(), Local.data(), Aux.data(), 0,
                                   Words.data());
       }},
      {"SccQueryInfo", [&] { return Status(); }},
      {"SccPopulateList",
       [&] {
         return Scc.SccPopulateList(Context, SCC_COMMAND_GET, 1, Names, goOn, nullptr, Words.data(), 0);
       }},
      {"SccGetEvents", [&] { return Scc.SccGetEvents(Context, Event.data(), &Words[0], &Words[1]); }},
      {"SccGet", [&] { return Scc.SccGet(Context, nullptr, 1, Names, 0, nullptr); }},
      {"SccCheckout", [&] { return Scc.SccCheckOut(Context, nullptr, 1, Names, "", 0, nullptr); }},
      {"SccUncheckout", [&] { return Scc.SccUncheckout(Context, nullptr, 1, Names, 0, nullptr); }},
      {"SccCheckin", [&] { return Scc.SccCheckin(Context, nullptr, 1, Names, "", 0, nullptr); }},
      {"SccAdd", [&] { return Scc.SccAdd(Context, nullptr, 1, Names, "", Words.data(), nullptr); }},
      {"SccRemove", [&] { return Scc.SccRemove(Context, nullptr, 1, Names, "", 0, nullptr); }},
      {"SccRename", [&] { return Scc.SccRename(Context, nullptr, Names[0], "/p/unit2.pas"); }},
      {"SccDiff", [&] { return Scc.SccDiff(Context, nullptr, Names[0], SCC_DIFF_QD_CONTENTS, nullptr); }},
      {"SccHistory", [&] { return Scc.SccHistory(Context, nullptr, 1, Names, 0, nullptr); }},
      {"SccProperties", [&] { return Scc.SccProperties(Context, nullptr, Names[0]); }},
      {"SccRunScc", [&] { return Scc.SccRunScc(Context, nullptr, 0, nullptr); }},
      {"SccGetCommandOptions",
       [&] { return Scc.SccGetCommandOptions(Context, nullptr, SCC_COMMAND_CHECKIN, &Options); }},
      {"SccAddFromScc", [&] { return Scc.SccAddFromScc(Context, nullptr, Words.data(), &Handed); }},
  };
  return calls.at(entry)();
}

}  // namespace kestrel::isolation
