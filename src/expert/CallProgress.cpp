#include "expert/CallProgress.h"

#include <algorithm>
#include <string_view>

#include "system/Paths.h"

namespace kestrel::addin {

namespace {

using namespace std::chrono_literals;

// First estimates, measured with a local repository.
constexpr std::chrono::microseconds kPerFile[]{100us, 1ms};  // by TCallProgress::Kind

constexpr const char* kBeforeNames = "\"'`([<";
constexpr const char* kBehindNames = "\"'`)]>.,:;!";

std::string LastWordOf(const std::string& fileName) {
  const auto name = FoldCase(ExtractFileName(fileName));
  return name.substr(name.find_last_of(' ') + 1);
}

std::string_view WithoutPunctuation(std::string_view word) {
  const auto begin = std::min(word.find_first_not_of(kBeforeNames), word.size());
  return word.substr(begin, word.find_last_not_of(kBehindNames) + 1 - begin);
}

}  // namespace

TCallProgress::TCallProgress(IExpertUi& ui, const std::string& caption, Kind kind, const std::string& what,
                             const TStringList& files)
    : files_(files), progress_(ui.StartProgress(caption, files.size())) {
  progress_->BeginCall(what, kPerFile[static_cast<int>(kind)]);
}

void TCallProgress::OnLine(const std::string& line) {
  if (const auto file = FileNamedIn(line); !file.empty()) {
    named_.insert(FoldCase(file));
    latest_ = file;
  }
  if (!named_.empty()) progress_->Step(std::min(named_.size(), files_.size()) - 1, latest_);
}

std::string TCallProgress::FileNamedIn(const std::string& line) {
  if (names_.empty())
    for (const auto& file : files_) names_.insert(LastWordOf(file));
  for (std::size_t at = 0; at < line.size();) {
    const auto end = std::min(line.find(' ', at), line.size());
    const std::string word(WithoutPunctuation(std::string_view(line).substr(at, end - at)));
    if (!word.empty() && names_.contains(FoldCase(ExtractFileName(word)))) return word;
    at = end + 1;
  }
  return {};
}

}  // namespace kestrel::addin
