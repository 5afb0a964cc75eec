#include "common/windows/TextWindow.h"

#include "common/windows/WindowStrings.h"
#include "toolkit/WxText.h"

namespace kestrel {
namespace {

class TextWindow : public ToolWindow {
 public:
  TextWindow(wxWindow* parent, const std::string& title, const Contents& contents)
      : ToolWindow(parent, title) {
    auto* all = new wxBoxSizer(wxVERTICAL);
    const int gap = FromDIP(8);
    auto* pane = new TextPane(this, "text");
    const auto size = static_cast<long long>(contents.Bytes.size());
    pane->ShowText(contents.IsBinary ? Format(sNoText.Text, {size}) : ToUtf8(contents.Bytes));
    all->Add(pane, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    AddClose(row);
    all->Add(row, wxSizerFlags().Expand().Border(wxALL, gap));
    UseSizer(all, {760, 560}, {320, 200});
    pane->SetFocus();
  }
};

}  // namespace

void ShowTextWindow(wxWindow* parent, const std::string& title, const Contents& contents) {
  TextWindow(parent, title, contents).ShowModal();
}

}  // namespace kestrel
