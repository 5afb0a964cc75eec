// What operates the program in place of a user.  The program is given one or none when it starts; the installed one none.
#pragma once

#include <functional>

namespace CLI {
class App;
}

namespace kestrel::workbench {

class TMainFrame;

class IPlayer {
 public:
  virtual ~IPlayer() = default;
  /// Adds the player's options to those of the program.  Parsing fills them in.
  virtual void AddOptions(CLI::App& parser) = 0;
  /// Whether the options ask for it to play; nothing else is called otherwise.
  virtual bool IsRequested() const = 0;
  /// Called once, when the program's windows are shown.  `end` ends the program with an exit code and is called once, not
  /// before Start has returned.
  virtual void Start(TMainFrame& frame, std::function<void(int exitCode)> end) = 0;
  /// Called before the windows are deleted.
  virtual void Stop() = 0;
};

}  // namespace kestrel::workbench
