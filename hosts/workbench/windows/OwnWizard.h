// A wizard of the workbench, registered like those of packages.
#pragma once

#include <functional>
#include <string>

#include "host/Services.h"

namespace kestrel::workbench {

class TOwnWizard final : public IOTAWizard {
 public:
  TOwnWizard(std::string name, std::string comment, std::string glyph, IOTAGalleryCategory* category,
             std::function<void()> execute)
      : name_(std::move(name)),
        comment_(std::move(comment)),
        glyph_(std::move(glyph)),
        category_(category),
        execute_(std::move(execute)) {}
  void AfterSave() override {}
  void BeforeSave() override {}
  void Destroyed() override {}
  void Modified() override {}
  std::string GetIDString() override { return "Corvane.Workbench." + name_; }
  std::string GetName() override { return name_; }
  unsigned GetState() override { return wsEnabled; }
  void Execute() override { execute_(); }
  std::string GetAuthor() override { return "Corvane"; }
  std::string GetComment() override { return comment_; }
  std::string GetPage() override { return {}; }
  std::string GetGlyph() override { return glyph_; }
  std::string GetDesigner() override { return "Any"; }
  IOTAGalleryCategory* GetGalleryCategory() override { return category_; }
  std::string GetPersonality() override { return "Default.Personality"; }
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTANotifier, IOTAWizard>(this, iid);
  }

 private:
  std::string name_;
  std::string comment_;
  std::string glyph_;
  IOTAGalleryCategory* category_;
  std::function<void()> execute_;
};

}  // namespace kestrel::workbench
