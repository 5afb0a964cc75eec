// Directory listings.
//
// Each function appends paths to `target`: the directory, a delimiter, the name.  `directory` may have a trailing delimiter.
// Missing or unreadable directories have no entries.  Entries are in the order of the file system and include hidden and
// system entries.
#pragma once

#include <string>
#include <vector>

namespace kestrel::addin {

/// The direct entries, files and directories.  Part of the package's interface; no caller here.
void SearchDirectory(std::vector<std::string>& target, const std::string& directory);
/// The direct subdirectories, links to directories included.  Part of the package's interface; no caller here.
void FindSubDirectories(std::vector<std::string>& target, const std::string& directory);

// The recursive functions are breadth first and read each directory once.  They do not follow links, which also avoids
// cycles; `directory` itself may be a link.

/// All entries of the tree, links included, without trailing delimiters.
void SearchRecursiveFiles(std::vector<std::string>& target, const std::string& directory);
/// The directory itself, even if it does not exist, and all directories below it, each with a trailing delimiter.
void SearchRecursiveDirectories(std::vector<std::string>& target, const std::string& directory);

}  // namespace kestrel::addin
