#include "workbench/macro/WindowSteps.h"

#include <wx/dialog.h>

#include <algorithm>
#include <stdexcept>

#include "toolkit/WxText.h"
#include "workbench/macro/MacroControls.h"
#include "workbench/macro/MacroStrings.h"
#include "workbench/macro/WindowFinder.h"
#include "workbench/windows/ModalStack.h"
#include "workbench/windows/OpenMenus.h"

namespace kestrel::workbench {

namespace {

using TArguments = std::vector<std::string>;
using TWindow = wxTopLevelWindow;

bool IsShownSomewhere(const std::string& text) {
  const wxString wanted = ToWx(text);
  for (wxTopLevelWindow* window : ShownWindows()) {
    const auto shows = [&](wxWindow& control) {
      wxString shown = TextOf(control);
      if (shown.Contains(wanted)) return true;
      shown.Replace("\n", " ");  // labels may be wrapped
      return shown.Contains(wanted);
    };
    if (window->GetTitle().Contains(wanted) || VisitControls(*window, shows)) return true;
  }
  return false;
}

/// Empty if the box exists and has that state.
std::string CheckTick(wxWindow& window, const std::string& text, bool ticked) {
  const auto state = IsTicked(window, ToWx(text));
  if (!state) return Format(sNoControl, {window.GetLabel().utf8_string(), sKindBox, text});
  if (*state == ticked) return {};
  return Format(ticked ? sIsNotTicked : sIsTicked, {text});
}

std::string PressIn(TWindow& window, wxUIActionSimulator& input, const std::string& key) {
  // Raising a window would close the open menu.
  if (TOpenMenus::Any() || window.IsActive()) return PressKey(input, ToWx(key));
  window.Raise();  // moves the focus even without a window manager
  return Format(sNotActive, {window.GetTitle().utf8_string()});
}

constexpr struct {
  TMacroVerb Verb;
  std::string (*Do)(TWindow& window, const TArguments& arguments);
} kSteps[] = {
    {TMacroVerb::Press, [](TWindow& w, const TArguments& a) { return PressButton(w, ToWx(a[0])); }},
    {TMacroVerb::Tick, [](TWindow& w, const TArguments& a) { return TickBox(w, ToWx(a[0]), true); }},
    {TMacroVerb::Untick, [](TWindow& w, const TArguments& a) { return TickBox(w, ToWx(a[0]), false); }},
    {TMacroVerb::Select, [](TWindow& w, const TArguments& a) { return SelectRow(w, ToWx(a[0])); }},
    {TMacroVerb::Cell,
     [](TWindow& w, const TArguments& a) { return EditCell(w, ToWx(a[0]), ToWx(a[1]), ToWx(a[2])); }},
    {TMacroVerb::Page, [](TWindow& w, const TArguments& a) { return TurnToPage(w, ToWx(a[0])); }},
    {TMacroVerb::Type, [](TWindow& w, const TArguments& a) { return TypeText(w, ToWx(a[0]), ToWx(a[1])); }},
    {TMacroVerb::Choose,
     [](TWindow& w, const TArguments& a) { return ChooseItem(w, ToWx(a[0]), ToWx(a[1])); }},
    {TMacroVerb::ExpectText,
     [](TWindow&, const TArguments& a) {
       return IsShownSomewhere(a[0]) ? std::string() : Format(sNoText, {a[0]});
     }},
    {TMacroVerb::ExpectNoText,
     [](TWindow&, const TArguments& a) {
       return IsShownSomewhere(a[0]) ? Format(sHasText, {a[0]}) : std::string();
     }},
    {TMacroVerb::ExpectTicked, [](TWindow& w, const TArguments& a) { return CheckTick(w, a[0], true); }},
    {TMacroVerb::ExpectUnticked, [](TWindow& w, const TArguments& a) { return CheckTick(w, a[0], false); }},
    {TMacroVerb::ExpectButton,
     [](TWindow& w, const TArguments& a) {
       return HasButton(w, ToWx(a[0])) ? std::string() : Format(sControlDisabled, {a[0]});
     }},
    {TMacroVerb::ExpectNoButton,
     [](TWindow& w, const TArguments& a) {
       return HasButton(w, ToWx(a[0])) ? Format(sHasButton, {a[0]}) : std::string();
     }},
};

auto RowOf(TMacroVerb verb) {
  return std::ranges::find(kSteps, verb, [](const auto& row) { return row.Verb; });
}

}  // namespace

bool IsWindowStep(TMacroVerb verb) { return verb == TMacroVerb::Key || RowOf(verb) != std::end(kSteps); }

std::string RunInWindow(const TMacroStep& step, wxTopLevelWindow& front, wxUIActionSimulator* input) {
  if (step.Verb == TMacroVerb::Key) return PressIn(front, *input, step.Arguments[0]);
  return RowOf(step.Verb)->Do(front, step.Arguments);
}

wxTopLevelWindow* ExpectWindow(const std::string& title, std::string& problem) {
  const wxDialog* front = TModalStack::Top();
  for (wxTopLevelWindow* window : ShownWindows())
    if (window->GetTitle() == ToWx(title) && (!front || front == window)) return window;
  problem = front && front->GetTitle() != ToWx(title) ? Format(sDialogOpen, {front->GetTitle().utf8_string()})
                                                      : Format(sNoWindow, {title});
  return nullptr;
}

}  // namespace kestrel::workbench
