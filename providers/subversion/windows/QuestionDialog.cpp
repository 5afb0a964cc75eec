// Questions as message boxes; Enter and Escape mean No.
#include "common/windows/WindowTools.h"
#include "subversion/windows/ProviderWindows.h"
#include "toolkit/WxText.h"

namespace kestrel::svnscc {

std::optional<bool> ShowQuestion(scc::WindowHandle parent, const Question& question) {
  if (!CanShowWindows()) return std::nullopt;
  wxMessageDialog box(ParentFor(parent), ToWx(question.Text), ToWx(question.Title),
                      wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION);
  return box.ShowModal() == wxID_YES;
}

}  // namespace kestrel::svnscc
