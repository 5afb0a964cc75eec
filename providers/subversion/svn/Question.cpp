#include "subversion/svn/Question.h"

namespace kestrel::svnscc {
namespace {
QuestionPrompt prompt = nullptr;
}

void SetQuestionPrompt(QuestionPrompt newPrompt) { prompt = newPrompt; }

std::optional<bool> AskUser(scc::WindowHandle parent, const Question& question) {
  return prompt != nullptr ? prompt(parent, question) : std::nullopt;
}

}  // namespace kestrel::svnscc
