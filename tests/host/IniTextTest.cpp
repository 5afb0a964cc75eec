#include <functional>
#include <random>

#include "support/Testing.h"
#include "system/IniText.h"
#include "system/Text.h"

namespace kestrel {

using TPercent = TIniText::TPercent;

namespace {

const std::string kEnd(LineEnd);

/// "\n" stands for the platform's line end.
std::string Native(std::string text) {
  for (auto at = text.find('\n'); at != text.npos; at = text.find('\n', at + kEnd.size()))
    text.replace(at, 1, kEnd);
  return text;
}

}  // namespace

TEST(IniText, HoldsAnyTextThroughAnyNumberOfRewrites) {
  std::vector<std::string> texts{
      "plain",        " blanks ",     "\ttabs\t", "tab\tinside", "\"quoted\"",   "\"",         "\"\"",
      "'single'",     "'\"both\"'",   "half \"",  "%\"marked\"", "\"$/b\", A",   "; none",     "#none",
      "[section]",    "A]B",          "A] B",     "]",           "a=b",          "=",          "<<<END",
      "two\r\nlines", "\n",           "100%",     "100%25",      "%41%3D%25%0A", "%20ends%20", "\xEF\xBB\xBF",
      "\\\\server\\", "Größe 名前 😀", "\xFF\xC3"};
  texts.push_back(std::string("nul \0 inside", 12));
  for (const auto percent : {TPercent::Literal, TPercent::Escape}) {
    TIniText ini({}, percent);
    for (const auto& text : texts) {
      ini.SetValue(text, "key", text);
      ini.SetValue("names", text, text);
      ini.SetValue("", text, text);
    }
    ini.SetValues("list", "item", texts);
    const std::string megabyte(1 << 20, '"');
    ini.SetValue("long", "key", megabyte);
    for (int i = 0; i < 3; ++i) {
      ini = TIniText(ini.Text(), percent);
      ini.SetValue("list", "count", std::to_string(i));
    }
    EXPECT_FALSE(ini.Damage());
    EXPECT_EQ(ini.Value("long", "key"), megabyte);
    EXPECT_THAT(ini.Keys("names"), ElementsAreArray(texts));
    EXPECT_THAT(ini.Values("list", "item"), ElementsAreArray(texts));
    for (const auto& text : texts)
      for (const auto& value : {ini.Value(text, "KEY"), ini.Value("Names", text), ini.Value("", text)})
        EXPECT_EQ(value, text);
  }
}

TEST(IniText, ChangesNoByteButThoseOfTheKey) {
  const auto set = [](const char* key, const char* value) {
    return [=](TIniText& ini) { ini.SetValue("S", key, value); };
  };
  const auto list = [](std::vector<std::string> values) {
    return [values](TIniText& ini) { ini.SetValues("S", "k", values); };
  };
  const auto drop = [](const char* section) { return [=](TIniText& ini) { ini.DeleteSection(section); }; };
  const struct {
    std::string Before;
    std::function<void(TIniText&)> Change;
    std::string After;
  } rows[] = {
      {"\xEF\xBB\xBF[s]\r\n K = old \t\r\n", set("k", "new"), "\xEF\xBB\xBF[s]\r\n K = new \t\r\n"},
      {"[S] ; why [x]\nk=\"1\"\nother='x'\nk=2\n; end", set("k", "3"),
       "[S] ; why [x]\nk=3\nother='x'\nk=2\n; end"},
      {"[S]\na=1\n\n# why\nno key\n\n[T]\nk=t\n", set("k", "1"),
       "[S]\na=1\nk=1\n\n# why\nno key\n\n[T]\nk=t\n"},
      {"[S]\n; only\n[T]\n[s]\nk=2\n", set("a", "1"), "[S]\n; only\n[T]\n[s]\nk=2\na=1\n"},
      {"[S]\r\na=1", set("k", "1"), "[S]\r\na=1\r\nk=1\r\n"},
      {"; c", set("k", "1"), Native("; c\n\n[S]\nk=1\n")},
      {"", set("k", "1"), Native("[S]\nk=1\n")},
      {"[T\nk=t\n", set("k", "1"), "[T\nk=t\n\n[S]\nk=1\n"},
      {"[S]\nk=a\n; of b\nk = b\n\nk=c\n", list({"a", "c"}), "[S]\nk=a\n; of b\n\nk=c\n"},
      {"[S]\nk=a\n; of b\nk = b\n\nk=c\n", list({"a", "x", "y", "c"}),
       "[S]\nk=a\n; of b\nk = x\nk=y\n\nk=c\n"},
      {"[S]\nk = a\nx=1\n", list({"b", "a"}), "[S]\nk=b\nk = a\nx=1\n"},
      {"[S]\nk=a\nx=1\nK=b\n", list({}), "[S]\nx=1\n"},
      {"[A]\na=1\n\n\n[S]\n; of s\nk=1\nbad\n\n# of t\n[T]\n[s]\nk=2", drop("S"),
       "[A]\na=1\n\nbad\n\n# of t\n[T]\n"},
      {"k=1\n[S]\nk=2\n", [](TIniText& ini) { ini.SetValue("", "l", "3"); }, "k=1\nl=3\n[S]\nk=2\n"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Before);
    TIniText ini(row.Before);
    EXPECT_EQ(ini.Text(), row.Before);
    row.Change(ini);
    EXPECT_EQ(ini.Text(), row.After);
    row.Change(ini);
    EXPECT_EQ(ini.Text(), row.After) << "the second time there is nothing to change";
  }
}

TEST(IniText, ReadsWhatOthersWrote) {
  const struct {
    std::string Text;
    const char* Value;  ///< of k in section "s"
    TPercent Percent = TPercent::Literal;
  } rows[] = {
      {"[S]\nk=\"two words\"", "two words"},
      {"[ s ]\nk='a;b'", "a;b"},
      {"[s]\rk=1\r[t]\rk=2", "1"},
      {"[s] ; [t]\nk=file:///a%20b%25", "file:///a%20b%25"},
      {"[s]comment\nk=\"a%25b\"", "a%25b"},
      {"[s]\nk=1\nk=2\n[s]\nk=3", "1"},
      {"[s]\nk=one%0D%0Atwo%25%20", "one\r\ntwo% ", TPercent::Escape},
      {"[s]\nk=\"C:\\100%20;x\"", "C:\\100%20;x", TPercent::Escape},
  };
  for (const auto& row : rows)
    EXPECT_EQ(TIniText(row.Text, row.Percent).Value("s", "k"), row.Value) << row.Text;
  EXPECT_THAT(TIniText("x=1\n[b]\n[]\n[A]B]\n[B]\n[cut\nx=2\n[\"q\"]").Sections(),
              ElementsAre("b", "A]B", "q"));
  EXPECT_THAT(TIniText("[s]\n[cut\nk=1").Keys("s"), IsEmpty()) << "it is not known whose key that is";
}

TEST(IniText, NamesTheFirstDamagedLine) {
  EXPECT_FALSE(TIniText("\xEF\xBB\xBF; [\n\n#=\n[s] x\nk=\n").Damage());
  for (const char* line : {"lonely", "=x", "[cut", "["}) {
    const auto damage = TIniText(std::string("[s]\r\nk=1\r\n ") + line + "\r\nalso\r\n").Damage();
    ASSERT_TRUE(damage) << line;
    EXPECT_EQ(damage->Line, 3u);
    EXPECT_EQ(damage->Text, line);
  }
}

TEST(IniText, GivesBackAnyBytes) {
  std::mt19937 random(11);
  for (int round = 0; round < 2000; ++round) {
    std::string text;
    for (auto size = random() % 40; size > 0; --size)
      text += "[]=;\"%'\r\n \tak\xEF\xBB\xBF\0"[random() % 17];
    TIniText ini(text);
    EXPECT_EQ(ini.Text(), text);
    ini.SetValue("a", "k", "1");
    EXPECT_EQ(TIniText(ini.Text()).Value("a", "k"), "1") << text;
  }
}

}  // namespace kestrel
