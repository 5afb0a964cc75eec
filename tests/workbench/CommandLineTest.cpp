#include <CLI/CLI.hpp>

#include "support/Testing.h"
#include "workbench/macro/MacroOptions.h"
#include "workbench/model/CommandLine.h"

namespace kestrel::workbench {

namespace {

struct TParsed {
  TCommandLine Line;
  TMacroOptions Macro;
  std::string Error;
};

TParsed Parse(std::vector<std::string> arguments) {
  TParsed parsed;
  CLI::App parser;
  parsed.Line.AddTo(parser);
  parsed.Macro.AddTo(parser);
  std::ranges::reverse(arguments);
  try {
    parser.parse(std::move(arguments));
  } catch (const CLI::ParseError& e) {
    parsed.Error = e.what();
  }
  return parsed;
}

TEST(CommandLine, HasPackagesMacroAndFile) {
  const auto parsed = Parse({"--package", "a.so", "--play=m.macro", "--package=b.so", "/Demo.qvxproj"});
  EXPECT_THAT(parsed.Line.Packages, ElementsAre("a.so", "b.so"));
  EXPECT_EQ(parsed.Macro.Macro, "m.macro");
  EXPECT_EQ(parsed.Line.File, "/Demo.qvxproj");
  EXPECT_EQ(Parse({"--", "-odd.pas"}).Line.File, "-odd.pas");
}

TEST(CommandLine, NamesTheArgumentThatIsWrong) {
  EXPECT_EQ(Parse({"--pakage"}).Error, "The following argument was not expected: --pakage");
  EXPECT_THAT(Parse({"--play"}).Error, StartsWith("--play: 1 required"));
  EXPECT_EQ(Parse({"a.pas", "b.pas"}).Error, "The following argument was not expected: b.pas");
}

}  // namespace

}  // namespace kestrel::workbench
