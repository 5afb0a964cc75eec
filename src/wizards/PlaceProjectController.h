// The logic of the wizard that puts the current host project under source control.
#pragma once

#include <vector>

#include "wizards/WizardController.h"

namespace kestrel::addin {

class TPlaceProjectController final : public TWizardController {
 public:
  explicit TPlaceProjectController(TCommandContext& expert);

  // The files of the first check-in: paths relative to the project's directory, all checked at first.
  std::size_t FileCount() const { return files_.size(); }
  const std::string& FileName(std::size_t row) const { return shown_[row]; }
  bool IsTicked(std::size_t row) const { return ticked_[row]; }
  void SetTicked(std::size_t row, bool ticked) { ticked_[row] = ticked; }
  bool KeepCheckedOut = false;

 private:
  const TResString& StepCaption() const override;
  const TResString& StatusCaption() const override;
  void ShowPage(int page) override;
  std::string ProjectDirectory() override { return directory_; }
  std::string NoProviderText() const override;
  scc::Long Browse(TSCCProviderProject& project, TStateMessages& messages) override;
  bool SkipsProjectPage() const override;

  void PageSelectProjectDisplay();
  void PageSelectFilesDisplay();
  void PlaceProject();
  bool Place();
  bool Open(class TMappingFile& mapping, TProviderMessageRecorder& recorder);
  void AddFiles(TProviderMessageRecorder& recorder, bool opened);
  void AddFile(std::size_t row, TProviderMessageRecorder& recorder, bool opened);
  void RollBack();

  std::string projectFile_;
  std::string directory_;
  TStringList files_;
  TStringList shown_;
  std::vector<bool> ticked_;
};

}  // namespace kestrel::addin
