// Choosing files that are in the repository and not on disk.
#include "common/windows/WindowTools.h"
#include "subversion/commands/Commands.h"
#include "subversion/commands/MissingFiles.h"
#include "subversion/svn/SvnStrings.h"
#include "subversion/windows/ProviderWindowStrings.h"
#include "subversion/windows/ProviderWindows.h"
#include "toolkit/WxText.h"

namespace kestrel::svnscc {
namespace {

/// A RowList with check boxes.
class CheckedList : public RowList {
 public:
  CheckedList(wxWindow* parent, const char* name, const std::vector<Column>& columns, TextOf textOf)
      : RowList(parent, name, columns, std::move(textOf)) {
    EnableCheckBoxes();
    Bind(wxEVT_LIST_ITEM_CHECKED, [this](wxListEvent& event) { Check(event, true); });
    Bind(wxEVT_LIST_ITEM_UNCHECKED, [this](wxListEvent& event) { Check(event, false); });
    Bind(wxEVT_LIST_KEY_DOWN, [this](wxListEvent& event) {
      const long row = Selected();
      if (event.GetKeyCode() != WXK_SPACE || row < 0) return event.Skip();
      CheckItem(row, !checked_.at(static_cast<std::size_t>(row)));
    });
  }
  void SetAll(std::size_t count, bool checked) {
    checked_.assign(count, checked);
    SetRows(count);
  }
  const std::vector<bool>& Checked() const { return checked_; }

 protected:
  bool OnGetItemIsChecked(long row) const override { return checked_.at(static_cast<std::size_t>(row)); }

 private:
  void Check(wxListEvent& event, bool checked) {
    checked_.at(static_cast<std::size_t>(event.GetIndex())) = checked;
    RefreshItem(event.GetIndex());
    event.Skip();
  }
  std::vector<bool> checked_;
};

class AddFromSccDialog : public ToolWindow {
 public:
  AddFromSccDialog(wxWindow* parent, ProviderContext& context, const std::vector<std::string>& files)
      : ToolWindow(parent, sAddFromTitle), files_(files) {
    auto* all = new wxBoxSizer(wxVERTICAL);
    const int gap = FromDIP(10);
    all->Add(new wxStaticText(this, wxID_ANY, ToWx(files.empty() ? sNothingToAdd : sAddFromPrompt)),
             wxSizerFlags().Border(wxLEFT | wxRIGHT | wxTOP, gap));
    list_ = new CheckedList(
        this, "files", {{sFileColumn, 420}},
        [this, &context](std::size_t row, std::size_t) { return context.Label(files_.at(row)); });
    all->Add(list_, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    auto* every = AddButton(row, sSelectAll, [this] { SetAll(true); });
    auto* none = AddButton(row, sSelectNone, [this] { SetAll(false); });
    for (wxButton* button : {every, none}) button->Enable(!files.empty());
    row->AddStretchSpacer();
    ok_ = new wxButton(this, wxID_OK, ToWx(sAddFromButton));
    ok_->SetDefault();
    row->Add(ok_, wxSizerFlags().Border(wxRIGHT, FromDIP(6)));
    row->Add(new wxButton(this, wxID_CANCEL));
    all->Add(row, wxSizerFlags().Expand().Border(wxALL, gap));
    UseSizer(all, {520, 440}, {360, 260});
    list_->Bind(wxEVT_LIST_ITEM_CHECKED, [this](wxListEvent& event) { ShowState(event); });
    list_->Bind(wxEVT_LIST_ITEM_UNCHECKED, [this](wxListEvent& event) { ShowState(event); });
    list_->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) {
      if (ok_->IsEnabled()) EndModal(wxID_OK);
    });
    SetAll(false);
    list_->Select(0);
    list_->SetFocus();
  }

  std::vector<std::string> Chosen() const {
    std::vector<std::string> chosen;
    for (std::size_t i = 0; i < files_.size(); ++i)
      if (list_->Checked()[i]) chosen.push_back(files_[i]);
    return chosen;
  }

 private:
  void SetAll(bool checked) {
    list_->SetAll(files_.size(), checked);
    ok_->Enable(checked && !files_.empty());
  }
  void ShowState(wxListEvent& event) {
    event.Skip();
    CallAfter([this] { ok_->Enable(!Chosen().empty()); });
  }

  const std::vector<std::string>& files_;
  CheckedList* list_ = nullptr;
  wxButton* ok_ = nullptr;
};

}  // namespace

scc::Long ChooseMissingFiles(ProviderContext& context, scc::WindowHandle parent, const char* folder,
                             std::vector<std::string>& names) {
  RequireWindows();
  const std::string below = folder != nullptr ? context.InsidePath(folder) : context.CurrentProject().Folder;
  if (below.empty()) throw Failure(scc::SCC_E_INVALIDFILEPATH, sOutsideProject);
  const auto missing = MissingFiles(context, below);
  AddFromSccDialog dialog(ParentFor(parent), context, missing);
  if (dialog.ShowModal() != wxID_OK) return scc::SCC_I_OPERATIONCANCELED;
  for (const auto& path : dialog.Chosen()) names.push_back(NativeName(path));
  if (names.empty()) return scc::SCC_I_OPERATIONCANCELED;
  std::vector<const char*> pointers;
  pointers.reserve(names.size());
  for (const auto& name : names) pointers.push_back(name.c_str());
  return GetFiles(context, pointers, {});
}

}  // namespace kestrel::svnscc
