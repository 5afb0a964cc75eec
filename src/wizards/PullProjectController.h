// The wizard that fetches a provider project into a local directory, without its window.
#pragma once

#include "wizards/WizardController.h"

namespace kestrel::addin {

class TPullProjectController final : public TWizardController {
 public:
  explicit TPullProjectController(TCommandContext& expert);

  void TargetDirectoryChange(const std::string& text);
  const std::string& TargetDirectory() const { return target_; }
  /// A sentence about the target directory that the user should know; empty when there is nothing to say.
  const std::string& TargetNote() const { return note_; }

  /// What is being done on the status page, for the line above the list.
  const std::string& Progress() const { return progress_; }
  /// The project is there and can be opened in the host.
  bool CanOpen() const { return can_open_; }
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
  bool MayLeave() override;

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
  bool can_open_ = false;
};

}  // namespace kestrel::addin
