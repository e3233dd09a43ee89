// Files in memory, with switches that make them fail.
#pragma once

#include <map>
#include <optional>
#include <set>

#include "platform/file_system.h"
#include "platform/run_time_failure.h"

namespace verlume::fake {

class FakeFileSystem : public FileSystem {
 public:
  bool IsFolder(std::u16string_view path) const noexcept override;
  bool IsFile(std::u16string_view path) const noexcept override;
  bool IsNameOfDevice(std::u16string_view name) const noexcept override;
  std::vector<std::u16string> ListFiles(std::u16string_view folder,
                                        std::u16string_view extension) const override;
  std::uint64_t SizeOf(std::u16string_view path) const override;
  std::u16string ReadText(std::u16string_view path) const override;
  std::string ReadBytes(std::u16string_view path) const override;
  std::string ReadStart(std::u16string_view path, std::size_t limit) const override;
  using FileSystem::ReplaceBytes;
  using FileSystem::ReplaceText;
  void ReplaceText(std::u16string_view path, std::u16string_view text, Readers readers) override;
  void ReplaceBytes(std::u16string_view path, std::string_view bytes, Readers readers) override;
  void AppendText(std::u16string_view path, std::u16string_view text) override;
  void Delete(std::u16string_view path) override;
  char16_t Separator() const override { return u'/'; }

  // For tests. Folders are stored without a trailing separator.
  void MakeFolder(std::u16string_view path);
  void RemoveFolder(std::u16string_view path);

  // While set, every write or every read fails with this.
  std::optional<FailureNumber> writesFail;
  std::optional<FailureNumber> readsFail;
  std::optional<FailureNumber> listingFails;
  // "A.rtf" and "a.rtf" are the same file, which keeps the name that it was created with.
  bool ignoresCase = false;
  // "CON" and "NUL", in capitals or not and with any extension, are devices.
  bool hasDevices = false;
  std::map<std::u16string, std::string, std::less<>> files;  // path -> bytes

 private:
  std::u16string_view Stored(std::u16string_view path) const noexcept;
  const std::string& Find(std::u16string_view path) const;
  void CheckPath(std::u16string_view path) const;
  void CheckWrite(std::u16string_view path) const;

  std::set<std::u16string, std::less<>> folders_ = {u"/"};
  // What ReadText decoded last.
  mutable std::string lastBytes_;
  mutable std::u16string lastText_;
};

}  // namespace verlume::fake
