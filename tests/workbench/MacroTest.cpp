#include "MacroTest.h"

#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <fstream>

namespace kestrel::workbench {

namespace {
constexpr const char* kSourceText = "unit Source;\nend.\n";
}

TMacroTest::TMacroTest()
    : registry_("CORVANE_REGISTRY_DIR", folder_.MakeFolder("settings").c_str()),
      log_("CREW_LOG", (folder_ / "log.txt").c_str()) {
  for (const char* unit : {"Main.pas", "Faulty.pas", "Log.pas", "sub/Deck.pas"})
    folder_.Write(unit, kSourceText);
  folder_.Write("Main.kfm", "object Main: TMain\nend\n");
  SetFileAttributesOf(folder_ / "sub/Deck.pas", faReadOnly);
  folder_.Write("Boat.qvxproj",
                "[Project]\n[Modules]\nModule=Main.pas\nModule=sub/Deck.pas\nModule=Faulty.pas\n");
  folder_.Write("Raft.qvxproj", "[Project]\n[Modules]\nModule=Log.pas\n");
  folder_.Write("Fleet.qvxgroup",
                "[Group]\nActive=Boat.qvxproj\n[Projects]\nProject=Boat.qvxproj\nProject=Raft.qvxproj\n");
}

int TMacroTest::Play(const std::string& macro, const std::string& options) {
  folder_.Write("story.macro", macro);
  const std::string command = "cd '" + folder_.Path() +
                              "' && '" WORKBENCH_PATH "' --play story.macro --package '" +
                              SAMPLE_PACKAGE_PATH "' " + options + " 2>&1";
  output_.clear();
  std::FILE* pipe = popen(command.c_str(), "r");
  std::array<char, 4096> part;
  while (const std::size_t read = std::fread(part.data(), 1, part.size(), pipe))
    output_.append(part.data(), read);
  const int status = pclose(pipe);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

std::vector<std::string> TMacroTest::Log() const {
  std::vector<std::string> lines;
  std::ifstream log(folder_ / "log.txt");
  for (std::string line; std::getline(log, line);)
    if (line != "menu opens") lines.push_back(line);
  return lines;
}

}  // namespace kestrel::workbench
