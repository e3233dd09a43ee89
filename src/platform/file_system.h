// Files and folders. Paths are absolute. Text comes back as it was written, but for lone
// surrogates, which become '?'. It is UTF-8 or, on Windows, in the system's code page if that has
// all of it. Both are read, in the lines of one file, too; elsewhere bytes that are not valid UTF-8
// are read as Windows-1253. A byte order mark is not part of the text.
//
// Failures are RunTimeFailures: 53 no such file, 61 disk full, 70 permission denied, 75 the path
// cannot be used as a file (a folder, say), 76 no such folder.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace verlume {

// Who may read a file that is made here. A file that exists keeps its permissions.
enum class Readers { Usual, OwnerOnly };

class FileSystem {
 public:
  virtual ~FileSystem() = default;

  // True if the path is a directory; false for "". Never fails.
  virtual bool IsFolder(std::u16string_view path) const noexcept = 0;
  // True if the path is an ordinary file. Never fails.
  virtual bool IsFile(std::u16string_view path) const noexcept = 0;
  // The names (not paths) of the ordinary files in a folder with the extension (".rtf"), in any
  // letter case, in the order of the file system.
  virtual std::vector<std::u16string> ListFiles(std::u16string_view folder,
                                                std::u16string_view extension) const = 0;

  // Whether this system keeps the name ("NUL", "con.txt") for a device, in every folder. A path
  // that ends in such a name is no file, and none can be made there (75).
  virtual bool IsNameOfDevice(std::u16string_view name) const noexcept = 0;

  // The size of a file in bytes.
  virtual std::uint64_t SizeOf(std::u16string_view path) const = 0;
  virtual std::u16string ReadText(std::u16string_view path) const = 0;
  virtual std::string ReadBytes(std::u16string_view path) const = 0;
  // The first `limit` bytes of a file, or all if it has fewer.
  virtual std::string ReadStart(std::u16string_view path, std::size_t limit) const = 0;
  // Replace a file in one step: a failure or a crash leaves the old content.
  virtual void ReplaceText(std::u16string_view path, std::u16string_view text, Readers readers) = 0;
  virtual void ReplaceBytes(std::u16string_view path, std::string_view bytes, Readers readers) = 0;
  void ReplaceText(std::u16string_view path, std::u16string_view text) {
    ReplaceText(path, text, Readers::Usual);
  }
  void ReplaceBytes(std::u16string_view path, std::string_view bytes) {
    ReplaceBytes(path, bytes, Readers::Usual);
  }
  // Opens the file, appends the text and closes the file; creates it, readable by its owner alone,
  // if it does not exist. After a failure none of the text is in the file.
  virtual void AppendText(std::u16string_view path, std::u16string_view text) = 0;
  virtual void Delete(std::u16string_view path) = 0;

  // The character between the parts of a path.
  virtual char16_t Separator() const = 0;
};

}  // namespace verlume
