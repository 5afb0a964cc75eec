#include "host/PathRows.h"

namespace kestrel {

const std::vector<TNameRow> kNames{
    {"", "", "", ""},
    {"unit1.pas", "", "unit1.pas", ".pas"},
    {"C:\\", "C:\\", "", ""},
    {"C:\\unit1.pas", "C:\\", "unit1.pas", ".pas"},
    {"C:unit1", "", "C:unit1", ""},
    {"C:\\src\\main/unit1.pas", "C:\\src\\main", "unit1.pas", ".pas"},
    {"\\\\server\\share\\a.pas", "\\\\server\\share\\", "a.pas", ".pas"},
    {"//server/share/src/a.pas", "//server/share/src", "a.pas", ".pas"},
    {"\\\\?\\UNC\\server\\share\\a.pas", "\\\\?\\UNC\\server\\share\\", "a.pas", ".pas"},
    {"C:\\v1.2\\readme", "C:\\v1.2", "readme", ""},
    {"C:\\Größe\\Ü.pas", "C:\\Größe", "Ü.pas", ".pas"},
};

const std::vector<TDelimiterRow> kDelimiters{
    {"", "\\", ""},
    {"C:\\", "C:\\", "C:\\"},
    {"C:\\a", "C:\\a\\", "C:\\a"},
    {"C:/a/", "C:/a/", "C:/a"},
    {"\\\\server\\share\\", "\\\\server\\share\\", "\\\\server\\share\\"},
    {"\\\\server\\share\\a\\", "\\\\server\\share\\a\\", "\\\\server\\share\\a"},
};

const std::vector<TWayRow> kWays{
    {"C:\\proj", "C:\\proj\\src\\a.pas", "src\\a.pas", "src\\a.pas"},
    {"C:\\PRÖJ\\", "c:\\pröj\\a.pas", "a.pas", "a.pas"},  // one directory, however it is spelled
    {"C:/proj/", "C:\\proj\\src/a.pas", "src/a.pas", "src\\a.pas"},
    {"C:\\", "C:\\a.pas", "a.pas", "a.pas"},
    {"C:\\proj", "C:\\project\\a.pas", "C:\\project\\a.pas", "..\\project\\a.pas"},
    {"C:\\Proj\\App", "c:\\proj\\lib\\a.pas", "c:\\proj\\lib\\a.pas", "..\\lib\\a.pas"},
    {"C:\\proj", "D:\\proj\\a.pas", "D:\\proj\\a.pas", "D:\\proj\\a.pas"},
    {"C:\\proj", "C:a.pas", "C:a.pas", "C:a.pas"},
    {"\\\\server\\share", "\\\\SERVER\\Share\\a.pas", "a.pas", "a.pas"},
    {"\\\\server\\share\\app", "//server/share/lib/a.pas", "//server/share/lib/a.pas", "..\\lib\\a.pas"},
    {"\\\\server\\share\\app", "\\\\server\\other\\app\\a.pas", "\\\\server\\other\\app\\a.pas",
     "\\\\server\\other\\app\\a.pas"},
    {"\\\\server\\share\\app", "\\server\\share\\app\\a.pas", "\\server\\share\\app\\a.pas",
     "\\server\\share\\app\\a.pas"},
    {"C:\\proj", "\\\\?\\c:\\proj\\a.pas", "\\\\?\\c:\\proj\\a.pas", "a.pas"},
};

const std::vector<TNormalRow> kNormals{
    {"", ""},
    {"a\\..", "."},
    {"C:\\p\\\\q/.\\..//a.pas", "C:\\p\\a.pas"},
    {"C:/..", "C:\\"},
    {"C:..\\a", "C:..\\a"},  // who knows the current directory of C:
    {"\\..\\a\\", "\\a"},
    {"\\\\server\\share\\p\\..\\..\\a.pas", "\\\\server\\share\\a.pas"},
    {"//server//share//p/a.pas", "\\\\server\\share\\p\\a.pas"},
    {"\\\\server\\share", "\\\\server\\share\\"},
    {"\\\\server", "\\\\server\\"},
    {"\\\\", "\\\\"},
    {"\\\\?\\C:\\p\\a.pas", "C:\\p\\a.pas"},
    {"\\\\?\\unc\\server\\share\\..\\a.pas", "\\\\server\\share\\a.pas"},
    {"\\\\?\\unix\\tmp\\..\\a.pas", "\\\\?\\unix\\a.pas"},
    {"\\\\.\\C:\\a.pas", "\\\\.\\C:\\a.pas"},
};

const std::vector<TWithinRow> kWithin{
    {"C:\\p", "a\\b", "C:\\p\\a\\b"},
    {"C:\\p", "c:a", "C:\\p\\a"},
    {"C:\\p", "D:a", "D:a"},
    {"C:\\p", "D:\\a", "D:\\a"},
    {"C:\\p", "\\a", "C:\\a"},
    {"\\\\server\\share\\p", "\\a", "\\\\server\\share\\a"},
    {"\\\\server\\share\\p", "a", "\\\\server\\share\\p\\a"},
    {"\\\\server\\share\\", "a", "\\\\server\\share\\a"},
    {"C:\\p", "//server/share/a", "//server/share/a"},
    {"", "a", "a"},
};

const std::vector<const char*> kAbsolute{"C:\\a", "c:/a", "\\\\server\\share\\a", "//server/share/a",
                                         "\\\\?\\C:\\a"};
const std::vector<const char*> kNotAbsolute{"", "a\\b", ".\\a", "\\a", "/a", "C:a", "C:"};

const std::vector<TSameRow> kSame{{"C:\\Größe", "c:/GRÖSSE", false, false},
                                  {"C:\\Größe\\Ü", "c:/GRößE/ü", true, true},
                                  {"C:\\a", "C:\\ab", false, false}};

}  // namespace kestrel
