#include "workbench/windows/OptionsDialog.h"

#include <wx/dialog.h>
#include <wx/listbox.h>
#include <wx/msgdlg.h>
#include <wx/simplebook.h>
#include <wx/sizer.h>

#include "hosts/common/IdeServices.h"
#include "hosts/common/OptionBindings.h"
#include "system/Text.h"
#include "toolkit/WxText.h"
#include "workbench/model/Settings.h"
#include "workbench/windows/FrameStrings.h"
#include "workbench/windows/GeneralPage.h"

namespace kestrel::workbench {

namespace {

class TOptionsDialog final : public wxDialog {
 public:
  TOptionsDialog(wxWindow* parent, TIdeServices& services)
      : wxDialog(parent, wxID_ANY, ToWx(sOptionsTitle), wxDefaultPosition, wxDefaultSize,
                 wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
        options_(services.Options()),
        caller_(services.Caller()),
        help_(services.Application().Help()),
        list_(new wxListBox(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(190, -1)))),
        book_(new wxSimplebook(this)),
        general_(options_.PropertySet(kGeneralSet)) {
    AddPage(GeneralOptionsPage(), general_);
    options_.AddIns().ForEach([&](IOTAAddInOptions& addIn) { AddAddIn(addIn); });
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    auto* columns = new wxBoxSizer(wxHORIZONTAL);
    columns->Add(list_, wxSizerFlags().Border().Expand());
    columns->Add(book_, wxSizerFlags(1).Border().Expand());
    sizer->Add(columns, wxSizerFlags(1).Expand());
    sizer->Add(CreateSeparatedButtonSizer(wxOK | wxCANCEL | wxHELP), wxSizerFlags().Border().Expand());
    SetSizerAndFit(sizer);
    SetSize(wxSize(FromDIP(680), FromDIP(480)));
    SetMinSize(GetBestSize());
    CentreOnParent();
    list_->SetSelection(0);
    list_->SetFocus();
    list_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent& event) {
      book_->SetSelection(static_cast<std::size_t>(event.GetInt()));
    });
    book_->Bind(wxEVT_BOOKCTRL_PAGE_CHANGED,
                [this](wxBookCtrlEvent& event) { list_->SetSelection(event.GetSelection()); });
    Bind(
        wxEVT_BUTTON,
        [this](wxCommandEvent& event) {
          if (Store()) event.Skip();
        },
        wxID_OK);
    const auto help = [this] { help_.Show(helpTopics_[static_cast<std::size_t>(book_->GetSelection())]); };
    Bind(
        wxEVT_BUTTON, [help](wxCommandEvent&) { help(); }, wxID_HELP);
    Bind(wxEVT_CHAR_HOOK, [help](wxKeyEvent& event) {
      if (event.GetKeyCode() != WXK_F1) return event.Skip();
      help();
    });
  }

 private:
  struct TAddIn {
    IOTAAddInOptions* Options;
    std::unique_ptr<TOptionBindings> Bindings;
  };

  class TEnvironment final : public IOTAEnvironmentDialog {
   public:
    TEnvironment(TOptionsDialog& dialog, TOptionBindings& bindings) : dialog_(dialog), bindings_(bindings) {}
    void RegisterPage(TOptionsPage page) override { dialog_.AddPage(page, bindings_); }

   private:
    TOptionsDialog& dialog_;
    TOptionBindings& bindings_;
  };

  void AddPage(const TOptionsPage& page, TOptionBindings& bindings) {
    const wxString caption = ToWx(page.Caption);
    book_->AddPage(page.Create(book_, bindings), caption);
    list_->Append(caption);
    helpTopics_.push_back(page.HelpContext ? std::to_string(page.HelpContext) : std::string());
  }

  void AddAddIn(IOTAAddInOptions& addIn) {
    caller_.Run("CustomizeDialog", [&] {
      addIn.LoadOptions();
      addIns_.push_back({&addIn, std::make_unique<TOptionBindings>(addIn.GetPropertySet())});
      TEnvironment environment(*this, *addIns_.back().Bindings);
      addIn.CustomizeDialog(environment);
    });
  }

  bool Store() {
    try {
      general_.Store();
      options_.PropertySet(kGeneralSet).Save();
      for (const auto& [addIn, bindings] : addIns_) {
        if (bindings->Store()) addIn->SendModified();
        if (addIn->GetIsModified()) addIn->SaveOptions();
      }
      return true;
    } catch (const std::exception& e) {
      wxMessageBox(ToWx(Format(sCannotSaveOptions, {e.what()})), ToWx(sOptionsTitle), wxOK | wxICON_ERROR,
                   this);
      return false;
    }
  }

  TOptionsServices& options_;
  const TPackageCaller& caller_;
  THelpWindow& help_;
  wxListBox* list_;
  wxSimplebook* book_;
  TOptionBindings general_;
  std::vector<TAddIn> addIns_;
  std::vector<std::string> helpTopics_;  // of each page
};

}  // namespace

bool ShowOptionsDialog(wxWindow* parent, TIdeServices& services) {
  TOptionsDialog dialog(parent, services);
  return dialog.ShowModal() == wxID_OK;
}

}  // namespace kestrel::workbench
