#include "host/PathRows.h"
#include "support/NativePath.h"
#include "support/Testing.h"

namespace kestrel {

TEST(Paths, SplitIntoDirectoryNameAndExtension) {
  for (const auto& row : kNames) {
    SCOPED_TRACE(row.Path);
    EXPECT_EQ(ExtractFileDir(row.Path), row.Directory);
    EXPECT_EQ(ExtractFileName(row.Path), row.Name);
    EXPECT_EQ(ExtractFileExt(row.Path), row.Extension);
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
  for (const auto& row : rows)
    EXPECT_EQ(ChangeFileExt(Native(row.path), row.extension), Native(row.changed)) << row.path;
}

TEST(Paths, AddAndDropTrailingDelimiters) {
  for (const auto& row : kDelimiters) {
    EXPECT_EQ(IncludeTrailingPathDelimiter(row.Path), row.With) << row.Path;
    EXPECT_EQ(ExcludeTrailingPathDelimiter(row.Path), row.Without) << row.Path;
  }
}

TEST(Paths, AreShownAsSeenFromADirectory) {
  for (const auto& row : kWays) {
    SCOPED_TRACE(std::string(row.Directory) + " " + row.Path);
    EXPECT_EQ(RelativePathBelow(row.Directory, row.Path), row.Below);
    EXPECT_EQ(RelativePath(row.Directory, row.Path), row.Way);
  }
}

TEST(Paths, AreNormalised) {
  for (const auto& row : kNormals) {
    EXPECT_EQ(NormalizePath(row.Path), row.Normal) << row.Path;
    EXPECT_EQ(NormalizePath(row.Normal), row.Normal) << "normal already";
  }
}

TEST(Paths, AreResolvedAgainstADirectoryUnlessAbsolute) {
  for (const auto& row : kWithin)
    EXPECT_EQ(ResolvePath(row.Directory, row.Path), row.Within) << row.Directory << " " << row.Path;
}

TEST(Paths, AreAbsoluteOrRelative) {
  for (const char* path : kAbsolute) EXPECT_TRUE(IsAbsolutePath(path)) << path;
  for (const char* path : kNotAbsolute) EXPECT_FALSE(IsAbsolutePath(path)) << path;
}

TEST(Paths, CompareSpellingsOfOneFile) {
  for (const auto& row : kSame) {
    EXPECT_EQ(SameFileName(row.A, row.B), row.Same) << row.A << " " << row.B;
    EXPECT_EQ(FoldFileName(row.A) == FoldFileName(row.B), row.OneName) << row.A << " " << row.B;
  }
}

}  // namespace kestrel
