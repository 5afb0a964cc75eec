#include "host/Paths.h"

const char PathDelim = '/';

bool IsPathDelim(char c) { return c == PathDelim; }

std::size_t RootLength(std::string_view path) { return !path.empty() && IsPathDelim(path.front()) ? 1 : 0; }

bool IsAbsolutePath(std::string_view path) { return RootLength(path) > 0; }

bool SameFileName(std::string_view a, std::string_view b) { return a == b; }
