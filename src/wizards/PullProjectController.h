// The logic of the wizard that fetches a provider project into a local directory.
#pragma once

#include "wizards/WizardController.h"

namespace kestrel::addin {

class TPullProjectController final : public TWizardController {
 public:
  explicit TPullProjectController(TCommandContext& expert);

  void TargetDirectoryChange(const std::string& text);
  const std::string& TargetDirectory() const { return target_; }
  /// Remarks about the target directory for the user; may be empty.
  const std::string& TargetNote() const { return note_; }

  /// The current step, for the line above the status list; empty when the work is done.
  const std::string& Progress() const { return progress_; }
  /// Whether the project was pulled and can be opened in the host.
  bool CanOpen() const { return canOpen_; }
  /// The project file among the pulled files; empty until found.
  const std::string& ProjectFile() const { return FProjectFile; }

 private:
  const TResString& StepCaption() const override;
  const TResString& StatusCaption() const override;
  void ShowPage(int page) override;
  std::string ProjectDirectory() override;
  std::string NoProviderText() const override;
  bool Offers(const std::string& provider) const override;
  scc::Long Browse(TSCCProviderProject& project, TStateMessages& messages) override;
  bool CanLeave() override;

  std::string FullTarget(const std::string& text);
  void PageSelectTargetDisplay();
  void PageSelectProjectDisplay();
  void PullProject();
  bool Pull();
  bool Open(TProviderMessageRecorder& recorder);
  std::size_t FindProjectFile();
  bool Fetch(std::size_t expected);
  void ListFetched();
  void WriteMapping();
  void Finish();
  void MoveToTarget();
  void BeginStep(const TResString& text);

  std::string target_;
  std::string note_;
  std::string progress_;
  std::string FProjectFile;
  bool canOpen_ = false;
};

}  // namespace kestrel::addin
