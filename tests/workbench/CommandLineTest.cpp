#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "workbench/model/CommandLine.h"

namespace kestrel::workbench {

namespace {

using testing::ElementsAre;

std::string ErrorOf(const std::vector<std::string>& arguments) {
  try {
    TCommandLine::Parse(arguments);
    return {};
  } catch (const std::exception& e) {
    return e.what();
  }
}

TEST(CommandLine, TakesPackagesMacroAndFile) {
  const auto line =
      TCommandLine::Parse({"--package", "a.so", "--play=m.macro", "--package=b.so", "Demo.qvxproj"});
  EXPECT_THAT(line.Packages, ElementsAre("a.so", "b.so"));
  EXPECT_EQ(line.Macro, "m.macro");
  EXPECT_EQ(line.File, "Demo.qvxproj");
  EXPECT_EQ(TCommandLine::Parse({"--", "-odd.pas"}).File, "-odd.pas");
}

TEST(CommandLine, SaysWhatIsWrong) {
  EXPECT_EQ(ErrorOf({"--pakage"}), "unknown option --pakage");
  EXPECT_EQ(ErrorOf({"--play"}), "option --play needs a value");
  EXPECT_EQ(ErrorOf({"a.pas", "b.pas"}), "only one file can be opened: b.pas");
  EXPECT_EQ(ErrorOf({"--help=yes"}), "option --help takes no value");
}

}  // namespace

}  // namespace kestrel::workbench
