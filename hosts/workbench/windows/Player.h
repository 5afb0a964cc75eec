// Operates the program in place of a user. The installed program has no player.
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
  /// Adds the player's options to the program's; parsing fills them in.
  virtual void AddOptions(CLI::App& parser) = 0;
  /// Whether the options request a play. If not, nothing else is called.
  virtual bool IsRequested() const = 0;
  /// Called once, when the windows are shown. `end` ends the program with an exit code; it is called once, after Start
  /// has returned.
  virtual void Start(TMainFrame& frame, std::function<void(int exitCode)> end) = 0;
  /// Called before the windows are deleted.
  virtual void Stop() = 0;
};

}  // namespace kestrel::workbench
