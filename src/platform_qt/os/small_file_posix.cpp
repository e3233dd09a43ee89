#include "platform_qt/os/small_file_posix.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform_qt/os/descriptor_posix.h"

namespace verlume::qt {

std::string ReadSmallFile(const std::string& path) {
  const OwnedDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  struct stat about {};
  if (!file.IsOpen() || ::fstat(file.Number(), &about) != 0 || !S_ISREG(about.st_mode)) return "";
  std::string text(kSmallFile, '\0');
  std::size_t length = 0;
  // The files of /proc come a page at a time.
  while (length < text.size()) {
    const ssize_t read = ::read(file.Number(), text.data() + length, text.size() - length);
    if (read <= 0) break;
    length += static_cast<std::size_t>(read);
  }
  text.resize(length);
  return text;
}

}  // namespace verlume::qt
