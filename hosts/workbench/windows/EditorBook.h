// The tabbed editors.
#pragma once

#include <wx/aui/auibook.h>

#include <functional>

#include "workbench/windows/EditorPage.h"

class wxMenu;

namespace kestrel::workbench {

class TEditorBook final : public wxAuiNotebook {
 public:
  /// Implemented by the frame.
  struct THooks {
    std::function<void()> StateChanged;              ///< another page, caret, modified or read-only state
    std::function<void(TTextEditor&)> CloseWanted;   ///< the user clicked a tab's close button
    std::function<void(const std::string&)> Status;  ///< a hint for the status bar
    std::function<void(wxMenu&, TTextEditor&)> FillTabMenu;
  };
  TEditorBook(wxWindow* parent, THooks hooks, int fontSize);

  void AddEditor(TTextEditor& editor);
  void RemoveEditor(TTextEditor& editor);
  void ShowEditor(TTextEditor& editor);
  /// Updates caption, lock image and tool tip.
  void RefreshEditor(TTextEditor& editor);
  void SetFontSize(int points);

  /// The page in front; null if there is none.
  TEditorPage* FrontPage() const;
  TEditorPage* PageOf(const TTextEditor& editor) const;

 private:
  class TPageOwner;
  TEditorPage* PageAt(std::size_t index) const { return static_cast<TEditorPage*>(GetPage(index)); }
  THooks hooks_;
  std::shared_ptr<IEditorPageOwner> owner_;
  int fontSize_;
};

}  // namespace kestrel::workbench
