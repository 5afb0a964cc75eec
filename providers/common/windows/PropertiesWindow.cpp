#include "common/windows/PropertiesWindow.h"

#include "common/windows/WindowStrings.h"
#include "toolkit/WxText.h"

namespace kestrel {

PropertiesWindow::PropertiesWindow(wxWindow* parent, const std::string& name, NodeProperties description)
    : ToolWindow(parent, Format(sPropertiesTitle.Text, {name})), description_(std::move(description)) {
  auto* all = new wxBoxSizer(wxVERTICAL);
  const int gap = FromDIP(10);
  all->Add(CreateFacts(), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  all->Add(CreateProperties(), wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  wxButton* close = AddClose(row);
  all->Add(row, wxSizerFlags().Expand().Border(wxALL, gap));
  UseSizer(all, {660, 560}, {380, 420});
  close->SetDefault();
  close->SetFocus();
}

wxSizer* PropertiesWindow::CreateFacts() {
  auto* grid = new wxFlexGridSizer(2, FromDIP(wxSize(10, 5)));
  grid->AddGrowableCol(1);
  for (const auto& [label, value] : description_.Facts) {
    grid->Add(new wxStaticText(this, wxID_ANY, ToWx(label)), wxSizerFlags().CenterVertical());
    const bool isLong = value.find('\n') != std::string::npos;
    auto* text = new wxTextCtrl(this, wxID_ANY, ToWx(value), wxDefaultPosition,
                                isLong ? FromDIP(wxSize(-1, 54)) : wxDefaultSize,
                                wxTE_READONLY | wxBORDER_NONE | (isLong ? wxTE_MULTILINE : 0));
    text->SetName(ToWx(label));
    text->SetBackgroundColour(GetBackgroundColour());
    text->SetInsertionPoint(0);
    grid->Add(text, wxSizerFlags().Expand().CenterVertical());
  }
  return grid;
}

wxSizer* PropertiesWindow::CreateProperties() {
  auto* part = new wxBoxSizer(wxVERTICAL);
  const bool none = description_.Properties.empty();
  part->Add(new wxStaticText(this, wxID_ANY, ToWx(none ? sNoProperties : sVersionedProperties)),
            wxSizerFlags().Border(wxBOTTOM, FromDIP(4)));
  if (none) return part;
  list_ = new RowList(this, "properties", {{sNameColumn, 170}, {sValueColumn, 320}},
                      [this](std::size_t row, std::size_t column) {
                        const auto& [name, value] = description_.Properties.at(row);
                        return column == 0 ? name : FirstLine(value);
                      });
  list_->SetMinSize(FromDIP(wxSize(-1, 80)));
  value_ = new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, FromDIP(wxSize(-1, 60)),
                          wxTE_MULTILINE | wxTE_READONLY);
  value_->SetName("value");
  part->Add(list_, wxSizerFlags(1).Expand());
  part->Add(value_, wxSizerFlags().Expand().Border(wxTOP, FromDIP(6)));
  list_->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent& event) {
    value_->ChangeValue(ToWx(description_.Properties.at(static_cast<std::size_t>(event.GetIndex())).second));
  });
  list_->SetRows(description_.Properties.size());
  list_->Select(0);
  value_->ChangeValue(ToWx(description_.Properties.front().second));
  return part;
}

}  // namespace kestrel
