#include "subversion/windows/ProjectDialog.h"

#include <wx/artprov.h>
#include <wx/dirdlg.h>
#include <wx/textdlg.h>

#include "common/windows/WindowStrings.h"
#include "subversion/project/RecentRepositories.h"
#include "subversion/svn/Repository.h"
#include "subversion/windows/ProviderWindowStrings.h"
#include "toolkit/WxText.h"
#include "toolkit/WxWheel.h"

namespace kestrel::svnscc {
namespace {

/// ToWx() for labels, where "&" would be a mnemonic.
wxString ToPlainWx(const std::string& text) { return wxControl::EscapeMnemonics(ToWx(text)); }

}  // namespace

ProjectDialog::ProjectDialog(wxWindow* parent, ProjectChoice& choice)
    : wxDialog(parent, wxID_ANY, ToWx(sDialogTitle), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      choice_(choice) {
  CreateControls();
  BindEvents();
  ShowState();
  if (choice_.ShouldConnectAtOnce()) CallAfter([this] { Connect(); });
  repository_->SetFocus();
}

void ProjectDialog::CreateControls() {
  auto* all = new wxBoxSizer(wxVERTICAL);
  const int gap = FromDIP(10);
  all->Add(CreateRepositoryRows(), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  all->Add(CreateFolderPart(), wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));

  auto* line = new wxBoxSizer(wxHORIZONTAL);
  icon_ = new wxStaticBitmap(this, wxID_ANY, wxArtProvider::GetBitmap(wxART_INFORMATION, wxART_MENU));
  message_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                              wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_MIDDLE);
  message_->SetName("message");
  line->Add(icon_, wxSizerFlags().CenterVertical().Border(wxRIGHT, FromDIP(6)));
  line->Add(message_, wxSizerFlags(1).CenterVertical());
  all->Add(line, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  all->Add(CreateButtons(), wxSizerFlags().Expand().Border(wxALL, gap));

  SetSizer(all);
  SetMinSize(FromDIP(wxSize(480, 400)));
  SetSize(FromDIP(wxSize(620, 520)));
  CentreOnParent();
}

wxSizer* ProjectDialog::CreateRepositoryRows() {
  auto* grid = new wxFlexGridSizer(3, FromDIP(wxSize(6, 6)));
  grid->AddGrowableCol(1);
  if (!choice_.LocalFolder().empty()) {
    grid->Add(new wxStaticText(this, wxID_ANY, ToWx(sLocalFolderLabel)), wxSizerFlags().CenterVertical());
    grid->Add(new wxStaticText(this, wxID_ANY, ToPlainWx(choice_.LocalFolder()), wxDefaultPosition,
                               wxDefaultSize, wxST_ELLIPSIZE_MIDDLE),
              wxSizerFlags().Expand().CenterVertical());
    grid->AddSpacer(0);
  }
  grid->Add(new wxStaticText(this, wxID_ANY, ToWx(sUserLabel)), wxSizerFlags().CenterVertical());
  user_ = new wxTextCtrl(this, wxID_ANY, ToWx(choice_.User()));
  user_->SetName("user");
  grid->Add(user_, wxSizerFlags().Expand());
  grid->AddSpacer(0);

  wxArrayString recent;
  for (const auto& url : RecentRepositories()) recent.Add(ToWx(url));
  grid->Add(new wxStaticText(this, wxID_ANY, ToWx(sRepositoryLabel)), wxSizerFlags().CenterVertical());
  repository_ = new wxComboBox(this, wxID_ANY, ToWx(choice_.ProposedRepository()), wxDefaultPosition,
                               wxDefaultSize, recent, wxTE_PROCESS_ENTER);
  repository_->SetName("repository");
  IgnoreWheel(*repository_);
  repository_->SetHint(ToWx(sRepositoryHint));
  grid->Add(repository_, wxSizerFlags().Expand().CenterVertical());
  connect_ = new wxButton(this, wxID_ANY, ToWx(sConnectButton));
  grid->Add(connect_, wxSizerFlags().Expand());

  grid->AddSpacer(0);
  newRepository_ = new wxButton(this, wxID_ANY, ToWx(sNewRepositoryButton));
  newRepository_->Show(choice_.MayCreate());
  grid->Add(newRepository_, wxSizerFlags().Left());
  return grid;
}

wxSizer* ProjectDialog::CreateFolderPart() {
  auto* part = new wxBoxSizer(wxVERTICAL);
  part->Add(new wxStaticText(this, wxID_ANY, ToWx(sFolderLabel)),
            wxSizerFlags().Border(wxBOTTOM, FromDIP(4)));
  tree_ = new FolderTree(this, [this](const std::string& path) {
    const wxBusyCursor busy;
    auto names = choice_.FoldersOf(path);
    ShowState();
    return names;
  });
  part->Add(tree_, wxSizerFlags(1).Expand());
  newFolder_ = new wxButton(this, wxID_ANY, ToWx(sNewFolderButton));
  newFolder_->Show(choice_.MayCreate());
  part->Add(newFolder_, wxSizerFlags().Left().Border(wxTOP, FromDIP(6)));
  return part;
}

wxSizer* ProjectDialog::CreateButtons() {
  auto* buttons = new wxStdDialogButtonSizer;
  auto* ok = new wxButton(this, wxID_OK);
  ok->SetDefault();
  buttons->AddButton(ok);
  buttons->AddButton(new wxButton(this, wxID_CANCEL));
  buttons->Realize();
  return buttons;
}

void ProjectDialog::BindEvents() {
  user_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) {
    choice_.SetUser(user_->GetValue().utf8_string());
    ShowState();
  });
  repository_->Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) { Connect(); });
  repository_->Bind(wxEVT_COMBOBOX, [this](wxCommandEvent&) { Connect(); });
  connect_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { Connect(); });
  newRepository_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { MakeRepository(); });
  newFolder_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { MakeFolder(); });
  tree_->Bind(wxEVT_TREE_SEL_CHANGED, [this](wxTreeEvent& event) {
    if (event.GetItem().IsOk()) choice_.Select(tree_->PathOf(event.GetItem()));
    ShowState();
  });
}

void ProjectDialog::Connect() {
  const wxBusyCursor busy;
  choice_.Connect(repository_->GetValue().utf8_string());
  FillTree();
}

void ProjectDialog::MakeRepository() {
  wxDirDialog chooser(this, ToWx(sNewRepositoryTitle), wxEmptyString, wxDD_DEFAULT_STYLE);
  if (chooser.ShowModal() != wxID_OK) return;
  if (choice_.CreateRepository(chooser.GetPath().utf8_string())) {
    repository_->SetValue(ToWx(ReadableUrl(choice_.Root())));
    FillTree();
  }
  ShowState();
}

void ProjectDialog::MakeFolder() {
  const auto parent = choice_.Selected();
  if (!parent) return;
  wxTextEntryDialog question(this, ToWx(Format(sNewFolderPrompt.Text, {ToProjectName(*parent)})),
                             ToWx(sNewFolderTitle), ToWx(choice_.ProposedFolderName()));
  if (question.ShowModal() != wxID_OK) return;
  const auto path = choice_.AddFolder(*parent, question.GetValue().utf8_string());
  if (path) {
    const wxTreeItemId item = tree_->GetSelection();
    tree_->SetItemHasChildren(item);
    tree_->Fill(item);
    tree_->SelectPath(*path);
    tree_->SetFocus();
  }
  ShowState();
}

void ProjectDialog::FillTree() {
  const auto selected = choice_.Selected();
  tree_->DeleteAllItems();
  if (choice_.IsConnected()) {
    tree_->ShowRoot(ReadableUrl(choice_.Root()));
    tree_->SelectPath(selected.value_or(""));
    tree_->SetFocus();
  }
  ShowState();
}

void ProjectDialog::ShowState() {
  message_->SetLabel(ToPlainWx(choice_.Message()));
  message_->SetToolTip(ToWx(choice_.Message()));
  icon_->SetBitmap(wxArtProvider::GetBitmap(choice_.IsError() ? wxART_ERROR : wxART_INFORMATION, wxART_MENU));
  FindWindow(wxID_OK)->Enable(choice_.CanAccept());
  newFolder_->Enable(choice_.IsConnected() && choice_.Selected().has_value());
}

}  // namespace kestrel::svnscc
