#include "workbench/windows/GeneralPage.h"

#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "toolkit/WxText.h"
#include "toolkit/WxWheel.h"
#include "workbench/model/Settings.h"
#include "workbench/windows/FrameStrings.h"

namespace kestrel::workbench {

namespace {

wxWindow* CreateGeneralPage(wxWindow* parent, IOTAOptionsPageHost& host) {
  auto* page = new wxPanel(parent);
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  // Labels precede their controls, so that access keys find them.
  const auto addLabel = [&](const TResString& text) {
    sizer->Add(new wxStaticText(page, wxID_ANY, ToWx(text)), wxSizerFlags().Border(wxLEFT | wxTOP | wxRIGHT));
  };
  addLabel(sFontSizeLabel);
  auto* sizes = new wxChoice(page, wxID_ANY);
  for (int points = kMinFontSize; points <= kMaxFontSize; ++points)
    sizes->Append(wxString::Format("%d", points));
  IgnoreWheel(*sizes);
  sizes->SetStringSelection(wxString::Format("%d", kDefaultFontSize));
  sizer->Add(sizes, wxSizerFlags().Border());
  addLabel(sPackagesLabel);
  auto* packages =
      new wxTextCtrl(page, wxID_ANY, "", wxDefaultPosition, page->FromDIP(wxSize(360, 120)), wxTE_MULTILINE);
  sizer->Add(packages, wxSizerFlags(1).Border().Expand());
  page->SetSizer(sizer);
  host.Bind(sizes, kFontSizeField);
  host.Bind(packages, kPackagesField);
  return page;
}

}  // namespace

TOptionsPage GeneralOptionsPage() { return {"TGeneralOptionsPage", sGeneralPage, 0, CreateGeneralPage}; }

}  // namespace kestrel::workbench
