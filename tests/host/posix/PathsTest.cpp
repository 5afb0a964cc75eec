#include <gtest/gtest.h>

#include "host/Paths.h"

TEST(Paths, TakeNamesApart) {
  const struct {
    const char *path, *directory, *name, *extension;
  } rows[] = {
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
  for (const auto& row : rows) {
    SCOPED_TRACE(row.path);
    EXPECT_EQ(ExtractFileDir(row.path), row.directory);
    EXPECT_EQ(ExtractFileName(row.path), row.name);
    EXPECT_EQ(ExtractFileExt(row.path), row.extension);
  }
}

TEST(Paths, ReplaceWhatStandsBehindTheLastDotOfTheName) {
  const struct {
    const char *path, *extension, *changed;
  } rows[] = {
      {"/p/X.pas", ".kfm", "/p/X.kfm"}, {"/p/X.pas", "_tlb.pas", "/p/X_tlb.pas"},
      {"/p/X", ".pas", "/p/X.pas"},     {"/p.q/X", ".pas", "/p.q/X.pas"},
      {"/p/a.b.c", ".d", "/p/a.b.d"},   {"/p/X.pas", "", "/p/X"},
      {"/p.q/", ".pas", "/p.q/.pas"},   {"", ".pas", ".pas"},
  };
  for (const auto& row : rows) EXPECT_EQ(ChangeFileExt(row.path, row.extension), row.changed) << row.path;
}

TEST(Paths, AddAndDropTrailingDelimiters) {
  const struct {
    const char *path, *with, *without;
  } rows[] = {
      {"", "/", ""},       {"/", "/", "/"},      {"//", "//", "/"},
      {"/a", "/a/", "/a"}, {"/a/", "/a/", "/a"}, {"a//", "a//", "a"},
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
      {"/proj", "/proj/src/a.pas", "src/a.pas"},  // with or without delimiter
      {"/proj/", "/proj/src/a.pas", "src/a.pas"},
      {"/", "/a.pas", "a.pas"},
      {"/proj", "/project/a.pas", "/project/a.pas"},  // a longer name is not below
      {"/proj", "/other/a.pas", "/other/a.pas"},
      {"/proj", "/proj", "/proj"},
      {"/proj", "/proj/", "/proj/"},
      {"/proj", "/Proj/a.pas", "/Proj/a.pas"},  // another directory on this platform
      {"", "/a.pas", "/a.pas"},
      {"/proj", "a.pas", "a.pas"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(RelativePath(row.base, row.path), row.relative) << row.base << " " << row.path;
}

TEST(Paths, KnowAbsoluteOnes) {
  EXPECT_TRUE(IsAbsolutePath("/a"));
  for (const char* path : {"", "a/b", "./a", "~/a", "C:\\a"}) EXPECT_FALSE(IsAbsolutePath(path)) << path;
}
