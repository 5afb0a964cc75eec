// A client of the API on the scripted provider, which runs in a process of its own.
#pragma once

#include <array>
#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "support/EntryPoints.h"
#include "support/Environment.h"
#include "support/TemporaryFolder.h"
#include "system/Library.h"
#include "system/System.h"

namespace kestrel::isolation {

inline std::vector<std::string> lines;  // the callback has no argument to find its owner by

class TIsolatedClient {
 public:
  explicit TIsolatedClient(const char* caller = "tests") : Caller(caller) { lines.clear(); }
  ~TIsolatedClient() {
    if (Context != nullptr) Scc.SccUninitialize(Context);
  }
  TIsolatedClient(const TIsolatedClient&) = delete;
  TIsolatedClient& operator=(const TIsolatedClient&) = delete;

  scc::Long Initialize() {
    return Scc.SccInitialize(&Context, nullptr, Caller, Name.data(), &Words[0], Label.data(), &Words[1],
                             &Words[2]);
  }
  scc::Long Open() {
    return Scc.SccOpenProject(Context, nullptr, User.data(), Project.data(), "/p", Aux.data(), nullptr,
                              TakeText, 1);
  }
  scc::Long Status() { return Scc.SccQueryInfo(Context, 1, Names, Words.data()); }
  /// Calls the entry point of that name.
  scc::Long Call(const std::string& entry);
  /// The provider will commit it in the next call of that entry point.
  void Arm(const std::string& entry, const std::string& fault) {
    std::ofstream(faults_) << entry << ' ' << fault;
  }

  const std::string& Faults() const { return faults_; }

  const scc::EntryPoints Scc{RequireModule(ISOLATED_SCRIPTED)};  // stays loaded: it does so anyway
  const char* Caller;
  void* Context = nullptr;
  std::array<char, 5120> Name{}, Label{}, User{}, Project{}, Aux{}, Local{}, Event{};
  std::vector<scc::Long> Words = std::vector<scc::Long>(66'000);
  const char* Names[2] = {"/p/unit1.pas", nullptr};
  const char** Handed = nullptr;
  void* Options = nullptr;

 private:
  static scc::Long SCC_CALL TakeText(const char* text, scc::Dword) {
    lines.push_back(text != nullptr ? text : "");
    return scc::SCC_MSG_RTN_OK;
  }
  TTemporaryFolder folder_;
  std::string faults_ = folder_ / "faults";
  TEnvironmentVariable variable_{"SCRIPTED_FAULTS", faults_.c_str()};
};

inline scc::Bool SCC_CALL GoOn(void*, scc::Bool, scc::Long, const char*) { return 1; }

inline scc::Long TIsolatedClient::Call(const std::string& entry) {
  using C = TIsolatedClient;
  static const std::map<std::string, std::function<scc::Long(C&)>> kCalls = {
      {"SccInitialize", [](C& c) { return c.Initialize(); }},
      {"SccUninitialize", [](C& c) { return c.Scc.SccUninitialize(std::exchange(c.Context, nullptr)); }},
      {"SccGetVersion", [](C& c) { return c.Scc.SccGetVersion(); }},
      {"SccOpenProject", [](C& c) { return c.Open(); }},
      {"SccCloseProject", [](C& c) { return c.Scc.SccCloseProject(c.Context); }},
      {"SccSetOption", [](C& c) { return c.Scc.SccSetOption(c.Context, scc::SCC_OPT_EVENTQUEUE, 1); }},
      {"SccGetProjPath",
       [](C& c) {
         return c.Scc.SccGetProjPath(c.Context, nullptr, c.User.data(), c.Project.data(), c.Local.data(),
                                     c.Aux.data(), 0, c.Words.data());
       }},
      {"SccQueryInfo", [](C& c) { return c.Status(); }},
      {"SccPopulateList",
       [](C& c) {
         return c.Scc.SccPopulateList(c.Context, scc::SCC_COMMAND_GET, 1, c.Names, GoOn, nullptr,
                                      c.Words.data(), 0);
       }},
      {"SccGetEvents",
       [](C& c) { return c.Scc.SccGetEvents(c.Context, c.Event.data(), &c.Words[0], &c.Words[1]); }},
      {"SccGet", [](C& c) { return c.Scc.SccGet(c.Context, nullptr, 1, c.Names, 0, nullptr); }},
      {"SccCheckout", [](C& c) { return c.Scc.SccCheckOut(c.Context, nullptr, 1, c.Names, "", 0, nullptr); }},
      {"SccUncheckout", [](C& c) { return c.Scc.SccUncheckout(c.Context, nullptr, 1, c.Names, 0, nullptr); }},
      {"SccCheckin", [](C& c) { return c.Scc.SccCheckin(c.Context, nullptr, 1, c.Names, "", 0, nullptr); }},
      {"SccAdd",
       [](C& c) { return c.Scc.SccAdd(c.Context, nullptr, 1, c.Names, "", c.Words.data(), nullptr); }},
      {"SccRemove", [](C& c) { return c.Scc.SccRemove(c.Context, nullptr, 1, c.Names, "", 0, nullptr); }},
      {"SccRename", [](C& c) { return c.Scc.SccRename(c.Context, nullptr, c.Names[0], "/p/unit2.pas"); }},
      {"SccDiff", [](C& c) { return c.Scc.SccDiff(c.Context, nullptr, c.Names[0], 0x10, nullptr); }},
      {"SccHistory", [](C& c) { return c.Scc.SccHistory(c.Context, nullptr, 1, c.Names, 0, nullptr); }},
      {"SccProperties", [](C& c) { return c.Scc.SccProperties(c.Context, nullptr, c.Names[0]); }},
      {"SccRunScc", [](C& c) { return c.Scc.SccRunScc(c.Context, nullptr, 0, nullptr); }},
      {"SccGetCommandOptions",
       [](C& c) {
         return c.Scc.SccGetCommandOptions(c.Context, nullptr, scc::SCC_COMMAND_CHECKIN, &c.Options);
       }},
      {"SccAddFromScc",
       [](C& c) { return c.Scc.SccAddFromScc(c.Context, nullptr, c.Words.data(), &c.Handed); }},
  };
  return kCalls.at(entry)(*this);
}

}  // namespace kestrel::isolation
