#include <CLI/CLI.hpp>

#include "support/Testing.h"
#include "workbench/macro/MacroOptions.h"
#include "workbench/model/CommandLine.h"

namespace kestrel::workbench {

namespace {

struct TParsed {
  TCommandLine Line;
  TMacroOptions Macro;
};

TParsed Parse(std::vector<std::string> arguments) {
  TParsed parsed;
  CLI::App parser;
  parsed.Line.AddTo(parser);
  parsed.Macro.AddTo(parser);
  std::ranges::reverse(arguments);
  parser.parse(std::move(arguments));
  return parsed;
}

TEST(CommandLine, HasPackagesMacroAndFile) {
  const auto parsed = Parse({"--package", "a.so", "--play=m.macro", "--package=b.so", "/Demo.qvxproj"});
  EXPECT_THAT(parsed.Line.Packages, ElementsAre("a.so", "b.so"));
  EXPECT_EQ(parsed.Macro.Macro, "m.macro");
  EXPECT_EQ(parsed.Line.File, "/Demo.qvxproj");
  EXPECT_EQ(Parse({"--", "-odd.pas"}).Line.File, "-odd.pas");
}

}  // namespace

}  // namespace kestrel::workbench
