// A folder that is deleted with this object, with a Greek letter and a blank in its name.
#pragma once

#include <filesystem>
#include <random>
#include <string>

#include "platform_qt/os/files.h"

namespace verlume::qt {

class TemporaryFolder {
 public:
  TemporaryFolder()
      : folder_(std::filesystem::temp_directory_path() /
                std::filesystem::path(u8"verlume Ω " + Number())) {
    std::filesystem::create_directory(folder_);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::string Path() const { return Text(folder_); }
  std::string Path(const std::u8string& name) const { return Text(folder_ / name); }
  void MakeFolder(const std::u8string& name) const {
    std::filesystem::create_directory(folder_ / name);
  }

 private:
  static std::string Text(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
  }
  static std::u8string Number() {
    const std::string number = std::to_string(std::random_device()());
    return std::u8string(number.begin(), number.end());
  }

  std::filesystem::path folder_;
};

}  // namespace verlume::qt
