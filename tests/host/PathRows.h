// File names and what the rules make of them: each platform has rows of its own.
#pragma once

#include <vector>

namespace kestrel {

struct TNameRow {
  const char *Path, *Directory, *Name, *Extension;
};
extern const std::vector<TNameRow> kNames;

struct TDelimiterRow {
  const char *Path, *With, *Without;
};
extern const std::vector<TDelimiterRow> kDelimiters;

/// A path and what a look at it from a directory shows: below it only, and up from it as well.
struct TWayRow {
  const char *Directory, *Path, *Below, *Way;
};
extern const std::vector<TWayRow> kWays;

struct TNormalRow {
  const char *Path, *Normal;
};
extern const std::vector<TNormalRow> kNormals;

struct TWithinRow {
  const char *Directory, *Path, *Within;
};
extern const std::vector<TWithinRow> kWithin;

extern const std::vector<const char*> kAbsolute, kNotAbsolute;

/// Two spellings: whether they lead to the same file, and whether they compare as one name.
struct TSameRow {
  const char *A, *B;
  bool Same, OneName;
};
extern const std::vector<TSameRow> kSame;

}  // namespace kestrel
