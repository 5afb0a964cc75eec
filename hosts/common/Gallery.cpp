#include "hosts/common/Gallery.h"

#include "hosts/common/PackageStrings.h"

namespace kestrel {

namespace {
struct TCategoryRow {
  const char* Id;
  const TResString& Name;
};
// The last category is the one for wizards without a category.
constexpr TCategoryRow kCategories[] = {
    {"Corvane.Osprey.New", sCategoryNew},
    {"Corvane.Osprey.Other", sCategoryOther},
};
}  // namespace

TGalleryCategories::TGalleryCategories() {
  for (const auto& row : kCategories)
    categories_.push_back(std::make_unique<TGalleryCategory>(row.Id, row.Name));
}

IOTAGalleryCategory* TGalleryCategories::FindCategory(const std::string& idString) {
  for (const auto& category : categories_)
    if (category->GetIDString() == idString) return category.get();
  return nullptr;
}

void TWizardServices::RemoveWizard(int index) {
  if (const auto wizard = wizards_.Remove(index)) caller_.Run("Destroyed", [&] { wizard->Destroyed(); });
}

}  // namespace kestrel
