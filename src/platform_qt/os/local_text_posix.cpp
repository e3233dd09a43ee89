#include "platform_qt/os/local_text.h"
#include "platform_qt/os/utf8_file_text.h"
#include "richtext/code_pages.h"

namespace verlume::qt {

std::string EncodeLocal(std::u16string_view text) {
  return EncodeUtf8File(text);
}

std::u16string DecodeLocal(std::string_view bytes) {
  return richtext::DecodeUtf8OrGreek(bytes);
}

}  // namespace verlume::qt
