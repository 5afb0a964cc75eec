// The message pane: lines for the user, kept until they are cleared.
#pragma once

#include <wx/listctrl.h>

#include <string>
#include <vector>

namespace kestrel::workbench {

class TMessagePane final : public wxListView {
 public:
  explicit TMessagePane(wxWindow* parent);
  void AddLine(const std::string& line);

 private:
  void CopySelected();
  void ShowContextMenu(wxContextMenuEvent& event);
  void FitColumn();
};

}  // namespace kestrel::workbench
