// The gallery's categories and wizards.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "hosts/common/Notifications.h"

namespace kestrel {

class TGalleryCategory final : public IOTAGalleryCategory {
 public:
  TGalleryCategory(std::string id, std::string name) : id_(std::move(id)), name_(std::move(name)) {}
  std::string GetIDString() override { return id_; }
  std::string GetDisplayName() override { return name_; }
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAGalleryCategory>(this, iid);
  }

 private:
  std::string id_;
  std::string name_;
};

class TGalleryCategories final : public IOTAGalleryCategoryManager {
 public:
  TGalleryCategories();
  IOTAGalleryCategory* FindCategory(const std::string& idString) override;
  const std::vector<std::unique_ptr<TGalleryCategory>>& InOrder() const { return categories_; }
  /// The category of wizards that name none.
  TGalleryCategory& Other() { return *categories_.back(); }
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAGalleryCategoryManager>(this, iid);
  }

 private:
  std::vector<std::unique_ptr<TGalleryCategory>> categories_;
};

class TWizardServices final : public IOTAWizardServices {
 public:
  explicit TWizardServices(const TPackageCaller& caller) : caller_(caller) {}
  int AddWizard(std::shared_ptr<IOTAWizard> wizard) override { return wizards_.Add(std::move(wizard)); }
  void RemoveWizard(int index) override;
  TRegistrations<IOTAWizard>& Wizards() { return wizards_; }
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAWizardServices>(this, iid);
  }

 private:
  const TPackageCaller& caller_;
  TRegistrations<IOTAWizard> wizards_;
};

}  // namespace kestrel
