// Opens addresses in the programs that the desktop has for them.
#pragma once

#include <QDesktopServices>
#include <QUrl>
#include <functional>
#include <utility>

#include "platform/links.h"

namespace verlume::qt {

class QtLinkOpener : public LinkOpener {
 public:
  using OpenUrl = std::function<bool(const QUrl&)>;
  explicit QtLinkOpener(OpenUrl open = QDesktopServices::openUrl) : open_(std::move(open)) {}

  LinkHost HostOf(std::u16string_view address) const override;
  bool Open(std::u16string_view address) override;

 private:
  const OpenUrl open_;
};

}  // namespace verlume::qt
