#include "OptionsPanel.h"

#include <wx/msgdlg.h>
#include <wx/sizer.h>

#include "PluginStrings.h"
#include "toolkit/WxText.h"

namespace kestrel::codeblocks {

namespace {

/// Puts the pages of an add-in below each other.
class TPages final : public IOTAEnvironmentDialog {
 public:
  TPages(wxWindow& panel, IOTAOptionsPageHost& bindings) : panel_(panel), bindings_(bindings) {}
  void RegisterPage(TOptionsPage page) override {
    panel_.GetSizer()->Add(page.Create(&panel_, bindings_), wxSizerFlags(1).Expand());
  }

 private:
  wxWindow& panel_;
  IOTAOptionsPageHost& bindings_;
};

}  // namespace

TOptionsPanel::TOptionsPanel(wxWindow* parent, TOptionsServices& options, const TPackageCaller& caller) {
  Create(parent);
  SetSizer(new wxBoxSizer(wxVERTICAL));
  options.AddIns().ForEachShared([&](const std::shared_ptr<IOTAAddInOptions>& addIn) {
    caller.Run("CustomizeDialog", [&] {
      addIn->LoadOptions();
      addIns_.push_back({addIn, std::make_unique<TOptionBindings>(addIn->GetPropertySet())});
      TPages pages(*this, *addIns_.back().Bindings);
      addIn->CustomizeDialog(pages);
    });
  });
}

wxString TOptionsPanel::GetTitle() const { return ToWx(sOptionsPanel); }

void TOptionsPanel::OnApply() {
  try {
    for (const auto& [addIn, bindings] : addIns_) {
      if (bindings->Store()) addIn->SendModified();
      if (addIn->GetIsModified()) addIn->SaveOptions();
    }
  } catch (const std::exception& e) {
    wxMessageBox(ToWx(Format(sOptionsNotSaved, {e.what()})), ToWx(sPluginTitle), wxOK | wxICON_ERROR, this);
  }
}

}  // namespace kestrel::codeblocks
