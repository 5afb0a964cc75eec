#include "workbench/windows/GalleryDialog.h"

#include <wx/dialog.h>
#include <wx/listbox.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "toolkit/WxText.h"
#include "workbench/windows/FrameStrings.h"
#include "workbench/windows/Icons.h"

namespace kestrel::workbench {

namespace {

constexpr int kGlyphSize = 32;

wxStaticText* Label(wxWindow* parent, const TResString& text) {
  return new wxStaticText(parent, wxID_ANY, ToWx(text));
}

class TGalleryDialog final : public wxDialog {
 public:
  TGalleryDialog(wxWindow* parent, TGalleryCategories& categories, const TRegistrations<IOTAWizard>& wizards)
      : wxDialog(parent, wxID_ANY, ToWx(sGalleryTitle), wxDefaultPosition, wxDefaultSize,
                 wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
        categories_(categories),
        wizards_(wizards) {
    CreateControls();
    for (const auto& category : categories_.InOrder())
      categoryList_->Append(ToWx(category->GetDisplayName()));
    categoryList_->SetSelection(0);
    ShowCategory();
    Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { ShowCategory(); });
    itemList_->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent&) { ShowSelected(); });
    itemList_->Bind(wxEVT_LIST_ITEM_DESELECTED, [this](wxListEvent&) { ShowSelected(); });
    itemList_->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) {
      if (Enabled(Selected())) EndModal(wxID_OK);
    });
  }

  std::shared_ptr<IOTAWizard> Selected() const {
    const long row = itemList_->GetFirstSelected();
    return row < 0 ? nullptr : shown_[static_cast<std::size_t>(row)];
  }

 private:
  static bool Enabled(const std::shared_ptr<IOTAWizard>& wizard) {
    return wizard && (wizard->GetState() & IOTAWizard::wsEnabled);
  }

  void CreateControls() {
    auto* columns = new wxFlexGridSizer(2, 2, FromDIP(4), FromDIP(10));
    columns->AddGrowableCol(1, 1);
    columns->AddGrowableRow(1, 1);
    columns->Add(Label(this, sGalleryCategories));
    columns->Add(Label(this, sGalleryItems));
    categoryList_ = new wxListBox(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(160, 240)));
    itemList_ = new wxListView(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(380, 240)),
                               wxLC_REPORT | wxLC_NO_HEADER | wxLC_SINGLE_SEL);
    columns->Add(categoryList_, wxSizerFlags().Expand());
    columns->Add(itemList_, wxSizerFlags().Expand());
    itemList_->AppendColumn("", wxLIST_FORMAT_LEFT, FromDIP(350));
    comment_ = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxST_ELLIPSIZE_END);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(columns, wxSizerFlags(1).DoubleBorder().Expand());
    sizer->Add(comment_, wxSizerFlags().DoubleBorder(wxLEFT | wxRIGHT).Expand());
    sizer->Add(CreateSeparatedButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Border().Expand());
    SetSizerAndFit(sizer);
    SetMinSize(GetSize());
    CentreOnParent();
  }

  IOTAGalleryCategory& CategoryOf(IOTAWizard& wizard) const {
    IOTAGalleryCategory* category = wizard.GetGalleryCategory();
    return category ? *category : categories_.Other();
  }

  void ShowCategory() {
    const auto& category = *categories_.InOrder()[static_cast<std::size_t>(categoryList_->GetSelection())];
    itemList_->DeleteAllItems();
    shown_.clear();
    wxVector<wxBitmapBundle> glyphs;
    wizards_.ForEachShared([&](const std::shared_ptr<IOTAWizard>& wizard) {
      if (&CategoryOf(*wizard) != &category) return;
      shown_.push_back(wizard);
      const auto glyph = SvgBundle(wizard->GetGlyph(), kGlyphSize);
      glyphs.push_back(glyph.IsOk() ? glyph : SvgBundle(IconSvg(TIcon::NewUnit), kGlyphSize));
    });
    itemList_->SetSmallImages(glyphs);
    for (std::size_t i = 0; i < shown_.size(); ++i)
      itemList_->InsertItem(static_cast<long>(i), ToWx(shown_[i]->GetName()), static_cast<int>(i));
    if (!shown_.empty()) itemList_->Select(0);
    ShowSelected();
  }

  void ShowSelected() {
    const auto wizard = Selected();
    comment_->SetLabel(ToWx(wizard           ? wizard->GetComment()
                            : shown_.empty() ? sGalleryEmpty.str()
                                             : std::string()));
    FindWindow(wxID_OK)->Enable(Enabled(wizard));
    Layout();
  }

  TGalleryCategories& categories_;
  const TRegistrations<IOTAWizard>& wizards_;
  std::vector<std::shared_ptr<IOTAWizard>> shown_;
  wxListBox* categoryList_ = nullptr;
  wxListView* itemList_ = nullptr;
  wxStaticText* comment_ = nullptr;
};

}  // namespace

std::shared_ptr<IOTAWizard> ChooseWizard(wxWindow* parent, TGalleryCategories& categories,
                                         const TRegistrations<IOTAWizard>& wizards) {
  TGalleryDialog dialog(parent, categories, wizards);
  return dialog.ShowModal() == wxID_OK ? dialog.Selected() : nullptr;
}

}  // namespace kestrel::workbench
