// A pane that loads a file from memory.
#pragma once

#include <memory>
#include <string>

#include "platform_qt/text/rich_text_box.h"

namespace verlume {

// The same file under every path.
class OneFile : public FileSystem {
 public:
  bool IsFolder(std::u16string_view) const noexcept override { return false; }
  bool IsFile(std::u16string_view) const noexcept override { return false; }
  bool IsNameOfDevice(std::u16string_view) const noexcept override { return false; }
  std::vector<std::u16string> ListFiles(std::u16string_view, std::u16string_view) const override {
    return {};
  }
  std::uint64_t SizeOf(std::u16string_view) const override { return bytes.size(); }
  std::u16string ReadText(std::u16string_view) const override { return {}; }
  std::string ReadBytes(std::u16string_view) const override { return bytes; }
  std::string ReadStart(std::u16string_view, std::size_t) const override { return {}; }
  void ReplaceText(std::u16string_view, std::u16string_view, Readers) override {}
  void ReplaceBytes(std::u16string_view, std::string_view, Readers) override {}
  void AppendText(std::u16string_view, std::u16string_view) override {}
  void Delete(std::u16string_view) override {}
  char16_t Separator() const override { return u'/'; }

  std::string bytes;
};

class LoadingPane {
 public:
  explicit LoadingPane(qt::Lines lines);

  // Returns the longest time for which the window handled no events, in seconds.
  double Load(const std::string& rtf);

 private:
  OneFile files_;
  QWidget window_;
  qt::QtRichTextBox box_;
};

}  // namespace verlume
