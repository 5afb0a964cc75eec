// The page "Source Control Options" of the host's options dialog: provider and user name.
#pragma once

#include <wx/panel.h>

#include <functional>
#include <string>

#include "host/Options.h"

class wxChoice;
class wxTextCtrl;

namespace kestrel::addin {

class TSCMOptionsPage final : public wxPanel {
 public:
  /// Called when the user chooses a provider, with the entry's text and the user name; may throw.
  using TChosen = std::function<void(const std::string& provider, const std::string& userName)>;

  /// `parent` owns the page.
  TSCMOptionsPage(wxWindow* parent, IOTAOptionsPageHost& host, TChosen chosen);

  wxChoice* TPropComboBoxSCMProvider = nullptr;
  wxTextCtrl* TPropEditSCMUserName = nullptr;

 private:
  void Arrange();
  void ReadProviders();
  void PropertySheetCreate(IOTAOptionsPageHost& host);
  void TPropComboBoxSCMProviderChange(wxCommandEvent& event);

  TChosen chosen_;
};

}  // namespace kestrel::addin
