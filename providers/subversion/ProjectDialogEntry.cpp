// From the provider border to the dialog.
#include <wx/thread.h>
#include <wx/wx.h>

#include "ProjectDialog.h"
#include "SubversionSccStrings.h"

namespace svnscc {
namespace {

bool CanShowWindows() {
  const wxAppConsole* app = wxAppConsole::GetInstance();
  return app != nullptr && app->IsGUI() && wxIsMainThread();
}

/// The client's window if the toolkit knows it, by its own pointer or its native handle.
wxWindow* ParentFor(scc::WindowHandle handle) {
  for (wxWindow* window : wxTopLevelWindows)
    if (handle != nullptr &&
        (static_cast<void*>(window) == handle || static_cast<void*>(window->GetHandle()) == handle))
      return window;
  return wxTheApp->GetTopWindow();
}

}  // namespace

scc::Long PromptForProject(Session& session, scc::WindowHandle parent, ProjectRequest& request) {
  if (!CanShowWindows()) {
    session.Out().Error(sNoWindows);
    return scc::SCC_E_NONSPECIFICERROR;
  }
  ProjectChoice choice(request);
  ProjectDialog dialog(ParentFor(parent), choice);
  const int answer = dialog.ShowModal();
  request.User = choice.User();
  if (answer != wxID_OK || !choice.CanAccept()) return scc::SCC_I_OPERATIONCANCELED;
  request = choice.Result();
  return scc::SCC_OK;
}

}  // namespace svnscc
