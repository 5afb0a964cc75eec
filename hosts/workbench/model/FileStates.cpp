#include "workbench/model/FileStates.h"

#include <algorithm>
#include <utility>

#include "system/Text.h"

namespace kestrel::workbench {

const TFileState& TFileStateServices::StateOf(const std::string& fileName) const {
  static const TFileState unknown;
  const auto found = states_.find(FoldCase(fileName));
  return found == states_.end() ? unknown : found->second;
}

const TCheckOutOffer* TFileStateServices::OfferFor(const std::string& fileName) const {
  const auto found =
      std::ranges::find_if(offers_, [&](const auto* offer) { return offer->IsOffered(fileName); });
  return found == offers_.end() ? nullptr : *found;
}

void TFileStateServices::SetFileStates(const std::vector<TFileState>& states) {
  for (const auto& state : states) states_[FoldCase(state.FileName)] = state;
  changed_(states);
}

void TFileStateServices::ClearFileStates() {
  std::vector<TFileState> gone;
  for (auto& [key, state] : std::exchange(states_, {})) gone.push_back({std::move(state.FileName), {}, {}});
  changed_(gone);
}

}  // namespace kestrel::workbench
