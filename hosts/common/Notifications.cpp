#include "hosts/common/Notifications.h"

#include "host/Errors.h"
#include "hosts/common/PackageStrings.h"

namespace kestrel {

namespace {

class TScopedDepth {
 public:
  explicit TScopedDepth(int& depth) : depth_(++depth) {}
  TScopedDepth(const TScopedDepth&) = delete;
  TScopedDepth& operator=(const TScopedDepth&) = delete;
  ~TScopedDepth() { --depth_; }

 private:
  int& depth_;
};

}  // namespace

bool TPackageCaller::Run(const std::string& what, const std::function<void()>& code) const {
  const TScopedDepth running(depth_);
  try {
    code();
    return true;
  } catch (const EAbort&) {
    // A package aborts a command after it has informed the user.
  } catch (const std::exception& e) {
    log_(Format(sPackageFailure, {what, e.what()}));
  } catch (...) {
    log_(Format(sPackageFailure, {what, sUnknownFailure}));
  }
  return false;
}

bool TNotifications::Send(TOTAFileNotification code, const std::string& fileName) {
  bool cancel = false;
  notifiers_.ForEach([&](IOTAIDENotifier& notifier) {
    caller_.Run("FileNotification", [&] { notifier.FileNotification(code, fileName, cancel); });
  });
  return !cancel;
}

void TNotifications::FileOpened(const std::string& fileName) {
  Send(TOTAFileNotification::fnFileOpened, fileName);
}

bool TNotifications::FileClosing(const std::string& fileName) {
  return Send(TOTAFileNotification::fnFileClosing, fileName);
}

void TNotifications::ActiveProjectChanged(const std::string& fileName) {
  Send(TOTAFileNotification::fnActiveProjectChanged, fileName);
}

}  // namespace kestrel
