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

/// The same where a control would read "&" as a mnemonic.
wxString ToPlainWx(const std::string& text) { return wxControl::EscapeMnemonics(ToWx(text)); }

struct FolderData : wxTreeItemData {
  explicit FolderData(std::string path) : Path(std::move(path)) {}
  std::string Path;
};

std::string PathOf(wxTreeCtrl* tree, const wxTreeItemId& item) {
  return static_cast<FolderData*>(tree->GetItemData(item))->Path;
}

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
  tree_ = new wxTreeCtrl(this, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                         wxTR_DEFAULT_STYLE | wxTR_SINGLE | wxTR_LINES_AT_ROOT);
  tree_->SetName("folders");
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
  tree_->Bind(wxEVT_TREE_ITEM_EXPANDING, [this](wxTreeEvent& event) { FillFolder(event.GetItem()); });
  tree_->Bind(wxEVT_TREE_SEL_CHANGED, [this](wxTreeEvent& event) {
    if (event.GetItem().IsOk()) choice_.Select(PathOf(tree_, event.GetItem()));
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
    FillFolder(item);
    ShowPath(*path);
    tree_->SetFocus();
  }
  ShowState();
}

void ProjectDialog::FillTree() {
  const auto selected = choice_.Selected();
  const std::string message = choice_.Message();
  tree_->DeleteAllItems();
  if (choice_.IsConnected()) {
    const auto root = tree_->AddRoot(ToPlainWx(ReadableUrl(choice_.Root())), -1, -1, new FolderData(""));
    tree_->SetItemHasChildren(root);
    tree_->Expand(root);
    ShowPath(selected.value_or(""));
    tree_->SetFocus();
  }
  ShowState();
}

void ProjectDialog::FillFolder(const wxTreeItemId& item) {
  const wxBusyCursor busy;
  const std::string path = PathOf(tree_, item);
  const auto present = ChildrenOf(item);
  for (const auto& name : choice_.FoldersOf(path))
    if (!present.contains(name)) AppendFolder(item, path.empty() ? name : path + "/" + name, name);
  if (tree_->GetChildrenCount(item, false) == 0) tree_->SetItemHasChildren(item, false);
  ShowState();
}

wxTreeItemId ProjectDialog::AppendFolder(const wxTreeItemId& parent, const std::string& path,
                                         const std::string& name) {
  const auto item = tree_->AppendItem(parent, ToWx(name), -1, -1, new FolderData(path));
  tree_->SetItemHasChildren(item);  // known when it is opened
  return item;
}

std::map<std::string, wxTreeItemId> ProjectDialog::ChildrenOf(const wxTreeItemId& parent) const {
  std::map<std::string, wxTreeItemId> children;
  wxTreeItemIdValue cookie = nullptr;
  for (auto child = tree_->GetFirstChild(parent, cookie); child.IsOk();
       child = tree_->GetNextChild(parent, cookie))
    children[tree_->GetItemText(child).utf8_string()] = child;
  return children;
}

void ProjectDialog::ShowPath(const std::string& path) {
  wxTreeItemId item = tree_->GetRootItem();
  for (std::size_t start = 0; start < path.size();) {
    const auto slash = std::min(path.find('/', start), path.size());
    tree_->Expand(item);
    const auto children = ChildrenOf(item);
    const auto child = children.find(path.substr(start, slash - start));
    if (child == children.end()) break;
    item = child->second;
    start = slash + 1;
  }
  tree_->SelectItem(item);
  tree_->EnsureVisible(item);
}

void ProjectDialog::ShowState() {
  message_->SetLabel(ToPlainWx(choice_.Message()));
  message_->SetToolTip(ToWx(choice_.Message()));
  icon_->SetBitmap(wxArtProvider::GetBitmap(choice_.IsError() ? wxART_ERROR : wxART_INFORMATION, wxART_MENU));
  FindWindow(wxID_OK)->Enable(choice_.CanAccept());
  newFolder_->Enable(choice_.IsConnected() && choice_.Selected().has_value());
}

}  // namespace kestrel::svnscc
