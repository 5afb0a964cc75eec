// A provider that plays a script: a real shared library with all 23 entry points, loaded by the real loader.
//
//   ScriptedProviderLibrary provider;                    // loads it and starts with an empty script
//   provider->Capabilities = scc::SCC_CAP_REMOVE;        // before SccInitialize
//   provider->Statuses["/p/unit1.pas"] = 0x1003;
//   provider->Results["SccCheckin"] = scc::SCC_E_CHECKINCONFLICT;
//   provider->OnCall["SccCheckout"] = [](const ScriptedCall& call) { MakeWritable(call.Files); };
//   TSCCProviderList list(provider.Path(), 0, "ann");
//   ... EXPECT_EQ(provider->Last("SccCheckin").Comment, "done");
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <set>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <vector>

#include "scc/sccdefs.h"
#include "system/Library.h"

namespace kestrel {

/// One call as it arrived.  Fields that the entry point does not have stay empty.
struct ScriptedCall {
  std::string Entry;               ///< exported name, e.g. "SccCheckout"
  std::vector<std::string> Files;  ///< also the single name of SccDiff and SccProperties
  std::string Comment;
  std::string User, ProjName, LocalPath, AuxPath;  ///< as they came in
  scc::Long Flags = 0;                             ///< SccAdd: the first file's word; SccSetOption: the value
  std::vector<scc::Long> FileFlags;                ///< SccAdd: one word per file
  scc::Long Command = -1;         ///< of SccPopulateList, SccGetCommandOptions; SccSetOption's number
  bool Allowed = false;           ///< SccGetProjPath: may change the path
  bool IsNew = false;             ///< SccGetProjPath: may create
  bool TextOut = false;           ///< SccOpenProject: was given a text callback
  bool Terminated = true;         ///< the name array had a null entry behind its last
  const void* Options = nullptr;  ///< the command-options argument
  scc::WindowHandle Window = nullptr;
  const void* Context = nullptr;  ///< a call with another than SccInitialize gave answers -15
};

/// What an in/out call writes back; what is not set stays as it came.
struct ScriptedIdentity {
  std::optional<std::string> User, ProjName, LocalPath, AuxPath;
};

struct ScriptedText {
  scc::Dword Kind;
  std::optional<std::string> Text;  ///< nothing: a null pointer
};

struct ScriptedListEntry {
  bool Add;
  scc::Long Status;
  std::optional<std::string> File;  ///< nothing: a null pointer
};

/// Misbehaviour, one switch each; all off.
struct ScriptedFaults {
  std::set<std::string>
      ThrowException;  ///< entry points that throw std::runtime_error("scripted failure in <entry>")
  std::set<std::string> ThrowInt;    ///< entry points that throw an int
  bool Unterminated = false;         ///< in/out texts are filled to the API's size without a terminator
  bool LongProjName = false;         ///< 301 bytes, terminator included, go into every project name
  std::size_t WriteFarBehind = 0;    ///< in/out texts are written that many bytes past the first 4096
  bool WriteBehindStatuses = false;  ///< one word more than 65,536 is written
  bool WideWords = false;            ///< out words are written as if they had eight bytes
  bool FloodList = false;  ///< SccPopulateList goes on for 300,000 names, whatever the callback answers
  bool LateText = false;   ///< SccCloseProject and SccUninitialize still write to the text callback
};

struct ScriptedProvider {
  // ---- the script
  std::string Name = "Scripted provider";
  scc::Dword Capabilities = 0x7FFFFFFF;
  scc::Long Version = 0x00010001;
  std::map<std::string, scc::Long>
      Results;  ///< per entry point; otherwise 0, or what the entry point makes of the rest
  std::map<std::string, std::function<void(const ScriptedCall&)>>
      OnCall;                                              ///< runs before the entry point answers
  std::map<std::string, std::vector<ScriptedText>> Texts;  ///< written while a project is open
  std::unordered_map<std::string, scc::Long> Statuses;     ///< by file name
  std::function<scc::Long(const std::string&)> StatusOf;   ///< asked for names not in Statuses
  scc::Long DefaultStatus = scc::SCC_STATUS_CONTROLLED;    ///< for all others
  std::set<std::string> Differing;                         ///< files that SccDiff reports as different (6)
  std::vector<ScriptedListEntry> List;                     ///< what SccPopulateList calls back with
  std::set<scc::Long> Advanced;                            ///< commands with advanced options
  void* AdvancedBlock = nullptr;                           ///< what the advanced-options dialog stores
  ScriptedIdentity GetProjPath, OpenProject;               ///< what these write back
  std::optional<bool> IsNew;                               ///< SccGetProjPath's answer
  ScriptedFaults Faults;
  bool Record = true;  ///< off: calls are not kept, for measurements

  // ---- what happened
  std::vector<ScriptedCall> Calls;
  scc::TTextOutProc TextOut = nullptr;  ///< the callback of the last SccOpenProject, also after closing
  scc::Long ListAnswers = 0;            ///< how often the list callback was called
  bool Initialized = false;
  bool Open = false;

  int Count(const std::string& entry) const {
    int count = 0;
    for (const ScriptedCall& call : Calls) count += call.Entry == entry;
    return count;
  }
  const ScriptedCall& Last(const std::string& entry) const {
    for (auto call = Calls.rbegin(); call != Calls.rend(); ++call)
      if (call->Entry == entry) return *call;
    throw std::logic_error(entry + " was not called");
  }
  std::vector<std::string> Entries() const {
    std::vector<std::string> entries;
    for (const ScriptedCall& call : Calls) entries.push_back(call.Entry);
    return entries;
  }
};

inline void PrintTo(const ScriptedCall& call, std::ostream* out) {
  *out << call.Entry << "(" << call.Files.size() << " files, flags " << call.Flags << ", \"" << call.Comment
       << "\")";
}

/// Keeps the library loaded, so that script and record outlive the session that uses it.  The script starts empty and
/// ends with this object.
class ScriptedProviderLibrary {
 public:
  ScriptedProviderLibrary() {
    std::string error;
    module_ = LoadModule(Path(), &error);
    using TControl = ScriptedProvider* (*)();
    const auto control = reinterpret_cast<TControl>(FindSymbol(module_, "ScriptedProviderControl"));
    if (control == nullptr) throw std::runtime_error("no scripted provider: " + error);
    provider_ = control();
    *provider_ = {};
  }
  ~ScriptedProviderLibrary() {
    *provider_ = {};  // nothing of the test program stays in the library
    UnloadModule(module_);
  }
  ScriptedProviderLibrary(const ScriptedProviderLibrary&) = delete;
  ScriptedProviderLibrary& operator=(const ScriptedProviderLibrary&) = delete;

  static std::string Path() { return SCRIPTED_PROVIDER_PATH; }
  ScriptedProvider* operator->() { return provider_; }
  ScriptedProvider& operator*() { return *provider_; }

 private:
  TModuleHandle module_ = nullptr;
  ScriptedProvider* provider_ = nullptr;
};

}  // namespace kestrel
