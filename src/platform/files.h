#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Files by the names that the system gives them: "\Velarion\tz900.cfg", with backslashes or slashes, letters
// in any case, below one of the host's folders. A name that would leave its folder (a "..", a drive) is
// refused.

// kMachine is the file system itself, for folders that the configuration names in full.
enum class FileRoot { kSimulator, kAppData, kMachine };

/// A name that every host's file system takes for one file of a folder: no path, no drive, no device, nothing
/// that some system drops or refuses; at most 128 characters. What the crew types must be one.
bool IsPlainFileName(std::string_view name);

/// The real path of an existing file or folder, or the path that a new one would get in an existing folder
/// (the rest of the name as it stands). Nothing when the name leaves its folder or the host names none.
std::optional<std::string> ResolvePath(std::string_view name, FileRoot root = FileRoot::kSimulator);

/// A file's bytes, kept in memory as they are.
struct FileBytes {
    std::unique_ptr<char[]> data;
    std::size_t size = 0;
    std::string_view Text() const { return {data.get(), size}; }
};

/// Reads a whole regular file; nothing when it is missing, unreadable or larger than `limit` bytes.
std::optional<FileBytes> ReadFile(std::string_view name, FileRoot root = FileRoot::kSimulator,
                                  std::size_t limit = std::size_t{1} << 30);

/// Writes a file whole or not at all: beside its place, then renamed. Missing folders are made. False, and
/// the old file stands, on any failure.
bool WriteFile(std::string_view name, std::string_view text, FileRoot root = FileRoot::kSimulator);

/// Adds text at a file's end, made when it is missing. False on any failure.
bool AppendToFile(std::string_view name, std::string_view text, FileRoot root = FileRoot::kSimulator);

struct FolderEntry {
    std::string name;
    bool is_folder = false;
};

/// The entries of a folder, sorted by name without regard to case; empty when there is no such folder.
std::vector<FolderEntry> ListFolder(std::string_view name, FileRoot root = FileRoot::kSimulator);

bool FolderExists(std::string_view name, FileRoot root = FileRoot::kSimulator);

/// A folder that the configuration names: below the simulator's, else of the machine.
struct ConfiguredFolder {
    std::string name;
    FileRoot root;
    /// The name of a file in it.
    std::string File(std::string_view file) const { return (name + '\\').append(file); }
};
ConfiguredFolder FindConfiguredFolder(std::string_view name);

/// When a file was last written, in seconds of Unix time; nothing when it is missing.
std::optional<std::int64_t> LastWriteTime(std::string_view name, FileRoot root = FileRoot::kSimulator);

/// Cuts the next line off the front of `rest`, without its line end (LF or CRLF). Nothing at the end.
std::optional<std::string_view> NextLine(std::string_view& rest);
