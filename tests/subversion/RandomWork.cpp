#include "RandomWork.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <regex>
#include <sstream>
#include <stdexcept>

#include "system/System.h"

namespace kestrel::svnscc {

namespace {

const NameList kFiles{"a.txt", "d/b.txt", "d/c.dat", "d/e/f.txt", "g/h.txt"};
const NameList kFolders{"d", "d/e", "g"};

constexpr Long kOut = SCC_STATUS_OUTBYUSER | SCC_STATUS_OUTOTHER | SCC_STATUS_OUTEXCLUSIVE;

std::set<std::string> TokensIn(const std::string& text) {
  static const std::regex token("t[0-9]+\\.");
  return {std::sregex_token_iterator(text.begin(), text.end(), token), std::sregex_token_iterator()};
}

NameList LinesOf(const std::string& text) {
  NameList lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::string TextOf(const NameList& lines) {
  std::string text;
  for (const auto& line : lines) text += line + "\n";
  return text;
}

bool IsMark(const std::string& line) {
  static const std::regex mark("(<{7}|\\|{7}|={7}|>{7}).*");
  return std::regex_match(line, mark);
}

bool IsBinary(const std::string& name) { return name.ends_with(".dat"); }

/// What Subversion puts beside a file in conflict; nobody has to look there.
bool IsArtefact(const std::string& name) {
  static const std::regex artefact(".*\\.(r[0-9]+|prej|working|merge-(left|right)\\.r[0-9]+)");
  return std::regex_match(name, artefact);
}

std::string MemoryFolder() {
  return fs::is_directory("/dev/shm") ? "/dev/shm" : fs::temp_directory_path().string();
}

}  // namespace

TRandomWork::TRandomWork(unsigned seed)
    : temporary_("TMPDIR", MemoryFolder().c_str()),
      // Subversion waits for the clock's next tick, so that an edit has another time: here each edit gets one of its own.
      noWaiting_("SVN_I_LOVE_CORRUPTED_WORKING_COPIES_SO_DISABLE_SLEEP_FOR_TIMESTAMPS", "yes"),
      random_(seed) {
  story_.push_back("seed " + std::to_string(seed));
  for (TUser* user : {&ann_, &bob_}) user->developer.Open(repository_.Url(), "p");
  for (const auto& name : kFiles) {
    Save(ann_, name, Token() + "\n-\n" + Token() + "\n-\n" + Token() + "\n");
    ann_.developer.Add({name}, "", IsBinary(name) ? SCC_FILETYPE_BINARY : 0);
  }
  bob_.developer.GetEverything();
  NoteStored();
  CheckNothingVanished();
}

void TRandomWork::Run(int steps) {
  for (int step = 0; step < steps; ++step) {
    if (Chance(25))
      WorkWithPlainSvn();
    else
      Step(Chance(50) ? ann_ : bob_);
    CheckNothingVanished();
    if (step % 8 == 0) CheckPlainStatus(Chance(50) ? ann_ : bob_);
  }
  for (const auto& name : kFiles) {
    LeadOut(ann_, bob_, name);
    LeadOut(bob_, ann_, name);
  }
}

const std::string& TRandomWork::AnyFile() { return kFiles[Roll(static_cast<unsigned>(kFiles.size()))]; }

NameList TRandomWork::SomeFiles() {
  NameList names{AnyFile()};
  while (Chance(35)) names.push_back(AnyFile());
  return names;
}

void TRandomWork::Save(TUser& user, const std::string& name, const std::string& text) {
  if (user.developer.Has(name)) fs::permissions(user.developer.File(name), fs::perms::owner_all);
  user.developer.Write(name, text);
  using namespace std::chrono_literals;
  fs::last_write_time(user.developer.File(name), fs::file_time_type::clock::now() - 100h + 1s * tokens_);
  user.typed.merge(TokensIn(text));
}

/// Somebody who edits a file keeps what stands there, but for the line in hand; marks of a conflict are edited away.
void TRandomWork::Type(TUser& user, const std::string& name) {
  NameList lines =
      user.developer.Has(name) ? LinesOf(user.developer.Read(name)) : NameList{"", "-", "", "-", ""};
  if (std::any_of(lines.begin(), lines.end(), IsMark)) {
    std::erase_if(lines, IsMark);
    lines.push_back(Token());
  } else {
    std::string& line = lines[Roll(static_cast<unsigned>(lines.size()))];
    for (const auto& token : TokensIn(line)) user.typed.erase(token);
    line = Token();
  }
  story_.push_back(user.name + " types t" + std::to_string(tokens_) + ". in " + name);
  Save(user, name, TextOf(lines));
}

void TRandomWork::Step(TUser& user) {
  if (Chance(30)) return Type(user, AnyFile());
  if (Chance(5)) {
    const std::string& name = AnyFile();
    if (!user.developer.Has(name)) return;
    story_.push_back(user.name + " deletes " + name);
    for (const auto& token : TokensIn(user.developer.Read(name))) user.typed.erase(token);
    user.developer.Delete(name);
    return;
  }
  Command(user);
}

void TRandomWork::Command(TUser& user) {
  TDeveloper& work = user.developer;
  NameList names = SomeFiles();
  const Texts diskBefore = OnDisk(user);
  const Texts headBefore = InHead();
  const Long keep = Chance(30) ? SCC_KEEP_CHECKEDOUT : 0;
  const auto getAll = [&] {
    names = {Chance(60) ? "" : kFolders[Roll(3)]};
    return work.Get(names, SCC_GET_ALL | (Chance(60) ? SCC_GET_RECURSIVE : 0));
  };
  const auto add = [&] {
    names.resize(1);
    return work.Add(names, "", keep | (IsBinary(names.front()) ? SCC_FILETYPE_BINARY : 0));
  };
  const std::vector<std::pair<std::string, std::function<Long()>>> commands{
      {"get", [&] { return work.Get(names); }},
      {"get all", getAll},
      {"check out", [&] { return work.CheckOut(names); }},
      {"check in", [&] { return work.CheckIn(names, "", keep); }},
      {"undo", [&] { return work.Undo(names); }},
      {"add", add},
      {"remove", [&] { return work.Remove(names); }}};
  const auto& [command, run] = commands[std::array<std::size_t, 9>{0, 1, 2, 2, 3, 3, 4, 5, 6}[Roll(9)]];
  const Long result = run();
  std::string line = user.name + " " + command;
  for (const auto& name : names) line += " " + name;
  story_.push_back(line + ": " + std::to_string(result) + "\n" + work.Said());
  NoteStored();
  CheckHandedIn(user, headBefore, diskBefore, command == "remove");
  if (command != "get all") CheckUnnamed(user, diskBefore, names);
  CheckStatuses(user);
  if (result == SCC_OK && command != "get all")
    for (const auto& name : names) CheckAnswer(user, command, name, diskBefore);
}

void TRandomWork::Svn(const std::string& arguments, bool mucc) {
  const std::string options = " --username carl --non-interactive --no-auth-cache ";
  const std::string line = (mucc ? "svnmucc" : "svn") + options + arguments;
  const bool done = std::system((line + " >/dev/null 2>&1").c_str()) == 0;
  story_.push_back((done ? "" : "refused: ") + line);
}

void TRandomWork::WorkWithPlainSvn() {
  const std::string root = repository_.Url() + "/p/";
  const std::string file = root + AnyFile();
  const std::string folder = root + kFolders[Roll(3)];
  const auto breakLocks = [&](const std::string& below) {
    for (const auto& name : kFiles)
      if ((root + name).starts_with(below) && repository_.LockOwner("p/" + name))
        Svn("unlock --force " + root + name);
  };
  if (Chance(70)) breakLocks(Chance(50) ? file : folder);
  const auto moveAwayAndBack = [&](const std::string& what, unsigned backPercent) {
    Svn("-m away mv " + what + " " + root + "away", true);
    if (Chance(backPercent)) Svn("-m back mv " + root + "away " + what, true);
    Svn("-m rest rm " + root + "away", true);
  };
  switch (Roll(8)) {
    case 0:
      Svn("-m delete rm " + file, true);
      break;
    case 1:
      Svn("-m delete rm " + folder, true);
      break;
    case 2:
      moveAwayAndBack(folder, 80);
      break;
    case 3:
      moveAwayAndBack(file, 100);
      break;
    case 4:
      Svn("lock --force " + file);
      break;
    default:
      PutWithPlainSvn(AnyFile());
  }
  NoteStored();
}

void TRandomWork::PutWithPlainSvn(const std::string& name) {
  const std::string root = repository_.Url() + "/p/";
  NameList lines{"", "-", "", "-", ""};
  if (repository_.Exists("p/" + name)) lines = LinesOf(repository_.Contents("p/" + name));
  lines[Roll(static_cast<unsigned>(lines.size()))] = Token();
  std::string make;
  for (auto above = fs::path(name).parent_path(); !above.empty(); above = above.parent_path())
    if (!repository_.Exists("p/" + above.string())) make = "mkdir " + root + above.string() + " " + make;
  const TTemporaryFolder temporary;
  Svn("-m edit " + make + "put " + temporary.Write("text", TextOf(lines)) + " " + root + name, true);
}

TRandomWork::Texts TRandomWork::OnDisk(const TUser& user) const {
  Texts texts;
  for (auto entry = fs::recursive_directory_iterator(user.developer.Folder()); entry != end(entry); ++entry)
    if (entry->path().filename() == ".svn")
      entry.disable_recursion_pending();
    else if (entry->is_regular_file())
      texts[entry->path().lexically_relative(user.developer.Folder()).string()] =
          ReadWholeFile(entry->path().string());
  return texts;
}

TRandomWork::Texts TRandomWork::InHead() const {
  Texts texts;
  for (const auto& name : kFiles)
    if (repository_.Exists("p/" + name)) texts[name] = repository_.Contents("p/" + name);
  return texts;
}

void TRandomWork::NoteStored() {
  for (const auto& [name, text] : InHead()) stored_.merge(TokensIn(text));
}

void TRandomWork::CheckNothingVanished() {
  for (TUser* user : {&ann_, &bob_}) {
    Tokens here;
    for (const auto& [name, text] : OnDisk(*user)) {
      here.merge(TokensIn(text));
      if (!IsArtefact(name)) user->seen.merge(TokensIn(text));
    }
    for (const auto& token : user->typed)
      Require(here.contains(token) || stored_.contains(token),
              user->name + " typed " + token + ", and it is gone");
  }
}

void TRandomWork::CheckHandedIn(const TUser& user, const Texts& before, const Texts& disk, bool removed) {
  const Texts head = InHead();
  for (const auto& [name, text] : before) {
    const auto now = head.find(name);
    if (removed && now == head.end() && !disk.contains(name)) continue;  // removed by its name
    const Tokens left = now != head.end() ? TokensIn(now->second) : Tokens{};
    for (const auto& token : TokensIn(text))
      Require(left.contains(token) || user.seen.contains(token),
              user.name + " never saw " + token + ", and took it out of " + name);
  }
}

/// Copies and what Subversion puts beside a conflict may come; what was there stays, but for conflicts that end.
void TRandomWork::CheckUnnamed(const TUser& user, const Texts& before, const NameList& named) {
  const Texts after = OnDisk(user);
  for (const auto& [name, text] : before) {
    if (IsArtefact(name) || std::find(named.begin(), named.end(), name) != named.end()) continue;
    if (name.ends_with(".mine") || name.ends_with("~")) continue;  // Subversion's own are called so, too
    const auto now = after.find(name);
    Require(now != after.end() && now->second == text, name + " was not named, and changed");
  }
}

void TRandomWork::CheckAnswer(TUser& user, const std::string& command, const std::string& name,
                              const Texts& before) {
  const std::string stored = "p/" + name;
  const bool inHead = repository_.Exists(stored);
  const auto owner = repository_.LockOwner(stored);
  const Long bits = user.developer.Status(name);
  const bool had = before.contains(name);
  const std::string what = command + " of " + name + " answered 0, but ";
  if (command == "get") {
    Require((bits & (kOutOfDate | kDeleted | kMerged)) == 0, what + "it is not the newest");
    Require(user.developer.Has(name) == inHead, what + "it is not here as it is in HEAD");
  } else if (command == "check out") {
    Require(owner == user.name && (bits & SCC_STATUS_CHECKEDOUT) != 0, what + "it is not locked here");
    Require(user.developer.IsWritable(name), what + "it is read-only");
  } else if (command == "check in") {
    Require((bits & kModified) == 0, what + "it is still modified");
  } else if (command == "undo") {
    Require((bits & (SCC_STATUS_CHECKEDOUT | kMerged | kModified)) == 0, what + "it is not undone");
  } else if (command == "add") {
    Require(inHead && had && repository_.Contents(stored) == before.at(name), what + "HEAD does not have it");
  } else {
    Require(!inHead, what + "HEAD has it");
    Require(user.developer.Has(name) == had, what + "the copy here changed");
  }
}

void TRandomWork::CheckStatuses(TUser& user) {
  const auto words = user.developer.Statuses(kFiles);
  for (std::size_t i = 0; i < kFiles.size(); ++i) {
    const auto has = [&](Long bits) { return (words[i] & bits) != 0; };
    const bool inHead = repository_.Exists("p/" + kFiles[i]);
    const auto owner = repository_.LockOwner("p/" + kFiles[i]);
    char word[32];
    std::snprintf(word, sizeof word, " is %x", static_cast<unsigned>(words[i]));
    const std::string what = user.name + ": " + kFiles[i] + word + ", and in HEAD it is ";
    if (inHead) {
      Require(has(SCC_STATUS_CONTROLLED) && !has(SCC_STATUS_DELETED), what + "there");
      Require(has(kOut) == owner.has_value(), what + (owner ? "locked by " + *owner : "not locked"));
    } else {
      Require(words[i] == 0 || has(SCC_STATUS_DELETED), what + "not there");
    }
  }
}

void TRandomWork::CheckPlainStatus(TUser& user) {
  const TTemporaryFolder temporary;
  const std::string output = temporary / "status";
  const std::string line = "cd '" + user.developer.Folder() + "' && svn status -uv >" + output;
  Require(std::system(line.c_str()) == 0, "svn status -u failed");
  const NameList lines = LinesOf(ReadWholeFile(output));
  const auto lineOf = [&](const std::string& name) -> std::string {
    const auto found = std::ranges::find_if(
        lines, [&](const auto& each) { return each.size() > 9 && each.ends_with(" " + name); });
    return found != lines.end() ? *found : "?         no line";
  };
  // Of a folder that was deleted and made again Subversion says that all in it is old.
  const auto isFolderOld = [&](const std::string& name) {
    return std::ranges::any_of(kFolders, [&](const auto& folder) {
      return name.starts_with(folder + "/") && lineOf(folder)[8] == '*';
    });
  };
  struct TRow {
    std::size_t Column;
    char Letter;
    Long Bits;
  };
  static constexpr TRow kRows[] = {{0, 'M', kModified}, {0, 'C', kModified}, {0, 'C', kMerged},
                                   {5, 'O', kOut},      {5, 'T', kOut},      {6, 'C', kMerged}};
  for (const auto& name : kFiles) {
    const std::string letters = lineOf(name);
    const Long bits = user.developer.Status(name);
    const auto has = [&](Long bit) { return (bits & bit) != 0; };
    const std::string what = user.name + ": svn status says '" + letters + "', we " + std::to_string(bits);
    if (letters[0] == '?') {
      if (letters[8] != '*') Require(bits == 0 || has(kOutOfDate), what);
      continue;
    }
    if (letters[8] == '*' && !isFolderOld(name)) Require(has(kOutOfDate | kDeleted), what);
    Require(has(SCC_STATUS_CHECKEDOUT) == (letters[5] == 'K'), what);
    for (const auto& row : kRows) Require(letters[row.Column] != row.Letter || has(row.Bits), what);
    if (letters.starts_with("         ")) Require(!has(kModified | kMerged), what);
  }
}

/// Whatever happened, the commands lead to a file that can be handed in.
void TRandomWork::LeadOut(TUser& user, TUser& other, const std::string& name) {
  TDeveloper& work = user.developer;
  other.developer.Undo({name});
  if (repository_.LockOwner("p/" + name)) Svn("unlock --force " + repository_.Url() + "/p/" + name);
  std::string said = "lead out " + user.name + " " + name + "\n";
  const auto note = [&](const char* what, Long result) {
    said += what + std::string(": ") + std::to_string(result) + "\n" + work.Said();
    return result;
  };
  note("undo", work.Undo({name}));
  if (note("get", work.Get({name})) == SCC_E_FIXMERGE) note("undo", work.Undo({name}));
  if (!repository_.Exists("p/" + name)) {
    if (!work.Has(name)) Save(user, name, Token() + "\n");
    note("add", work.Add({name}));
  }
  const bool out = note("check out", work.CheckOut({name})) == SCC_OK;
  Save(user, name, Token() + "\n" + (work.Has(name) ? work.Read(name) : ""));
  const bool in = note("check in", work.CheckIn({name})) == SCC_OK;
  story_.push_back(said);
  Require(out && in && repository_.Contents("p/" + name) == work.Read(name), "no way out of " + name);
  NoteStored();
  CheckNothingVanished();
}

void TRandomWork::Require(bool holds, const std::string& what) {
  if (holds) return;
  std::string text = what + "\n";
  const std::size_t last = std::min<std::size_t>(story_.size() - 1, 40);
  text += story_.front() + "\n";
  for (std::size_t i = story_.size() - last; i < story_.size(); ++i) text += story_[i] + "\n";
  throw std::runtime_error(text);
}

}  // namespace kestrel::svnscc
