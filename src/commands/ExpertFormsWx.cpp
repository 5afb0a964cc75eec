#include "commands/ExpertFormsWx.h"

#include <wx/msgdlg.h>

#include <array>

#include "commands/Comments.h"
#include "commands/GetFileList.h"
#include "commands/Progress.h"
#include "expert/SccSystem.h"
#include "ui/MsgDialog.h"
#include "ui/MsgDialogStrings.h"
#include "ui/MsgWin.h"
#include "ui/WxText.h"

namespace {

constexpr const char* kHelpFile = "RavelinDSP.hlp";
constexpr std::array kBoxIcons{wxICON_ERROR, wxICON_WARNING, wxICON_INFORMATION, wxICON_QUESTION};

}  // namespace

std::unique_ptr<IMessageWindow> TExpertForms::CreateMessageWindow() {
  return std::make_unique<TMsgWinForm>(GetRVHelpFile(kHelpFile));
}

void TExpertForms::ShowMsgDialog(const std::string& title, const std::string& text, TMsgType kind) {
  ::ShowMsgDialog(title, text, kind);
}

void TExpertForms::ShowBox(const std::string& text, TMsgType kind) {
  wxMessageBox(ToWx(text), ToWx(sMsgDialogCaption), wxOK | kBoxIcons[kind]);
}

int TExpertForms::ShowFileList(TSccExpert& expert, TFileListModel& model) {
  return TGetFileListForm(expert, model).ShowModal();
}

int TExpertForms::ShowComments(TCommentModel& model) { return TCommentsForm(model).ShowModal(); }

std::unique_ptr<IProgress> TExpertForms::StartProgress(const std::string& caption, std::size_t total) {
  return std::make_unique<TProgress>(caption, total);
}
