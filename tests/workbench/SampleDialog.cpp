#include "SampleDialog.h"

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <stdexcept>

#include "system/Paths.h"

namespace kestrel::workbench {

namespace {

class TCrewList final : public wxListCtrl {
 public:
  TCrewList(wxWindow* parent, const std::vector<std::string>& files)
      : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, parent->FromDIP(wxSize(360, 160)),
                   wxLC_REPORT | wxLC_VIRTUAL),
        files_(files),
        checked_(files.size()) {
    AppendColumn("File", wxLIST_FORMAT_LEFT, parent->FromDIP(300));
    EnableCheckBoxes();
    SetItemCount(static_cast<long>(files.size()));
    const auto set = [this](bool checked) {
      return [this, checked](wxListEvent& event) {
        checked_[static_cast<std::size_t>(event.GetIndex())] = checked;
      };
    };
    Bind(wxEVT_LIST_ITEM_CHECKED, set(true));
    Bind(wxEVT_LIST_ITEM_UNCHECKED, set(false));
  }

  std::vector<std::string> Ticked() const {
    std::vector<std::string> ticked;
    for (std::size_t i = 0; i < files_.size(); ++i)
      if (checked_[i]) ticked.push_back(files_[i]);
    return ticked;
  }

 protected:
  wxString OnGetItemText(long item, long) const override {
    return wxString::FromUTF8(ExtractFileName(files_[static_cast<std::size_t>(item)]));
  }
  bool OnGetItemIsChecked(long item) const override { return checked_[static_cast<std::size_t>(item)]; }

 private:
  const std::vector<std::string>& files_;
  std::vector<bool> checked_;
};

}  // namespace

TCrewChoice AskCrew(const std::vector<std::string>& files) {
  wxDialog dialog(nullptr, wxID_ANY, "Crew Files", wxDefaultPosition, wxDefaultSize, wxDEFAULT_DIALOG_STYLE);
  auto* list = new TCrewList(&dialog, files);
  auto* label = new wxStaticText(&dialog, wxID_ANY, "&Comment:");
  auto* comment = new wxTextCtrl(&dialog, wxID_ANY);
  comment->SetMaxLength(20);
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  for (wxWindow* window :
       {static_cast<wxWindow*>(list), static_cast<wxWindow*>(label), static_cast<wxWindow*>(comment)})
    sizer->Add(window, wxSizerFlags().Border().Expand());
  auto* mutiny = new wxButton(&dialog, wxID_ANY, "&Mutiny");
  mutiny->Bind(wxEVT_BUTTON, [](wxCommandEvent&) { throw std::runtime_error("the crew mutinies"); });
  sizer->Add(mutiny, wxSizerFlags().Border());
  sizer->Add(dialog.CreateStdDialogButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Border().Expand());
  dialog.SetSizerAndFit(sizer);
  const bool accepted = dialog.ShowModal() == wxID_OK;
  return {accepted, list->Ticked(), comment->GetValue().utf8_string()};
}

}  // namespace kestrel::workbench
