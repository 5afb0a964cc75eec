#include "provider/SCMOptions.h"

#include <wx/choice.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "provider/SCMAddInOptions.h"
#include "provider/SCMOptionsStrings.h"
#include "provider/sccapiintf.h"
#include "system/Registry.h"
#include "toolkit/WxText.h"
#include "toolkit/WxWheel.h"

namespace kestrel::addin {

namespace {

constexpr int kPageWidth = 418;
constexpr int kPageHeight = 332;
constexpr int kMargin = 24;
constexpr int kIndent = 8;  // of a control under its label
constexpr int kProviderWidth = 345;
constexpr int kUserNameWidth = 177;
constexpr int kGap = 100;  // between the two groups

}  // namespace

TSCMOptionsPage::TSCMOptionsPage(wxWindow* parent, IOTAOptionsPageHost& host, TChosen chosen)
    : wxPanel(parent), chosen_(std::move(chosen)) {
  Arrange();
  PropertySheetCreate(host);
  TPropComboBoxSCMProvider->Bind(wxEVT_CHOICE, &TSCMOptionsPage::TPropComboBoxSCMProviderChange, this);
}

// Each label is created just before its control, because its access key moves the focus to the next control.
void TSCMOptionsPage::Arrange() {
  auto* column = new wxBoxSizer(wxVERTICAL);
  const auto indented = wxSizerFlags().Border(wxLEFT, FromDIP(kIndent));
  column->Add(new wxStaticText(this, wxID_ANY, ToWx(sSCMProvidersLabel)));
  TPropComboBoxSCMProvider =
      new wxChoice(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(kProviderWidth, -1)));
  IgnoreWheel(*TPropComboBoxSCMProvider);
  column->Add(TPropComboBoxSCMProvider, indented);
  column->AddSpacer(FromDIP(kGap));
  column->Add(new wxStaticText(this, wxID_ANY, ToWx(sSCMUserNameLabel)));
  TPropEditSCMUserName =
      new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(kUserNameWidth, -1)));
  column->Add(TPropEditSCMUserName, indented);
  auto* page = new wxBoxSizer(wxVERTICAL);
  page->Add(column, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(kMargin)));
  SetSizer(page);
  SetMinSize(FromDIP(wxSize(kPageWidth, kPageHeight)));
}

void TSCMOptionsPage::ReadProviders() {
  TRegistry registry;
  if (!registry.OpenKeyReadOnly(kInstalledProvidersKey)) return;
  for (const auto& name : registry.GetValueNames()) TPropComboBoxSCMProvider->Append(ToWx(name));
}

void TSCMOptionsPage::PropertySheetCreate(IOTAOptionsPageHost& host) {
  const auto setting = ToWx(host.GetValue(kSCMProviderField));
  ReadProviders();
  host.Bind(TPropEditSCMUserName, kSCMUserNameField);
  const auto count = TPropComboBoxSCMProvider->GetCount();
  if (count == 0) {
    // Not bound to the field, because the notice is not a provider's name.  The stored choice is kept.
    TPropComboBoxSCMProvider->SetSelection(TPropComboBoxSCMProvider->Append(ToWx(sNoProvidersAvailable)));
    return;
  }
  TPropComboBoxSCMProvider->SetSelection(0);
  host.Bind(TPropComboBoxSCMProvider, kSCMProviderField);
  // Names are case-sensitive; the last match counts.
  for (unsigned i = 0; i < count; ++i)
    if (TPropComboBoxSCMProvider->GetString(i) == setting)
      TPropComboBoxSCMProvider->SetSelection(static_cast<int>(i));
}

void TSCMOptionsPage::TPropComboBoxSCMProviderChange(wxCommandEvent&) try {
  chosen_(TPropComboBoxSCMProvider->GetStringSelection().utf8_string(),
          TPropEditSCMUserName->GetValue().utf8_string());
} catch (const std::exception& error) {
  wxMessageBox(ToWx(Format(sProviderCreateError, {error.what()})), ToWx(sSCMOptionsPage), wxOK | wxICON_ERROR,
               this);
}

}  // namespace kestrel::addin
