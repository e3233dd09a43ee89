// The clipboard, implemented with Qt.
#pragma once

#include "platform/system.h"

namespace verlume::qt {

class QtClipboard : public Clipboard {
 public:
  void SetText(std::u16string_view text) override;
};

}  // namespace verlume::qt
