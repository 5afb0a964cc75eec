#include <gtest/gtest.h>

#include "host/Paths.h"

TEST(Paths, TakeNamesApart) {
  const struct {
    const char *path, *directory, *name, *extension;
  } rows[] = {
      {"", "", "", ""},
      {"unit1.pas", "", "unit1.pas", ".pas"},
      {"C:\\", "C:\\", "", ""},
      {"C:\\unit1.pas", "C:\\", "unit1.pas", ".pas"},
      {"C:unit1", "", "C:unit1", ""},
      {"C:\\src\\main/unit1.pas", "C:\\src\\main", "unit1.pas", ".pas"},
      {"\\\\server\\share\\a.pas", "\\\\server\\share\\", "a.pas", ".pas"},
      {"C:\\v1.2\\readme", "C:\\v1.2", "readme", ""},
      {"C:\\Größe\\Ü.pas", "C:\\Größe", "Ü.pas", ".pas"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.path);
    EXPECT_EQ(ExtractFileDir(row.path), row.directory);
    EXPECT_EQ(ExtractFileName(row.path), row.name);
    EXPECT_EQ(ExtractFileExt(row.path), row.extension);
  }
}

TEST(Paths, AddAndDropTrailingDelimiters) {
  const struct {
    const char *path, *with, *without;
  } rows[] = {
      {"", "\\", ""},
      {"C:\\", "C:\\", "C:\\"},
      {"C:\\a", "C:\\a\\", "C:\\a"},
      {"C:/a/", "C:/a/", "C:/a"},
      {"\\\\server\\share\\", "\\\\server\\share\\", "\\\\server\\share\\"},
      {"\\\\server\\share\\a\\", "\\\\server\\share\\a\\", "\\\\server\\share\\a"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(IncludeTrailingPathDelimiter(row.path), row.with) << row.path;
    EXPECT_EQ(ExcludeTrailingPathDelimiter(row.path), row.without) << row.path;
  }
}

TEST(Paths, ShowWhatLiesBelowADirectoryRelativeToIt) {
  const struct {
    const char *base, *path, *relative;
  } rows[] = {
      {"C:\\proj", "C:\\proj\\src\\a.pas", "src\\a.pas"},
      {"C:\\PROJ\\", "c:\\proj\\a.pas", "a.pas"},  // one directory, however it is spelled
      {"C:\\", "C:\\a.pas", "a.pas"},
      {"C:\\proj", "C:\\project\\a.pas", "C:\\project\\a.pas"},
      {"C:\\proj", "D:\\proj\\a.pas", "D:\\proj\\a.pas"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(RelativePath(row.base, row.path), row.relative) << row.base << " " << row.path;
}

TEST(Paths, KnowAbsoluteOnes) {
  for (const char* path : {"C:\\a", "c:/a", "\\\\server\\share\\a"})
    EXPECT_TRUE(IsAbsolutePath(path)) << path;
  for (const char* path : {"", "a\\b", ".\\a", "\\a", "/a", "C:a", "C:"})
    EXPECT_FALSE(IsAbsolutePath(path)) << path;
}
