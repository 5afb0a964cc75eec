#include "workbench/macro/Player.h"

#include "workbench/macro/MacroPlayer.h"

namespace kestrel::workbench {

TPlayer::TPlayer() = default;
TPlayer::~TPlayer() = default;

void TPlayer::Start(TMainFrame& frame, std::function<void(int)> end) {
  player_ = std::make_unique<TMacroPlayer>(frame, options_, std::move(end));
}

void TPlayer::Stop() { player_.reset(); }

}  // namespace kestrel::workbench
