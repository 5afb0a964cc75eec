#include "workbench/windows/GeneralPage.h"

#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "workbench/model/Settings.h"
#include "workbench/windows/FrameStrings.h"

namespace {

wxWindow* CreateGeneralPage(wxWindow* parent, IOTAOptionsPageHost& host) {
  auto* page = new wxPanel(parent);
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  const auto add = [&](const TResString& label, wxControl* control, int proportion) {
    sizer->Add(new wxStaticText(page, wxID_ANY, wxString::FromUTF8(label.str())),
               wxSizerFlags().Border(wxLEFT | wxTOP | wxRIGHT));
    sizer->Add(control, wxSizerFlags(proportion).Border().Expand());
  };
  // Labels come before their controls in the tab order too: that is how access keys find them.
  auto* sizes = new wxChoice(page, wxID_ANY);
  for (int points = kMinFontSize; points <= kMaxFontSize; ++points)
    sizes->Append(wxString::Format("%d", points));
  sizes->SetStringSelection(wxString::Format("%d", kDefaultFontSize));
  add(sFontSizeLabel, sizes, 0);
  auto* packages =
      new wxTextCtrl(page, wxID_ANY, "", wxDefaultPosition, page->FromDIP(wxSize(360, 120)), wxTE_MULTILINE);
  add(sPackagesLabel, packages, 1);
  page->SetSizer(sizer);
  host.Bind(sizes, kFontSizeField);
  host.Bind(packages, kPackagesField);
  return page;
}

}  // namespace

TOptionsPage GeneralOptionsPage() { return {"TGeneralOptionsPage", sGeneralPage, 0, CreateGeneralPage}; }
