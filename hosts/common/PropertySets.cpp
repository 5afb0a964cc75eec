#include "hosts/common/PropertySets.h"

#include <charconv>

#include "system/Registry.h"
#include "system/Text.h"

namespace kestrel {

TPropertySet::TPropertySet(std::string key) : key_(std::move(key)) { Load(); }

std::string TPropertySet::GetValue(const std::string& field) {
  const auto found = fields_.find(FoldCase(field));
  return found == fields_.end() ? std::string() : found->second.Value;
}

void TPropertySet::SetValue(const std::string& field, const std::string& value) {
  fields_.try_emplace(FoldCase(field), TField{field, {}}).first->second.Value = value;
}

void TPropertySet::Load() {
  fields_.clear();
  TRegistry registry(TRegRoot::CurrentUser);
  if (!registry.OpenKeyReadOnly(key_)) return;
  for (const auto& name : registry.GetValueNames()) SetValue(name, registry.ReadString(name));
}

void TPropertySet::Save() {
  TRegistry registry(TRegRoot::CurrentUser);
  registry.OpenKey(key_);
  for (const auto& [folded, field] : fields_)
    if (registry.ReadString(field.Name) != field.Value) registry.WriteString(field.Name, field.Value);
}

int TPropertySet::GetNumber(const std::string& field, int fallback, int low, int high) {
  const std::string text = GetValue(field);
  int value = fallback;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool good = error == std::errc() && end == text.data() + text.size() && value >= low && value <= high;
  return good ? value : fallback;
}

TPropertySet& TOptionsServices::PropertySet(const std::string& key) {
  auto& set = sets_[FoldCase(key)];
  if (!set) set = std::make_unique<TPropertySet>(settingsKey_ + "\\" + key);
  return *set;
}

}  // namespace kestrel
