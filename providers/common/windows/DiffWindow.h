// Two versions of a file side by side, compared by FileDiff.
#pragma once

#include <memory>

#include "common/text/Contents.h"
#include "common/text/FileDiff.h"
#include "common/windows/WindowTools.h"

namespace kestrel {

struct DiffSide {
  std::string Title;
  Contents Text;
};

class DiffPane;

class DiffWindow : public ToolWindow {
 public:
  /// `name` is the file's name for the title.
  DiffWindow(wxWindow* parent, const std::string& name, DiffSide left, DiffSide right,
             const DiffOptions& options, LineMatcher matchCommon);
  ~DiffWindow() override;

  /// Whether the versions are equal apart from what the check boxes ignore.
  bool Same() const;

 private:
  wxSizer* CreateTools(const DiffOptions& options);
  wxSizer* CreatePanes();
  void BindKeys();
  void Compare();
  void ShowRows();
  void ShowState();
  void GoTo(std::optional<std::size_t> row);
  std::size_t CurrentRow() const;
  std::string Sentence() const;

  DiffSide left_;
  DiffSide right_;
  std::unique_ptr<FileDiff> diff_;  // null when one side is not text
  wxButton* previous_ = nullptr;
  wxButton* next_ = nullptr;
  wxCheckBox* ignoreCase_ = nullptr;
  wxCheckBox* ignoreSpace_ = nullptr;
  wxStaticText* message_ = nullptr;
  DiffPane* leftPane_ = nullptr;
  DiffPane* rightPane_ = nullptr;
};

}  // namespace kestrel
