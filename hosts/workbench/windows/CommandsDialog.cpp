#include "workbench/windows/CommandsDialog.h"

#include <wx/dialog.h>
#include <wx/listctrl.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "hosts/common/MenuBridge.h"
#include "system/Text.h"
#include "toolkit/WxText.h"
#include "workbench/windows/FrameStrings.h"

namespace kestrel::workbench {

namespace {

class TCommandsDialog final : public wxDialog {
 public:
  TCommandsDialog(wxWindow* parent, const TMenuBridge& menus)
      : wxDialog(parent, wxID_ANY, ToWx(sCommandsTitle), wxDefaultPosition, wxDefaultSize,
                 wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
        menus_(menus) {
    auto* label = new wxStaticText(this, wxID_ANY, ToWx(sCommandsFilter));
    filter_ = new wxTextCtrl(this, wxID_ANY);
    list_ = new wxListView(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(420, 260)),
                           wxLC_REPORT | wxLC_NO_HEADER | wxLC_SINGLE_SEL);
    list_->AppendColumn("", wxLIST_FORMAT_LEFT, FromDIP(390));
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(label, wxSizerFlags().Border(wxLEFT | wxTOP | wxRIGHT));
    sizer->Add(filter_, wxSizerFlags().Border().Expand());
    sizer->Add(list_, wxSizerFlags(1).Border().Expand());
    sizer->Add(CreateSeparatedButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Border().Expand());
    SetSizerAndFit(sizer);
    SetMinSize(GetSize());
    CentreOnParent();
    FindWindow(wxID_OK)->SetLabel(ToWx(sCommandsRun));
    filter_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { ShowMatches(); });
    filter_->Bind(wxEVT_CHAR_HOOK, &TCommandsDialog::OnFilterKey, this);
    list_->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent&) { ShowSelected(); });
    list_->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) {
      if (Enabled(Selected())) EndModal(wxID_OK);
    });
    ShowMatches();
    filter_->SetFocus();
  }

  const TAction* Selected() const {
    const long row = list_->GetFirstSelected();
    return row < 0 ? nullptr : shown_[static_cast<std::size_t>(row)];
  }

 private:
  static bool Enabled(const TAction* action) { return action && action->Enabled && action->OnExecute; }

  static wxString RowText(const TAction& action) {
    const wxString caption = wxControl::RemoveMnemonics(ToWx(action.Caption));
    return action.Category.empty() ? caption
                                   : ToWx(Format(sCommandRow, {action.Category, caption.utf8_string()}));
  }

  void ShowMatches() {
    const wxString wanted = filter_->GetValue().Lower();
    list_->DeleteAllItems();
    shown_.clear();
    wxVector<wxBitmapBundle> images;
    for (const TAction* action : menus_.Actions())
      if (action->Visible && RowText(*action).Lower().Contains(wanted)) shown_.push_back(action);
    for (const TAction* action : shown_) AddRow(*action, images);
    list_->SetSmallImages(images);
    if (!shown_.empty()) list_->Select(0);
    ShowSelected();
  }

  void AddRow(const TAction& action, wxVector<wxBitmapBundle>& images) {
    const auto image = menus_.ImageAt(action.ImageIndex);
    if (image.IsOk()) images.push_back(image);
    const long row = list_->InsertItem(list_->GetItemCount(), RowText(action),
                                       image.IsOk() ? static_cast<int>(images.size()) - 1 : -1);
    if (!Enabled(&action)) list_->SetItemTextColour(row, wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
  }

  void ShowSelected() { FindWindow(wxID_OK)->Enable(Enabled(Selected())); }

  void OnFilterKey(wxKeyEvent& event) {
    // Up and Down select a match while the text box keeps the focus.
    const int step = event.GetKeyCode() == WXK_DOWN ? 1 : event.GetKeyCode() == WXK_UP ? -1 : 0;
    const long row = list_->GetFirstSelected() + step;
    if (step == 0) return event.Skip();
    if (row < 0 || row >= list_->GetItemCount()) return;
    list_->Select(row);
    list_->EnsureVisible(row);
  }

  const TMenuBridge& menus_;
  std::vector<const TAction*> shown_;
  wxTextCtrl* filter_ = nullptr;
  wxListView* list_ = nullptr;
};

}  // namespace

const TAction* ChooseAction(wxWindow* parent, const TMenuBridge& menus) {
  TCommandsDialog dialog(parent, menus);
  return dialog.ShowModal() == wxID_OK ? dialog.Selected() : nullptr;
}

}  // namespace kestrel::workbench
