// Creation and layout of the commit browser's controls.
#include <wx/notebook.h>
#include <wx/statbmp.h>
#include <wx/statusbr.h>
#include <wx/wx.h>

#include "toolkit/WindowSize.h"
#include "toolkit/WxText.h"
#include "ui/MenuImages.h"
#include "wizards/CommitBrowser.h"
#include "wizards/CommitBrowserStrings.h"
#include "wizards/CommitGrid.h"
#include "wizards/CommitRowsStrings.h"

namespace kestrel::addin {

namespace {

constexpr int kGap = 6;
constexpr int kImage = 3;  // that of the command
constexpr int kImageSize = 32;
constexpr int kFilePagesHeight = 132;
constexpr int kGridHeight = 60;

wxPanel* AddPage(wxNotebook* book, const TResString& caption) {
  // Repainted completely on resize: on Windows a check box stays blank if maximising the window moves it far.
  auto* page = new wxPanel(book, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                           wxTAB_TRAVERSAL | wxFULL_REPAINT_ON_RESIZE);
  book->AddPage(page, wxStripMenuCodes(ToWx(caption)));
  return page;
}

wxCheckBox* NewBox(wxWindow* parent, const TResString& label, bool ticked) {
  auto* box = new wxCheckBox(parent, wxID_ANY, ToWx(label));
  box->SetValue(ticked);
  return box;
}

/// Sizes the pages before they are shown, because GTK warns about controls without a size.
void SizePages(wxNotebook& book) {
  for (std::size_t page = 0; page < book.GetPageCount(); ++page)
    book.GetPage(page)->SetSize(book.GetClientSize());
}

}  // namespace

void TCommitBrowser::CreateControls() {
  TCommitPageControl = new wxNotebook(this, wxID_ANY);
  TTabSheetCommit = AddPage(TCommitPageControl, sCommitsPage);
  TTabSheetSummaryComment = AddPage(TCommitPageControl, sSummaryCommentPage);
  CreateCommitPage();
  CreateSummaryPage();
  HelpButton = new wxButton(this, wxID_HELP, ToWx(sCommitHelp));
  progress_ = new wxStaticText(this, wxID_ANY, {}, wxDefaultPosition, wxDefaultSize,
                               wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_MIDDLE);
  TButtonCancel = new wxButton(this, wxID_CANCEL, ToWx(sCommitCancel));
  TButtonCommit = new wxButton(this, wxID_ANY, ToWx(sCommitButton));
}

void TCommitBrowser::CreateCommitPage() {
  StringGrid1 = new TCommitGrid(TTabSheetCommit);
  StringGrid1->SetMinSize(FromDIP(wxSize(-1, kGridHeight)));
  ActivityComboBox = new TActivityComboBox(StringGrid1);
  TCheckBoxPathTrim = NewBox(TTabSheetCommit, sTrimFilePath, true);
  TFileDisplayPageControl = new wxNotebook(TTabSheetCommit, wxID_ANY);
  TFileDisplayPageControl->SetMinSize(FromDIP(wxSize(-1, kFilePagesHeight)));
  CreateFilePages();

  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(StringGrid1, wxSizerFlags(2).Expand());
  column->Add(TCheckBoxPathTrim, wxSizerFlags().Border(wxALL, FromDIP(kGap / 2)));
  column->Add(TFileDisplayPageControl, wxSizerFlags(1).Expand());
  TTabSheetCommit->SetSizer(column);
}

void TCommitBrowser::CreateFilePages() {
  TTabSheetIndividualComment = AddPage(TFileDisplayPageControl, sIndividualCommentPage);
  TTabSheetWorkspaceSource = AddPage(TFileDisplayPageControl, sLocalSourcePage);
  TTabSheetSourceDiffAndHist = AddPage(TFileDisplayPageControl, sDiffAndHistoryPage);

  TCheckboxIndividualComment = NewBox(TTabSheetIndividualComment, sUseIndividualComment, true);
  individual_ = CreateComment(TTabSheetIndividualComment, TCheckboxIndividualComment);
  TMemoIndividualComment = individual_.Memo;

  TMemoWorkspaceSource = new wxTextCtrl(TTabSheetWorkspaceSource, wxID_ANY, {}, wxDefaultPosition,
                                        wxDefaultSize, wxTE_MULTILINE | wxTE_READONLY | wxTE_DONTWRAP);
  TMemoWorkspaceSource->SetFont(wxFont(wxFontInfo(GetFont().GetPointSize()).Family(wxFONTFAMILY_TELETYPE)));
  sourceStatus_ =
      new wxStatusBar(TTabSheetWorkspaceSource, wxID_ANY, wxSTB_ELLIPSIZE_MIDDLE | wxSTB_SHOW_TIPS);
  auto* source = new wxBoxSizer(wxVERTICAL);
  source->Add(TMemoWorkspaceSource, wxSizerFlags(1).Expand());
  source->Add(sourceStatus_, wxSizerFlags().Expand());
  TTabSheetWorkspaceSource->SetSizer(source);

  TButtonShowDiff = new wxButton(TTabSheetSourceDiffAndHist, wxID_ANY, ToWx(sShowDifference));
  TButtonShowHistory = new wxButton(TTabSheetSourceDiffAndHist, wxID_ANY, ToWx(sShowHistoryButton));
  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  for (auto* button : {TButtonShowDiff, TButtonShowHistory})
    buttons->Add(button, wxSizerFlags().Border(wxALL, FromDIP(kGap)));
  TTabSheetSourceDiffAndHist->SetSizer(buttons);
}

void TCommitBrowser::CreateSummaryPage() {
  TCheckBoxSummaryComment = NewBox(TTabSheetSummaryComment, sUseSummaryComment, false);
  summary_ = CreateComment(TTabSheetSummaryComment, TCheckBoxSummaryComment);
  TMemoSummaryComments = summary_.Memo;
}

TCommentMemo TCommitBrowser::CreateComment(wxPanel* page, wxCheckBox* box) {
  const auto comment = TCommentMemo::Create(page, TruncateComment);
  comment.Memo->MoveBeforeInTabOrder(box);
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(comment.Memo, wxSizerFlags(1).Expand());
  column->Add(comment.RowWith(box), wxSizerFlags().Expand().Border(wxALL, FromDIP(kGap / 2)));
  page->SetSizer(column);
  return comment;
}

wxSizer* TCommitBrowser::CreateHint() {
  const auto picture =
      wxBitmapBundle::FromSVG(MenuImageDocument(kImage).c_str(), wxSize(kImageSize, kImageSize));
  auto* hint = new wxStaticText(this, wxID_ANY, ToWx(sCommitHint));
  hint->SetMinSize(FromDIP(wxSize(100, -1)));
  auto* panel = new wxBoxSizer(wxHORIZONTAL);
  panel->Add(new wxStaticBitmap(this, wxID_ANY, picture), wxSizerFlags().CentreVertical());
  panel->Add(hint, wxSizerFlags(1).CentreVertical().Border(wxLEFT, FromDIP(kGap)));
  return panel;
}

void TCommitBrowser::LayOut() {
  const int gap = FromDIP(kGap);
  auto* bottom = new wxBoxSizer(wxHORIZONTAL);
  bottom->Add(HelpButton);
  bottom->Add(progress_, wxSizerFlags(1).CentreVertical().Border(wxLEFT | wxRIGHT, gap));
  bottom->Add(TButtonCancel);
  bottom->Add(TButtonCommit, wxSizerFlags().Border(wxLEFT, gap));

  auto* all = new wxBoxSizer(wxVERTICAL);
  all->Add(CreateHint(), wxSizerFlags().Expand().Border(wxALL, gap));
  all->Add(TCommitPageControl, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, gap));
  all->Add(bottom, wxSizerFlags().Expand().Border(wxALL, gap));
  SetSizer(all);
  SetMinSize(FromDIP(wxSize(711, 505)));
  SetOuterSize(*this, FromDIP(wxSize(711, 507)));
  for (auto* book : {TCommitPageControl, TFileDisplayPageControl}) SizePages(*book);
  CentreOnScreen();
}

}  // namespace kestrel::addin
