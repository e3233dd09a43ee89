// Files and folders of the system. File names are UTF-8 where they are bytes; a path that is not
// valid UTF-16 or contains a NUL names no file.
#pragma once

#include "platform/file_system.h"

namespace verlume::qt {

class QtFileSystem : public FileSystem {
 public:
  bool IsFolder(std::u16string_view path) const noexcept override;
  bool IsFile(std::u16string_view path) const noexcept override;
  bool IsNameOfDevice(std::u16string_view name) const noexcept override;
  // Leaves out names that are not valid UTF-8, because no path could name them.
  std::vector<std::u16string> ListFiles(std::u16string_view folder,
                                        std::u16string_view extension) const override;
  std::uint64_t SizeOf(std::u16string_view path) const override;
  std::u16string ReadText(std::u16string_view path) const override;
  std::string ReadBytes(std::u16string_view path) const override;
  std::string ReadStart(std::u16string_view path, std::size_t limit) const override;
  using FileSystem::ReplaceBytes;
  using FileSystem::ReplaceText;
  void ReplaceText(std::u16string_view path, std::u16string_view text, Readers readers) override;
  // A symbolic link stays; the file to which it leads is replaced and keeps its permissions.
  void ReplaceBytes(std::u16string_view path, std::string_view bytes, Readers readers) override;
  void AppendText(std::u16string_view path, std::u16string_view text) override;
  void Delete(std::u16string_view path) override;
  char16_t Separator() const override;
};

}  // namespace verlume::qt
