// Two users at work through the provider and a third with plain `svn`, at random: what must hold after every step.
#pragma once

#include <map>
#include <random>
#include <set>

#include "Developer.h"

namespace kestrel::svnscc {

class TRandomWork {
 public:
  explicit TRandomWork(unsigned seed);
  /// Works `steps` steps, and then leads every file out of whatever state it is in.  Throws std::runtime_error that says
  /// what did not hold, with the steps that led there.
  void Run(int steps);

 private:
  using Tokens = std::set<std::string>;
  using Texts = std::map<std::string, std::string>;

  struct TUser {
    explicit TUser(const std::string& who) : developer(who), name(who) {}
    TDeveloper developer;
    std::string name;
    Tokens typed;  // and not typed over
    Tokens seen;
  };

  unsigned Roll(unsigned count) { return std::uniform_int_distribution<unsigned>(0, count - 1)(random_); }
  bool Chance(unsigned percent) { return Roll(100) < percent; }
  const std::string& AnyFile();
  NameList SomeFiles();

  void Step(TUser& user);
  void Type(TUser& user, const std::string& name);
  void Command(TUser& user);
  void WorkWithPlainSvn();
  void PutWithPlainSvn(const std::string& name);
  void Svn(const std::string& arguments, bool mucc = false);
  std::string Token() { return "t" + std::to_string(++tokens_) + "."; }
  void Save(TUser& user, const std::string& name, const std::string& text);

  Texts OnDisk(const TUser& user) const;
  Texts InHead() const;
  void NoteStored();
  void CheckNothingVanished();
  void CheckHandedIn(const TUser& user, const Texts& before, const Texts& disk, bool removed);
  void CheckUnnamed(const TUser& user, const Texts& before, const NameList& named);
  void CheckAnswer(TUser& user, const std::string& command, const std::string& name, const Texts& before);
  void CheckStatuses(TUser& user);
  void CheckPlainStatus(TUser& user);
  void LeadOut(TUser& user, TUser& other, const std::string& name);
  void Require(bool holds, const std::string& what);

  TEnvironmentVariable temporary_;
  TEnvironmentVariable noWaiting_;
  TTestRepository repository_;
  TUser ann_{"ann"};
  TUser bob_{"bob"};
  std::mt19937 random_;
  int tokens_ = 0;
  Tokens stored_;  // in any revision
  NameList story_;
};

}  // namespace kestrel::svnscc
