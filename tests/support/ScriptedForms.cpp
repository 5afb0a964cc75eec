#include "support/ScriptedForms.h"

namespace kestrel::addin {

namespace {

class TScriptedWindow final : public IMessageWindow {
 public:
  explicit TScriptedWindow(TScriptedForms& forms) : forms_(forms) {}
  using IMessageWindow::SendMessage;
  void SendMessage(TMsgWinType kind, const std::string& text) override {
    if (forms_.Recording) forms_.Lines.emplace_back(kind, text);
  }
  void CallSoon(std::function<void()> body) override { forms_.Soon.push_back(std::move(body)); }
  void ShowWindow(bool show) override { forms_.WindowShown = show; }

 private:
  TScriptedForms& forms_;
};

class TScriptedProgress final : public IProgress {
 public:
  TScriptedProgress(TScriptedForms& forms, std::string caption, std::size_t total)
      : forms_(forms), caption_(std::move(caption)), total_(total) {}
  TScriptedProgress(const TScriptedProgress&) = delete;
  TScriptedProgress& operator=(const TScriptedProgress&) = delete;
  ~TScriptedProgress() override {
    if (!forms_.Recording) return;
    forms_.Progress.push_back(
        call_.empty() ? caption_ + " " + std::to_string(steps_) + "/" + std::to_string(total_) : call_);
  }
  void Step(std::size_t done, const std::string& what) override {
    ++steps_;
    if (call_.empty()) return;
    call_ += (steps_ == 1 ? " " : ", ") + what + " " + std::to_string(done);
  }
  void BeginCall(const std::string& what, std::chrono::microseconds) override {
    call_ = caption_ + ": " + what;
  }

 private:
  TScriptedForms& forms_;
  std::string caption_;
  std::size_t total_;
  std::size_t steps_ = 0;
  std::string call_;
};

int Next(auto& script, auto& model, const std::string& what, std::vector<std::string>& unexpected) {
  if (script.empty()) {
    unexpected.push_back(what);
    return mrCancel;
  }
  const auto act = std::move(script.front());
  script.pop_front();
  return act(model);
}

}  // namespace

std::vector<std::string> TScriptedForms::LinesOf(TMsgWinType kind) const {
  std::vector<std::string> texts;
  for (const auto& [lineKind, text] : Lines)
    if (lineKind == kind) texts.push_back(text);
  return texts;
}

std::unique_ptr<IMessageWindow> TScriptedForms::CreateMessageWindow() {
  return std::make_unique<TScriptedWindow>(*this);
}

void TScriptedForms::ShowMsgDialog(const std::string& title, const std::string& text, TMsgType kind) {
  if (Recording) Boxes.push_back({title, text, kind});
  if (WhileBoxShown) WhileBoxShown();
}

int TScriptedForms::ShowFileList(TCommandContext&, TFileListModel& model) {
  return Next(OnFileList, model, model.Caption, Unexpected);
}

int TScriptedForms::ShowComments(TCommentModel& model) {
  return Next(OnComments, model, model.Caption.empty() ? "Comments" : model.Caption, Unexpected);
}

void TScriptedForms::ShowCommitBrowser(TCommandContext& context) {
  Next(OnCommitBrowser, context, "Commit Browser", Unexpected);
}

void TScriptedForms::ShowPlaceProject(TCommandContext& context) {
  Next(OnPlaceProject, context, "Place project", Unexpected);
}

std::string TScriptedForms::ShowPullProject(TCommandContext& context) {
  const bool pulled = Next(OnPullProject, context, "Pull project", Unexpected) == mrOk;
  return pulled ? PulledProject : std::string();
}

std::unique_ptr<IProgress> TScriptedForms::StartProgress(const std::string& caption, std::size_t total) {
  return std::make_unique<TScriptedProgress>(*this, caption, total);
}

}  // namespace kestrel::addin
