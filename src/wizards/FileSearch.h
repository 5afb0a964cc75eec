// Walks of directories.
//
// Each function appends to the caller's list.  A directory may be given with or without a trailing delimiter; one that
// does not exist or cannot be read has no entries, and a walk goes on without it.  A directory's entries come in the
// order of the file system, hidden and system entries included.
#pragma once

#include <string>
#include <vector>

namespace kestrel::addin {

/// Every entry (files and subdirectories) directly in the directory: the directory, a delimiter, the name.
void SearchDirectory(std::vector<std::string>& target, const std::string& directory);
/// The same, subdirectories only.  A link to a directory counts as one.
void FindSubDirectories(std::vector<std::string>& target, const std::string& directory);

// The walks go breadth first and read each directory once.  They do not enter links: what a link leads to belongs to the
// place where it really is, and a link to a directory above would have no end.  The directory to start from may be a
// link itself.

/// Every entry in the whole tree below the directory, without trailing delimiters; a link is an entry.
void SearchRecursiveFiles(std::vector<std::string>& target, const std::string& directory);
/// The directory itself, whether it exists or not, and every directory below it, each with a trailing delimiter.
void SearchRecursiveDirectories(std::vector<std::string>& target, const std::string& directory);

}  // namespace kestrel::addin
