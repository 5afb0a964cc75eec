#include "workbench/windows/CheckOutQuestion.h"

#include <wx/msgdlg.h>
#include <wx/window.h>

#include <utility>

#include "system/Paths.h"
#include "system/Text.h"
#include "toolkit/WxText.h"
#include "workbench/windows/EditorBook.h"
#include "workbench/windows/FrameStrings.h"

namespace kestrel::workbench {

bool TCheckOutQuestion::OnTyping(const std::string& fileName, const wxKeyEvent& key) {
  if (asking_.empty()) {
    if (asked_.contains(FoldCase(fileName)) || !states_.OfferFor(fileName)) return false;
    asking_ = fileName;
    parent_.CallAfter([this] { Ask(asking_); });
  }
  if (asking_ == fileName) keys_.push_back(key);
  return true;
}

void TCheckOutQuestion::Forget(const std::string& fileName) { asked_.erase(FoldCase(fileName)); }

void TCheckOutQuestion::Ask(const std::string& fileName) {
  asked_.insert(FoldCase(fileName));
  const bool done = IsWanted(fileName) && CheckOut(fileName);
  const auto keys = std::exchange(keys_, {});
  TEditorPage* page = book_.PageOf(fileName);  // the check-out runs message loops, in which it may close
  asking_.clear();
  if (!page) return;
  page->SetFocus();
  if (done)
    page->Type(keys);
  else
    book_.ShowReadOnlyHint(page->Editor());
}

bool TCheckOutQuestion::IsWanted(const std::string& fileName) const {
  wxMessageDialog box(&parent_, ToWx(Format(sAskCheckOut, {ExtractFileName(fileName)})), ToWx(sProgramName),
                      wxYES_NO | wxICON_QUESTION);
  box.SetExtendedMessage(ToWx(sAskCheckOutHint));
  box.SetYesNoLabels(ToWx(sAskCheckOutYes), ToWx(sAskCheckOutNo));
  return box.ShowModal() == wxID_YES;
}

bool TCheckOutQuestion::CheckOut(const std::string& fileName) const {
  const TCheckOutOffer* offer = states_.OfferFor(fileName);
  bool done = false;
  if (offer) caller_.Run(sAskCheckOutYes, [&] { done = offer->Run(fileName); });
  return done;
}

}  // namespace kestrel::workbench
