// Yes/No questions during a command.  User interface thread only.
#pragma once

#include <optional>
#include <string>

#include "scc/sccdefs.h"

namespace kestrel::svnscc {

/// UTF-8.
struct Question {
  std::string Title;
  std::string Text;
};

/// True for Yes; false for No and for a closed question; nullopt if no window can be shown.
using QuestionPrompt = std::optional<bool> (*)(scc::WindowHandle parent, const Question& question);

/// Sets the prompt; without one, AskUser() returns nullopt.
void SetQuestionPrompt(QuestionPrompt prompt);
/// Shows the question above `parent`, which may be null.
std::optional<bool> AskUser(scc::WindowHandle parent, const Question& question);

}  // namespace kestrel::svnscc
