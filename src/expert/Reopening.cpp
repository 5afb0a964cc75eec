#include "expert/Reopening.h"

#include <algorithm>

namespace kestrel::addin {

namespace {

using namespace scc;

constexpr std::chrono::seconds kShortestPause{5};
constexpr int kPausePerTry = 5;  // times the duration of the try

bool MayPass(Long code) {
  constexpr Long kUserDecides[] = {SCC_E_INVALIDUSER, SCC_E_NOTAUTHORIZED, SCC_E_OPNOTPERFORMED};
  return code < 0 && std::ranges::find(kUserDecides, code) == std::end(kUserDecides);
}

}  // namespace

void TReopening::Begin(const std::string& projectFile) {
  projectFile_ = projectFile;
  begin_ = clock_();
  failed_ = false;
}

void TReopening::End(Long code) {
  failed_ = MayPass(code);
  const auto end = clock_();
  const std::chrono::steady_clock::duration shortest = kShortestPause;
  due_ = end + std::max(shortest, (end - begin_) * kPausePerTry);
}

bool TReopening::IsDue(const std::string& projectFile) const {
  return failed_ && projectFile == projectFile_ && clock_() >= due_;
}

}  // namespace kestrel::addin
