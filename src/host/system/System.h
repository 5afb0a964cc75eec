// What the system asks of the operating system.  Implemented once per platform in posix/ and windows/.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrel {

/// What the user typed behind the program's name; `argc` and `argv` are those of main().
std::vector<std::string> CommandLineArguments(int argc, char** argv);

/// To be called before anything is printed: the console that the program was started from shows UTF-8 until the
/// program ends, and is there for a program with windows, too.  Such a program ends with the console from then on, so it
/// calls this only when it prints.  What goes to the console is seen when it is flushed, at the latest at the program's end;
/// output to a file or a pipe stays as it is.  Main thread.
void PrepareConsole();

/// The logged-on user's name.  Empty when it does not fit `bufferSize` characters (not bytes), terminator included.
std::string GetUserNameText(std::size_t bufferSize);
/// The process's current directory.  Empty when it does not fit `bufferSize` characters (not bytes), terminator included.
std::string GetCurrentDirectoryText(std::size_t bufferSize);

/// The folder of the program that runs.
std::string ProgramFolder();

/// `path` as it is meant from within the current directory, absolute and in normal form (see NormalizePath), without asking the
/// disk.  Empty when `path` is.
std::string FullPath(const std::string& path);

bool FileExists(const std::string& path);
bool DirectoryExists(const std::string& path);

/// One entry of a directory.
struct TDirectoryEntry {
  std::string_view Name;  ///< without a directory part; valid during the visit
  bool IsDirectory;       ///< a link to a directory is one too
  bool IsLink;            ///< leads somewhere else: a symbolic link, a junction
};
/// Calls `visit` with every entry directly in the directory, hidden and system entries included, but not "." and "..", in
/// the order of the file system.  A directory that is missing or cannot be read has none.
void ForEachEntry(const std::string& directory, const std::function<void(const TDirectoryEntry&)>& visit);

/// File attributes of the SCC world, as far as the system changes them.
inline constexpr std::uint32_t faReadOnly = 0x01;
inline constexpr std::uint32_t faArchive = 0x20;
/// faReadOnly, faArchive or both; 0 for a file that is not there.
std::uint32_t GetFileAttributesOf(const std::string& path);
/// Sets exactly `attributes`.  Archive without read-only makes the file writable by its owner.  False when the file
/// is missing or may not be changed.
bool SetFileAttributesOf(const std::string& path, std::uint32_t attributes);

/// The system's beeps (values of the Windows MessageBeep call).
enum class TBeep : unsigned { Hand = 16, Question = 32, Exclamation = 48, Asterisk = 64 };
/// Sounds a beep and returns at once.  User-interface thread.  Where the system has no beeps of its own (POSIX), the
/// host's toolkit sounds them: silent until the host has installed a handler.
void MessageBeep(TBeep kind);
/// Installs what sounds a beep; an empty function removes it.  User-interface thread.
void SetBeepHandler(std::function<void(TBeep)> handler);

/// Writes the whole file, or leaves the old one as it was: temporary file beside it, synced, renamed over it.  Removes
/// what processes that were killed in the middle left beside it.
/// Keeps the old file's permissions and writes through symbolic links.  A read-only file is refused.  Throws
/// std::runtime_error with a sentence that names the file.
void WriteFileAtomically(const std::string& path, const std::string& contents);
/// The whole file.  Throws std::runtime_error with a sentence that names the file when it cannot be read.
std::string ReadWholeFile(const std::string& path);

}  // namespace kestrel
