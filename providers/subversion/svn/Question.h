// Questions that the provider asks while it works.  User interface thread only.
#pragma once

#include <optional>
#include <string>

#include "scc/sccdefs.h"

namespace kestrel::svnscc {

/// Answered with Yes or No; texts are UTF-8.
struct Question {
  std::string Title;
  std::string Text;
};

/// True for Yes; false for No and for a question that was closed; nullopt when no window can be shown.
using QuestionPrompt = std::optional<bool> (*)(scc::WindowHandle parent, const Question& question);

/// Without a prompt nothing can be asked.
void SetQuestionPrompt(QuestionPrompt prompt);
/// Shows the question above `parent`, which may be null.
std::optional<bool> AskUser(scc::WindowHandle parent, const Question& question);

}  // namespace kestrel::svnscc
