// What the provider tests share: a sink that remembers, and a session on the scripted provider.
#pragma once

#include <memory>
#include <utility>

#include "host/Errors.h"
#include "provider/sccapi.h"
#include "provider/sccapiintf.h"
#include "support/ScriptedProvider.h"
#include "support/Testing.h"

namespace kestrel::addin {

class RecordingSink : public IProviderSink {
 public:
  RecordingSink() : before_(SetProviderSink(this)) {}
  ~RecordingSink() override { SetProviderSink(before_); }
  void Line(TSeverity severity, const std::string& text) override { Lines.emplace_back(severity, text); }
  void Box(const std::string& text) override { Boxes.push_back(text); }

  /// The texts of one severity.
  std::vector<std::string> Of(TSeverity severity) const {
    std::vector<std::string> texts;
    for (const auto& [lineSeverity, text] : Lines)
      if (lineSeverity == severity) texts.push_back(text);
    return texts;
  }

  std::vector<std::pair<TSeverity, std::string>> Lines;
  std::vector<std::string> Boxes;

 private:
  IProviderSink* before_;
};

/// One session for /p on the scripted provider, not opened yet.
class SessionTest : public testing::Test {
 protected:
  SessionTest() : list(std::make_unique<TSCCProviderList>(provider.Path(), 77, "ann")) {
    list->Add("/p");
    provider->Calls.clear();
  }
  TSCCProviderProject& session() { return *list->GetItem(0); }

  ScriptedProviderLibrary provider;
  RecordingSink sink;
  std::unique_ptr<TSCCProviderList> list;
  TStateMessages messages{"old", "old", "old"};
};

/// The message of the EAbort that `action` ends with.
template <class Action>
std::string AbortOf(Action&& action) {
  try {
    action();
  } catch (const EAbort& error) {
    return error.what();
  }
  return "(no EAbort)";
}

}  // namespace kestrel::addin
