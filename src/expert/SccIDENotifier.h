// Forwards the host's file notifications to the expert.
#pragma once

#include "host/Notifiers.h"

namespace kestrel::addin {

class TSccExpert;

class TSccIDENotifier final : public TNotifierObject, public IOTAIDENotifier {
 public:
  /// `expert` is borrowed; it unregisters the notifier before it is destroyed.
  explicit TSccIDENotifier(TSccExpert& expert) : expert_(expert) {}

  void* QueryInterface(const TGuid& iid) noexcept override;
  void FileNotification(TOTAFileNotification code, const std::string& fileName, bool& cancel) override;
  void BeforeCompile(IOTAProject*, bool&) override {}
  void AfterCompile(bool) override {}

 private:
  TSccExpert& expert_;
};

}  // namespace kestrel::addin
