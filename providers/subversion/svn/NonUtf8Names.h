// File names that are not UTF-8, which Subversion does not support.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrel::svnscc {

bool IsUtf8(std::string_view text);
/// `text` with a question mark for every byte that is not UTF-8.
std::string Readable(std::string_view text);
/// The files and folders below `folder` whose names are not UTF-8; does not descend into such a folder.
std::vector<std::string> NamesNotUtf8(const std::string& folder);

}  // namespace kestrel::svnscc
