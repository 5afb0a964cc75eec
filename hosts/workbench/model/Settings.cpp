#include "workbench/model/Settings.h"

#include <algorithm>

#include "system/Text.h"

namespace kestrel::workbench {

namespace {

struct TStateField {
  const char* Name;
  int TWindowState::*Member;
  int Low;
  int High;
};
constexpr TStateField kStateFields[] = {
    {"Width", &TWindowState::Width, 400, 10000},
    {"Height", &TWindowState::Height, 300, 10000},
    {"TreeWidth", &TWindowState::TreeWidth, 60, 5000},
    {"MessagesHeight", &TWindowState::MessagesHeight, 40, 5000},
};
constexpr const char* kMaximizedField = "Maximized";
constexpr const char* kRecentField = "File";

}  // namespace

TWindowState TWindowState::Load(TPropertySet& set) {
  TWindowState state;
  for (const auto& field : kStateFields)
    state.*field.Member = set.GetNumber(field.Name, state.*field.Member, field.Low, field.High);
  state.Maximized = set.GetNumber(kMaximizedField, 0, 0, 1) != 0;
  return state;
}

void TWindowState::Save(TPropertySet& set) const {
  for (const auto& field : kStateFields) set.SetNumber(field.Name, this->*field.Member);
  set.SetNumber(kMaximizedField, Maximized ? 1 : 0);
  set.Save();
}

std::vector<std::string> SplitPaths(const std::string& text) {
  std::vector<std::string> paths;
  std::size_t at = 0;
  while (at <= text.size()) {
    const std::size_t end = std::min(text.find_first_of(";\r\n", at), text.size());
    if (std::string path = Trim(std::string_view(text).substr(at, end - at)); !path.empty())
      paths.push_back(std::move(path));
    at = end + 1;
  }
  return paths;
}

std::string JoinPaths(const std::vector<std::string>& paths) {
  std::string text;
  for (const auto& path : paths) text += (text.empty() ? "" : ";") + path;
  return text;
}

TRecentFiles::TRecentFiles(TPropertySet& set) : set_(set) {
  for (std::size_t i = 1; i <= kMaxRecent; ++i)
    if (std::string file = set.GetValue(kRecentField + std::to_string(i)); !file.empty())
      files_.push_back(std::move(file));
}

void TRecentFiles::Add(const std::string& fileName) {
  std::erase_if(files_, [&](const auto& file) { return SameText(file, fileName); });
  files_.insert(files_.begin(), fileName);
  if (files_.size() > kMaxRecent) files_.resize(kMaxRecent);
  for (std::size_t i = 0; i < files_.size(); ++i)
    set_.SetValue(kRecentField + std::to_string(i + 1), files_[i]);
  set_.Save();
}

}  // namespace kestrel::workbench
