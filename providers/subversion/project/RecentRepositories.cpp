#include "subversion/project/RecentRepositories.h"

#include <algorithm>
#include <stdexcept>

#include "system/Registry.h"

namespace kestrel::svnscc {
namespace {

constexpr const char* kKey = "Software\\SubversionScc\\RecentRepositories";
constexpr std::size_t kMost = 10;

}  // namespace

std::vector<std::string> RecentRepositories() {
  std::vector<std::string> urls;
  TRegistry registry(TRegRoot::CurrentUser);
  if (!registry.OpenKeyReadOnly(kKey)) return urls;
  for (std::size_t i = 1; i <= kMost; ++i) {
    const std::string url = registry.ReadString(std::to_string(i));
    if (!url.empty()) urls.push_back(url);
  }
  return urls;
}

void RememberRepository(const std::string& url) {
  auto urls = RecentRepositories();
  urls.erase(std::remove(urls.begin(), urls.end(), url), urls.end());
  urls.insert(urls.begin(), url);
  if (urls.size() > kMost) urls.resize(kMost);
  try {
    TRegistry registry(TRegRoot::CurrentUser);
    registry.OpenKey(kKey);
    for (std::size_t i = 0; i < urls.size(); ++i) registry.WriteString(std::to_string(i + 1), urls[i]);
  } catch (const std::runtime_error&) {
  }
}

}  // namespace kestrel::svnscc
