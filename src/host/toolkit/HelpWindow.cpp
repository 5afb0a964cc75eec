#include "toolkit/HelpWindow.h"

#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/fileconf.h>
#include <wx/filename.h>
#include <wx/helpbase.h>
#include <wx/utils.h>
#include <wx/wfstream.h>
#if wxUSE_WXHTML_HELP
#include <wx/html/helpctrl.h>
#endif

#include <algorithm>
#include <utility>

#include "toolkit/WxText.h"

namespace kestrel {

namespace {

constexpr const char* kTopics = "topics.ini";
constexpr const char* kContents = "index.html";

wxString PathOf(const std::string& folder, const wxString& name) {
  return wxFileName(ToWx(folder), name).GetFullPath();
}

#if wxUSE_WXHTML_HELP
constexpr const char* kBook = "kestrelide.hhp";
constexpr int kStyle = wxHF_TOOLBAR | wxHF_CONTENTS | wxHF_SEARCH | wxHF_PRINT | wxHF_ICONS_BOOK;

bool ModalDialogIsOpen() {
  return std::ranges::any_of(wxTopLevelWindows, [](wxWindow* window) {
    const auto* dialog = dynamic_cast<wxDialog*>(window);
    return dialog && dialog->IsModal();
  });
}

std::unique_ptr<wxHelpControllerBase> CreateWindow(const std::string& folder, bool modal) {
  auto window =
      std::make_unique<wxHtmlHelpController>(kStyle | (modal ? wxHF_DIALOG | wxHF_MODAL : wxHF_FRAME),
                                             modal ? wxGetActiveWindow() : wxTheApp->GetTopWindow());
  window->SetTitleFormat("%s");
  window->AddBook(wxFileName(PathOf(folder, kBook)));
  return window;
}
#endif

}  // namespace

std::string HelpPageOf(const std::string& folder, const std::string& topic) {
  const wxString file = PathOf(folder, kTopics);
  if (!wxFileName::FileExists(file)) return {};
  if (topic.empty()) return kContents;
  wxFileInputStream stream(file);
  return wxFileConfig(stream).Read(ToWx("Topics/" + topic), wxString()).utf8_string();
}

THelpWindow::THelpWindow(std::string folder) : folder_(std::move(folder)) {}
THelpWindow::~THelpWindow() = default;
void THelpWindow::Close() { window_.reset(); }

bool THelpWindow::Show(const std::string& topic) {
  const wxString page = ToWx(HelpPageOf(folder_, topic));
  if (page.empty()) return false;
#if wxUSE_WXHTML_HELP
  if (ModalDialogIsOpen()) return CreateWindow(folder_, true)->DisplaySection(page);
  if (!window_) window_ = CreateWindow(folder_, false);
  return window_->DisplaySection(page);
#else
  return wxLaunchDefaultBrowser(wxFileName::FileNameToURL(PathOf(folder_, page)));
#endif
}

}  // namespace kestrel
