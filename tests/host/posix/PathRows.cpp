#include "host/PathRows.h"

namespace kestrel {

const std::vector<TNameRow> kNames{
    {"", "", "", ""},
    {"unit1.pas", "", "unit1.pas", ".pas"},
    {"/", "/", "", ""},
    {"/unit1.pas", "/", "unit1.pas", ".pas"},
    {"/src/main/unit1.pas", "/src/main", "unit1.pas", ".pas"},
    {"src//unit1", "src", "unit1", ""},
    {"/src/main/", "/src/main", "", ""},
    {"/v1.2/readme", "/v1.2", "readme", ""},
    {"/src/.profile", "/src", ".profile", ".profile"},
    {"/src/a.tar.gz", "/src", "a.tar.gz", ".gz"},
    {"/src/a.", "/src", "a.", "."},
    {"/Größe/Ü.pas", "/Größe", "Ü.pas", ".pas"},
    {"C:\\unit1.pas", "", "C:\\unit1.pas", ".pas"},
};

const std::vector<TDelimiterRow> kDelimiters{
    {"", "/", ""},       {"/", "/", "/"},      {"//", "//", "/"},
    {"/a", "/a/", "/a"}, {"/a/", "/a/", "/a"}, {"a//", "a//", "a"},
};

const std::vector<TWayRow> kWays{
    {"/proj", "/proj/src/a.pas", "src/a.pas", "src/a.pas"},  // with or without delimiter
    {"/proj/", "/proj/src/a.pas", "src/a.pas", "src/a.pas"},
    {"/", "/a.pas", "a.pas", "a.pas"},
    {"/proj", "/project/a.pas", "/project/a.pas", "../project/a.pas"},  // a longer name is not below
    {"/proj/x", "/other/a.pas", "/other/a.pas", "../../other/a.pas"},
    {"/proj/./x/../y", "/proj//a.pas", "/proj//a.pas", "../a.pas"},
    {"/proj", "/proj", "/proj", "."},
    {"/proj", "/proj/", "/proj/", "."},
    {"/proj", "/", "/", ".."},
    {"/proj", "/Proj/a.pas", "a.pas", "../Proj/a.pas"},  // one name, but another directory on this platform
    {"", "/a.pas", "/a.pas", "/a.pas"},
    {"", "a.pas", "a.pas", "a.pas"},
    {"/proj", "a.pas", "a.pas", "a.pas"},
    {"proj", "/a.pas", "/a.pas", "/a.pas"},
    {"proj/x", "proj/a.pas", "proj/a.pas", "../a.pas"},
    {"../proj", "../a.pas", "../a.pas", "../a.pas"},
    {"../proj", "a.pas", "a.pas", "a.pas"},  // nobody knows from where
};

const std::vector<TNormalRow> kNormals{
    {"", ""},
    {"/", "/"},
    {"//", "/"},
    {".", "."},
    {"a/..", "."},
    {"/p//q/./a.pas", "/p/q/a.pas"},
    {"/p/q/../../a.pas", "/a.pas"},
    {"/../../a.pas", "/a.pas"},
    {"p/../../../a.pas", "../../a.pas"},
    {"./p/", "p"},
    {"/p/.../..a/b..", "/p/.../..a/b.."},
    {"/p/C:\\a\\..\\b", "/p/C:\\a\\..\\b"},  // one name on this platform
};

const std::vector<TWithinRow> kWithin{
    {"/p", "a/b", "/p/a/b"}, {"/p/", "a", "/p/a"}, {"/p", "/a", "/a"}, {"", "a", "a"}, {"/p", "", "/p/"},
};

const std::vector<const char*> kAbsolute{"/a"};
const std::vector<const char*> kNotAbsolute{"", "a/b", "./a", "~/a", "C:\\a"};

const std::vector<TSameRow> kSame{
    {"/p/a", "/p/a", true, true}, {"/p/a", "/P/A", false, true}, {"/p\\a", "/p/a", false, false}};

}  // namespace kestrel
