// Operating system services, implemented in posix/ and windows/.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrel {

/// The command line arguments without the program's name, as UTF-8; `argc` and `argv` are those of main().
std::vector<std::string> CommandLineArguments(int argc, char** argv);

/// Call before the first output.  Makes the console show UTF-8 until the program ends, and on Windows attaches a program
/// with windows to the console that it was started from.  Such a program then ends when that console is closed, so call
/// this only if there is output.  Console output is buffered until it is flushed or the program ends; output to a file or
/// pipe is unaffected.  Main thread only.
void PrepareConsole();

/// The logged-on user's name.  Empty if it does not fit `bufferSize` characters (not bytes), terminator included.
std::string GetUserNameText(std::size_t bufferSize);
/// The process's current directory.  Empty if it does not fit `bufferSize` characters (not bytes), terminator included.
std::string GetCurrentDirectoryText(std::size_t bufferSize);

/// The directory of the running program.
std::string ProgramFolder();

/// Absolute, lexically normalized form of `path`; does not access the file system.  Empty if `path` is.
std::string FullPath(const std::string& path);

bool FileExists(const std::string& path);
bool DirectoryExists(const std::string& path);

/// One entry of a directory.
struct TDirectoryEntry {
  std::string_view Name;  ///< without a directory part; valid during the visit
  bool IsDirectory;       ///< also for a link to a directory
  bool IsLink;            ///< a symbolic link or junction
};
/// Calls `visit` for each direct entry of the directory, in the order of the file system.  Includes hidden and system
/// entries, but not "." and "..".  A missing or unreadable directory has no entries.
void ForEachEntry(const std::string& directory, const std::function<void(const TDirectoryEntry&)>& visit);

/// The file attributes that the SCC API uses.
inline constexpr std::uint32_t faReadOnly = 0x01;
inline constexpr std::uint32_t faArchive = 0x20;
/// faReadOnly, faArchive or both; 0 for a missing file.
std::uint32_t GetFileAttributesOf(const std::string& path);
/// Sets exactly `attributes`.  Archive without read-only makes the file writable by its owner.  Returns false if the file
/// is missing or may not be changed.
bool SetFileAttributesOf(const std::string& path, std::uint32_t attributes);

/// The system's beeps, with the values of the Windows MessageBeep call.
enum class TBeep : unsigned { Hand = 16, Question = 32, Exclamation = 48, Asterisk = 64 };
/// Sounds a beep and returns immediately.  On POSIX the handler does that; without one it is silent.  User-interface
/// thread only.
void MessageBeep(TBeep kind);
/// Sets the handler that sounds beeps (POSIX); an empty function removes it.  User-interface thread only.
void SetBeepHandler(std::function<void(TBeep)> handler);

/// Writes a temporary file beside `path`, syncs it and renames it to `path`, so that the file has either its old or its
/// new contents.  Keeps the permissions of the old file and follows symbolic links.  Also removes stale temporary files
/// of killed processes from the directory.  Throws std::runtime_error with a sentence that names the file if it is
/// read-only or cannot be written.
void WriteFileAtomically(const std::string& path, const std::string& contents);
/// The contents of a file.  Throws std::runtime_error with a sentence that names the file if it cannot be read.
std::string ReadWholeFile(const std::string& path);

}  // namespace kestrel
