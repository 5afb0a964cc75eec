// The workbench's own settings.
#pragma once

#include <string>
#include <vector>

#include "hosts/common/PropertySets.h"

namespace kestrel::workbench {

/// The workbench's key in the current user's registry, and below it the property sets and their fields.
inline constexpr const char* kSettingsKey = "Software\\Corvane\\Workbench";
inline constexpr const char* kGeneralSet = "General";
inline constexpr const char* kFontSizeField = "FontSize";
inline constexpr const char* kPackagesField = "Packages";

inline constexpr const char* kWindowSet = "Window";
inline constexpr const char* kRecentSet = "Recent";

inline constexpr int kDefaultFontSize = 10;
inline constexpr int kMinFontSize = 6;
inline constexpr int kMaxFontSize = 40;
inline constexpr std::size_t kMaxRecent = 8;

/// Size of the main window and of its panes, in device-independent pixels.
struct TWindowState {
  int Width = 1100;
  int Height = 760;
  int TreeWidth = 230;
  int MessagesHeight = 140;
  bool Maximized = false;

  static TWindowState Load(TPropertySet& set);
  void Save(TPropertySet& set) const;
};

/// Splits a list with one path per line, or separated by ';'; trims paths and skips empty ones.
std::vector<std::string> SplitPaths(const std::string& text);
std::string JoinPaths(const std::vector<std::string>& paths);

/// Recently opened projects and groups, the latest first.
class TRecentFiles {
 public:
  explicit TRecentFiles(TPropertySet& set);
  const std::vector<std::string>& Files() const { return files_; }
  /// Moves a file to the front and saves the list.
  void Add(const std::string& fileName);

 private:
  TPropertySet& set_;
  std::vector<std::string> files_;
};

}  // namespace kestrel::workbench
