// One run of the real workbench: a folder with a sample group, a macro to play, and what the package wrote down.
#pragma once

#include <string>
#include <vector>

#include "support/Environment.h"
#include "support/TemporaryFolder.h"

namespace kestrel::workbench {

class TMacroTest {
 public:
  /// Boat.qvxproj (Main.pas with Main.kfm, sub/Deck.pas read-only, Faulty.pas) and Raft.qvxproj (Log.pas) in
  /// Fleet.qvxgroup, Boat active.  Settings of its own.
  TMacroTest();
  /// Plays the macro in the folder; the program's exit code.
  int Play(const std::string& macro, const std::string& options = "");
  /// What the program printed, both streams.
  const std::string& Output() const { return output_; }
  /// The package's lines of all plays, without "menu opens".
  std::vector<std::string> Log() const;
  const TTemporaryFolder& Folder() const { return folder_; }

 private:
  TTemporaryFolder folder_;
  TEnvironmentVariable registry_;
  TEnvironmentVariable log_;
  std::string output_;
};

}  // namespace kestrel::workbench
