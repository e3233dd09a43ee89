// What the system knows of files, each system in a file of its own. Paths are bytes: UTF-8 on
// Windows, whatever the user's files are called elsewhere.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace verlume::qt {

enum class FileKind { Nothing, File, Folder, Other };

// What is at a path, at the end of links. Never fails.
FileKind KindOf(const std::string& path);
// True if there is anything at the path, even a link to nothing.
bool IsTaken(const std::string& path);
// Whether the system keeps the name, in every folder, for a device. Never fails.
bool IsNameOfDevice(std::u16string_view name) noexcept;
// Whether a file can have the name, in some folder. Never fails.
bool CanBeFileName(std::u16string_view name) noexcept;
// The folder that contains the path.
std::string FolderOf(const std::string& path);

// The following throw a RunTimeFailure.

// The size of an ordinary file in bytes.
std::uint64_t FileSize(const std::string& path);
// Throws unless this user may write to what is there.
void CheckWritable(const std::string& path);
// The path of the actual file: the path itself or, if it is a link, the end of the links, which
// need not exist.
std::string EndOfLinks(const std::string& path);
// The names of the ordinary files in a folder, in its own order.
std::vector<std::string> FilesIn(const std::string& folder);
void RemoveFile(const std::string& path);
// Gives a file another path in the same folder, in one step; what was there is gone. The new name
// has survived a crash when this returns, if the system can.
void MoveInto(const std::string& from, const std::string& to);
// The same where nothing has the new path. False if something has: it stays as it is.
[[nodiscard]] bool MoveIntoFree(const std::string& from, const std::string& to);

// These never throw.

// Whether this user can make files in a folder; false if there is none. Where only trying shows it
// (Windows), a file is made that is gone when this returns.
bool CanMakeFilesIn(const std::string& folder) noexcept;
// Whether CheckWritable would not throw.
bool CanWriteTo(const std::string& path) noexcept;

// These never throw, and are false if it has not worked.
bool TryToRemove(const std::string& path) noexcept;
bool TryToRename(const std::string& from, const std::string& to) noexcept;

// The number of this process.
std::string ProcessNumber();

}  // namespace verlume::qt
