// What the user does in the modal dialogs that a test brings up.
//
//   TModalScript script;
//   script.Expect<TCommentsForm>([](TCommentsForm& form) { Click(form.btnOK); });
//   EXPECT_EQ(forms.ShowComments(model), mrOk);
//
// A dialog that is expected and does not appear, or that appears unexpected, fails the test.
#pragma once

#include <wx/modalhook.h>
#include <wx/wx.h>

#include <deque>
#include <functional>
#include <typeinfo>

#include "support/Testing.h"

namespace kestrel {

/// Presses a button as the user can: only one that is there and enabled.
inline void Click(wxButton* button) {
  EXPECT_TRUE(button->IsShown() && button->IsEnabled())
      << button->GetLabel().utf8_string() << " cannot be pressed";
  wxCommandEvent event(wxEVT_BUTTON, button->GetId());
  event.SetEventObject(button);
  button->Command(event);
}

/// Focuses the control and sends a key the way of the key preview, from there upwards.  True when it was handled there.
inline bool Preview(wxWindow* focused, int key, int modifiers = wxMOD_NONE) {
  focused->SetFocus();
  wxKeyEvent event(wxEVT_CHAR_HOOK);
  event.m_keyCode = key;
  event.SetControlDown(modifiers & wxMOD_CONTROL);
  event.SetShiftDown(modifiers & wxMOD_SHIFT);
  event.SetEventObject(focused);
  return focused->HandleWindowEvent(event);
}

/// The dialogs that must appear while it lives, in order.  None of them is really shown.
class TModalScript final : private wxModalDialogHook {
 public:
  TModalScript() { Register(); }
  ~TModalScript() override {
    for (const auto& step : steps_) ADD_FAILURE() << step.Name << " was expected and did not appear";
  }

  /// `user` acts in the dialog; what it leaves as return code is what ShowModal() answers.
  template <class TForm>
  void Expect(std::function<void(TForm&)> user) {
    steps_.push_back({typeid(TForm).name(), [user = std::move(user)](wxDialog* dialog) {
                        auto* form = dynamic_cast<TForm*>(dialog);
                        if (!form) return false;
                        form->InitDialog();  // as showing it would do
                        user(*form);
                        return true;
                      }});
  }

 private:
  struct TStep {
    std::string Name;
    std::function<bool(wxDialog*)> Act;
  };

  int Enter(wxDialog* dialog) override {
    const auto title = dialog->GetTitle().utf8_string();
    if (steps_.empty()) {
      ADD_FAILURE() << "\"" << title << "\" appeared unexpected";
      return wxID_CANCEL;
    }
    const auto step = std::move(steps_.front());
    steps_.pop_front();
    if (!step.Act(dialog)) ADD_FAILURE() << "\"" << title << "\" appeared instead of " << step.Name;
    return dialog->GetReturnCode();
  }

  std::deque<TStep> steps_;
};

/// Shows `form` for real, lets `user` act once it is shown, and answers what ShowModal() does.  The user must close it.
template <class TForm>
int ShowAndPlay(TForm& form, std::function<void(TForm&)> user) {
  form.CallAfter([&] {
    form.SetReturnCode(wxID_NONE);
    user(form);
    if (form.GetReturnCode() != wxID_NONE)
      return;  // ended; how long it counts as modal depends on the toolkit
    ADD_FAILURE() << "\"" << form.GetTitle().utf8_string() << "\" is still open";
    form.EndModal(wxID_NONE);
  });
  return form.ShowModal();
}

}  // namespace kestrel
