// The rules of the side-by-side view.

#include <random>

#include "common/text/FileDiff.h"
#include "subversion/svn/Client.h"
#include "subversion/svn/CommonLines.h"
#include "support/Testing.h"

namespace kestrel::svnscc {

namespace {

constexpr DiffOptions kExact{};
constexpr DiffOptions kNoCase{true, false};
constexpr DiffOptions kNoSpace{false, true};

/// The rows as text: "a|a  b*B  -|c".
std::string Picture(const FileDiff& diff) {
  std::string picture;
  for (const auto& row : diff.Rows()) {
    const char sign = "|*+-"[static_cast<int>(row.Kind)];
    const auto side = [](int line, std::string_view text) {
      return line < 0 ? std::string("~") : std::string(text);
    };
    picture += (picture.empty() ? "" : "  ") + side(row.Left, diff.LeftText(row)) + sign +
               side(row.Right, diff.RightText(row));
  }
  return picture;
}

std::string Lines(int count, const std::function<std::string(int)>& line) {
  std::string text;
  for (int i = 0; i < count; ++i) text += line(i) + "\n";
  return text;
}

}  // namespace

TEST(FileDiff, AlignsBothSides) {
  EnsureRuntime();
  struct Row {
    const char* what;
    std::string left, right;
    DiffOptions options;
    const char* picture;
    bool same = false;
    LineEnds ends = LineEnds::Alike;
  };
  for (const auto& row : {
           Row{"both empty", "", "", kExact, "", true},
           Row{"left empty", "", "a\nb\n", kExact, "~+a  ~+b"},
           Row{"right empty", "a\n", "", kExact, "a-~"},
           Row{"equal", "a\nb\n", "a\nb\n", kExact, "a|a  b|b", true},
           Row{"one changed", "a\nb\nc\n", "a\nB\nc\n", kExact, "a|a  b*B  c|c"},
           Row{"changed and longer", "a\nb\nz\n", "a\nx\ny\nz\n", kExact, "a|a  b*x  ~+y  z|z"},
           Row{"changed and shorter", "b\nc\nz\n", "x\nz\n", kExact, "b*x  c-~  z|z"},
           Row{"case", "Größe\n", "GRÖßE\n", kExact, "Größe*GRÖßE"},
           Row{"case ignored", "Größe\nx\n", "GRÖßE\ny\n", kNoCase, "Größe|GRÖßE  x*y"},
           Row{"space ignored", "if (a)\n", "if( a )\t\n", kNoSpace, "if (a)|if( a )\t", true},
           Row{"space matters", "a b\n", "a  b\n", kNoCase, "a b*a  b"},
           Row{"other line ends", "a\nb\n", "a\r\nb\r\n", kExact, "a|a  b|b", false, LineEnds::OtherStyle},
           Row{"line ends are space", "a\n", "a\r\n", kNoSpace, "a|a", true, LineEnds::OtherStyle},
           Row{"one line end differs", "a\nb\n", "a\nb\r\n", kExact, "a|a  b|b"},
           Row{"old line ends", "a\rb\r", "a\rb\r", kExact, "a|a  b|b", true},
           Row{"last line not ended", "a\nb", "a\nb\n", kExact, "a|a  b|b", false, LineEnds::LeftUnended},
           Row{"neither last line ended", "a\nb", "a\nc", kExact, "a|a  b*c"},
           Row{"end missing is space", "a\n", "a", kNoSpace, "a|a", true, LineEnds::RightUnended},
           Row{"blank lines", "a\n\n\nb\n", "a\n\nb\n", kExact, "a|a  |  -~  b|b"},
       }) {
    SCOPED_TRACE(row.what);
    const FileDiff diff(row.left, row.right, row.options, MatchCommonLines);
    EXPECT_EQ(row.picture, Picture(diff));
    EXPECT_EQ(row.same, diff.Same());
    EXPECT_EQ(row.ends, diff.Ends());
  }
}

TEST(FileDiff, WalksFromDifferenceToDifference) {
  EnsureRuntime();
  FileDiff diff("1\nb\nc\n2\nd\n", "one\nb\nc\ntwo\nd\ne\n", kExact, MatchCommonLines);
  EXPECT_THAT(diff.Differences(), ElementsAre(0, 3, 5));
  EXPECT_EQ(3U, diff.Next(0));
  EXPECT_EQ(5U, diff.Next(4));
  EXPECT_EQ(std::nullopt, diff.Next(5));
  EXPECT_EQ(3U, diff.Previous(5));
  EXPECT_EQ(0U, diff.Previous(1));
  EXPECT_EQ(std::nullopt, diff.Previous(0));
  diff.Compare(kNoCase);
  EXPECT_EQ(3U, diff.Differences().size());
}

TEST(FileDiff, KeepsCharactersWholeInChangedParts) {
  const auto parts = [](std::string left, std::string right) {
    const auto [a, b] = ChangedParts(left, right);
    return left.substr(a.Start, a.Length) + "/" + right.substr(b.Start, b.Length);
  };
  EXPECT_EQ("old/new", parts("x := old;", "x := new;"));
  EXPECT_EQ("/s", parts("file", "files"));
  EXPECT_EQ("ä/ö", parts("kännen", "können"));  // one byte in common
  EXPECT_EQ("ä/Τ", parts("xäy", "xΤy"));        // the other one
  EXPECT_EQ("/a", parts("aa", "aaa"));
}

// The bound is on work: a quadratic comparison of these would not come back.
TEST(FileDiff, HandlesTheLongestFiles) {
  EnsureRuntime();
  constexpr int kCount = 65536;
  std::mt19937 random(1);
  const auto mixed = [&](int) {
    return random() % 3 == 0 ? std::string("  end;") : "line " + std::to_string(random());
  };
  const std::string left = Lines(kCount, mixed);
  const std::string right = Lines(kCount, mixed);
  const FileDiff different(left, right, kExact, MatchCommonLines);
  EXPECT_FALSE(different.Same());
  const FileDiff reversed(Lines(kCount, [](int i) { return std::to_string(i); }),
                          Lines(kCount, [](int i) { return std::to_string(kCount - i); }), kNoCase,
                          MatchCommonLines);
  EXPECT_GE(reversed.Rows().size(), std::size_t{kCount});
  EXPECT_TRUE(FileDiff(left, left, kNoSpace, MatchCommonLines).Same());
}

}  // namespace kestrel::svnscc
