// Files and folders of a POSIX system. File names are UTF-8; a path that is no valid UTF-16 or
// holds a NUL names nothing.
#pragma once

#include "platform/file_system.h"

namespace verlume::qt {

class QtFileSystem : public FileSystem {
 public:
  bool IsFolder(std::u16string_view path) const noexcept override;
  bool IsFile(std::u16string_view path) const noexcept override;
  // A name that is not valid UTF-8 is left out: no path could name it.
  std::vector<std::u16string> ListFiles(std::u16string_view folder,
                                        std::u16string_view extension) const override;
  std::uint64_t SizeOf(std::u16string_view path) const override;
  std::u16string ReadText(std::u16string_view path) const override;
  std::string ReadBytes(std::u16string_view path) const override;
  void ReplaceText(std::u16string_view path, std::u16string_view text) override;
  // A symbolic link stays, and the file it leads to is replaced, with its permissions kept.
  void ReplaceBytes(std::u16string_view path, std::string_view bytes) override;
  void AppendText(std::u16string_view path, std::u16string_view text) override;
  void Delete(std::u16string_view path) override;
  char16_t Separator() const override { return u'/'; }
};

}  // namespace verlume::qt
