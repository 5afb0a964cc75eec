// The tabbed editors.
#pragma once

#include <wx/aui/auibook.h>

#include <functional>

#include "host/FileStates.h"
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
    std::function<const TFileState&(const std::string& fileName)> StateOf;
    /// The user typed into a read-only file; returns whether a question follows.
    std::function<bool(const std::string& fileName, const wxKeyEvent& key)> TypingRefused;
    std::function<void(wxMenu&, TTextEditor&)> FillTabMenu;
  };
  TEditorBook(wxWindow* parent, THooks hooks, int fontSize);

  void AddEditor(TTextEditor& editor);
  void RemoveEditor(TTextEditor& editor);
  void ShowEditor(TTextEditor& editor);
  /// Updates caption, images and tool tip.
  void RefreshEditor(TTextEditor& editor);
  /// The same for all pages.
  void RefreshEditors();
  /// Tells in the status bar why the user cannot type.
  void ShowReadOnlyHint(TTextEditor& editor);
  void SetFontSize(int points);

  /// The page in front; null if there is none.
  TEditorPage* FrontPage() const;
  TEditorPage* PageOf(const TTextEditor& editor) const;
  /// The page of that file; null if it is not open.
  TEditorPage* PageOf(const std::string& fileName) const;

 private:
  class TPageOwner;
  void RefreshPage(std::size_t index);
  TEditorPage* PageAt(std::size_t index) const { return static_cast<TEditorPage*>(GetPage(index)); }
  THooks hooks_;
  std::shared_ptr<IEditorPageOwner> owner_;
  int fontSize_;
};

}  // namespace kestrel::workbench
