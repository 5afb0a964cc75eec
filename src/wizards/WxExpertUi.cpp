#include "wizards/WxExpertUi.h"

#include <wx/msgdlg.h>

#include "commands/Comments.h"
#include "commands/GetFileList.h"
#include "expert/SccSystem.h"
#include "toolkit/WxText.h"
#include "ui/MsgDialog.h"
#include "ui/MsgDialogStrings.h"
#include "ui/MsgWin.h"
#include "wizards/CommitBrowser.h"
#include "wizards/PlaceProjectWizard.h"
#include "wizards/PullProjectWizard.h"

namespace kestrel::addin {

namespace {

constexpr const char* kHelpFile = "RavelinDSP.hlp";
constexpr auto kVanishing =
    std::chrono::milliseconds(30);  // for a closed window to disappear from the screen

long BoxIconOf(TMsgType kind) {
  switch (kind) {
    case metError:
      return wxICON_ERROR;
    case metWarning:
      return wxICON_WARNING;
    case metQuestion:
      return wxICON_QUESTION;
    default:
      return wxICON_INFORMATION;
  }
}

/// Repaints the area under the dialog before the provider is called, which may take long.
int ShowAndClear(wxDialog&& form) {
  const int result = form.ShowModal();
  PaintWindows(kVanishing);
  return result;
}

}  // namespace

std::unique_ptr<IMessageWindow> TWxExpertUi::CreateMessageWindow() {
  return std::make_unique<TMsgWinForm>(GetRVHelpFile(kHelpFile));
}

void TWxExpertUi::ShowMsgDialog(const std::string& title, const std::string& text, TMsgType kind) {
  addin::ShowMsgDialog(title, text, kind);
}

void TWxExpertUi::ShowBox(const std::string& text, TMsgType kind) {
  wxMessageBox(ToWx(text), ToWx(sMsgDialogCaption), wxOK | BoxIconOf(kind));
}

int TWxExpertUi::ShowFileList(TCommandContext& context, TFileListModel& model) {
  return ShowAndClear(TGetFileListForm(context, model));
}

int TWxExpertUi::ShowComments(TCommentModel& model) { return ShowAndClear(TCommentsForm(model)); }

void TWxExpertUi::ShowCommitBrowser(TCommandContext& context) { TCommitBrowser(context).ShowModal(); }

std::unique_ptr<IProgress> TWxExpertUi::StartProgress(const std::string& caption, std::size_t total) {
  return std::make_unique<TProgress>(caption, total, pace_);
}

void TWxExpertUi::ShowPlaceProject(TCommandContext& context) { TPlaceProjectWizard(context).ShowModal(); }

std::string TWxExpertUi::ShowPullProject(TCommandContext& context) {
  TPullProjectWizard form(context);
  form.ShowModal();
  return form.FileToOpen();
}

}  // namespace kestrel::addin
