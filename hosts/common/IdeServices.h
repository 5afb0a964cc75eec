// The root of a host's services, and the services that are the same in every host.
#pragma once

#include <functional>
#include <map>
#include <memory>

#include "hosts/common/Gallery.h"
#include "hosts/common/PropertySets.h"
#include "toolkit/HelpWindow.h"

namespace kestrel {

/// The event for the main form, and help.
class TApplicationService final : public IOTAApplication {
 public:
  explicit TApplicationService(std::string helpFolder) : help_(std::move(helpFolder)) {}
  TEvent<>& MainFormCreated() override { return created_; }
  bool HelpKeyword(const std::string& keyword) override;
  THelpWindow& Help() { return help_; }
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAApplication>(this, iid);
  }

 private:
  TEvent<> created_;
  THelpWindow help_;
};

/// The target of CorvaneIDEServices. Services that need windows can be queried once the main form exists.
class TIdeServices final : public IOTAServices {
 public:
  /// `settingsKey` is the host's key in the current user's registry.
  TIdeServices(std::string settingsKey, std::string helpFolder, TLogLine log);
  ~TIdeServices() override;

  /// Makes a service, which is borrowed, available to QueryInterface.
  template <class T>
  void Publish(T& service) {
    published_.push_back({T::IID, &service});
  }
  /// Withdraws the services that need the main form, and closes the help.
  void WithdrawWindowServices();
  /// Drops the objects that packages did not unregister; returns their number.
  std::size_t DropRegistrations();

  int AddNotifier(std::shared_ptr<IOTAIDENotifier> notifier) override;
  void RemoveNotifier(int index) override;
  TWindowHandle GetParentHandle() override;
  std::string GetStartupDirectory() override { return startupDirectory_; }
  void* QueryInterface(const TGuid& iid) noexcept override;

  const TPackageCaller& Caller() const { return caller_; }
  TNotifications& Notifications() { return notifications_; }
  TOptionsServices& Options() { return options_; }
  TWizardServices& Wizards() { return wizards_; }
  TGalleryCategories& Categories() { return categories_; }
  TApplicationService& Application() { return application_; }

 private:
  struct TPublished {
    TGuid Iid;
    void* Service;
  };
  TPackageCaller caller_;
  TNotifications notifications_{caller_};
  TWizardServices wizards_{caller_};
  TOptionsServices options_;
  TGalleryCategories categories_;
  TApplicationService application_;
  std::vector<TPublished> published_;
  std::size_t windowless_;
  std::string startupDirectory_;
};

}  // namespace kestrel
