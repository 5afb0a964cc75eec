// Asks for the user name and password for a server.
#include "common/windows/WindowTools.h"
#include "subversion/windows/ProviderWindowStrings.h"
#include "subversion/windows/ProviderWindows.h"
#include "toolkit/WxText.h"

namespace kestrel::svnscc {
namespace {

class LoginDialog : public wxDialog {
 public:
  LoginDialog(wxWindow* parent, const LoginQuestion& question)
      : wxDialog(parent, wxID_ANY, ToWx(sLoginTitle)),
        fields_(new wxFlexGridSizer(2, FromDIP(wxSize(8, 6)))) {
    const int gap = FromDIP(12);
    auto* all = new wxBoxSizer(wxVERTICAL);
    auto* text = new wxStaticText(
        this, wxID_ANY,
        ToWx(Format(question.Refused ? sLoginRefused.Text : sLoginAsked.Text, {question.Realm})));
    text->SetName("message");
    text->Wrap(FromDIP(360));
    all->Add(text, wxSizerFlags().Border(wxLEFT | wxRIGHT | wxTOP, gap));
    fields_->AddGrowableCol(1);
    user_ = AddField(sLoginUser, "user", 0);
    password_ = AddField(sLoginPassword, "password", wxTE_PASSWORD);
    all->Add(fields_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
    all->Add(new wxStaticText(this, wxID_ANY, ToWx(sLoginKept)),
             wxSizerFlags().Border(wxLEFT | wxRIGHT | wxTOP, gap));
    all->Add(CreateStdDialogButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Expand().Border(wxALL, gap));
    user_->SetValue(ToWx(question.User));
    (question.User.empty() ? user_ : password_)->SetFocus();
    SetSizerAndFit(all);
    CentreOnParent();
  }

  Login Answer() const { return {FromWx(user_->GetValue()), FromWx(password_->GetValue())}; }

 private:
  wxTextCtrl* AddField(const TResString& label, const char* name, long style) {
    fields_->Add(new wxStaticText(this, wxID_ANY, ToWx(label)), wxSizerFlags().CenterVertical());
    auto* field =
        new wxTextCtrl(this, wxID_ANY, {}, wxDefaultPosition, wxSize(FromDIP(260), wxDefaultCoord), style);
    field->SetName(name);
    fields_->Add(field, wxSizerFlags().Expand());
    return field;
  }

  wxFlexGridSizer* fields_;
  wxTextCtrl* user_;
  wxTextCtrl* password_;
};

}  // namespace

std::optional<Login> AskLogin(const LoginQuestion& question) {
  if (!CanShowWindows()) return std::nullopt;
  // The client may show a modal dialog: use the active window as the parent.
  LoginDialog dialog(ParentFor(nullptr), question);
  if (dialog.ShowModal() != wxID_OK) return std::nullopt;
  return dialog.Answer();
}

}  // namespace kestrel::svnscc
