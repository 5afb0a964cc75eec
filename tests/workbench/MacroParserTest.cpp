#include "support/Testing.h"
#include "workbench/macro/MacroParser.h"

namespace kestrel::workbench {

TEST(MacroParser, ReadsStepsWithQuotedArgumentsAndComments) {
  const auto steps = ParseMacro(
      "# a comment\n"
      "\n"
      "open tour/Demo.qvxproj   # with a remark\r\n"
      "  type \"&Comment\" \"first\\nsaid \\\"#1\\\" \\\\ end\"\n"
      "note \"\"\n"
      "quit");
  ASSERT_EQ(steps.size(), 4u);
  EXPECT_EQ(steps[0].Verb, TMacroVerb::Open);
  EXPECT_EQ(steps[0].Line, 3);
  EXPECT_THAT(steps[0].Arguments, ElementsAre("tour/Demo.qvxproj"));
  EXPECT_EQ(steps[1].Text, "type \"&Comment\" \"first\\nsaid \\\"#1\\\" \\\\ end\"");
  EXPECT_THAT(steps[1].Arguments, ElementsAre("&Comment", "first\nsaid \"#1\" \\ end"));
  EXPECT_THAT(steps[2].Arguments, ElementsAre(""));
  EXPECT_EQ(steps[3].Verb, TMacroVerb::Quit);
}

TEST(MacroParser, NamesTheLineItCannotRead) {
  const std::pair<const char*, const char*> rows[] = {
      {"quit\nfly OK\n", "line 2: there is no verb \"fly\""},
      {"press\n", "line 1: \"press\" takes 1 arguments, not 0"},
      {"\n\npress a b\n", "line 3: \"press\" takes 1 arguments, not 2"},
      {"note \"open", "line 1: the closing quote is missing"},
      {"wait soon\n", "line 1: \"soon\" is not a number of milliseconds"},
      {"set-read-only a.pas maybe\n", "line 1: \"maybe\" is neither yes nor no"},
  };
  for (const auto& [macro, message] : rows)
    EXPECT_THAT([&] { ParseMacro(macro); }, ThrowsMessage<std::runtime_error>(testing::StrEq(message)))
        << macro;
}

}  // namespace kestrel::workbench
