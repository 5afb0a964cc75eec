// The macro player as the program sees it.
#pragma once

#include <memory>

#include "workbench/macro/MacroOptions.h"
#include "workbench/windows/Player.h"

namespace kestrel::workbench {

class TMacroPlayer;

class TPlayer final : public IPlayer {
 public:
  TPlayer();
  ~TPlayer() override;
  void AddOptions(CLI::App& parser) override { options_.AddTo(parser); }
  bool IsRequested() const override { return !options_.Macro.empty(); }
  void Start(TMainFrame& frame, std::function<void(int)> end) override;
  void Stop() override;

 private:
  TMacroOptions options_;
  std::unique_ptr<TMacroPlayer> player_;
};

}  // namespace kestrel::workbench
