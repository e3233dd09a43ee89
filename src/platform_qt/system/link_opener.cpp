#include "platform_qt/system/link_opener.h"

#include <QUrlQuery>
#include <algorithm>

#include "platform_qt/convert/text.h"

namespace verlume::qt {
namespace {

// Some mail programs attach a file that the address names.
bool NamesAFile(const QUrl& url) {
  const auto items = QUrlQuery(url).queryItems(QUrl::FullyDecoded);
  return std::any_of(items.begin(), items.end(), [](const auto& item) {
    return item.first.startsWith(QStringLiteral("attach"), Qt::CaseInsensitive);
  });
}

// Empty if it is not to be opened.
QUrl UrlOf(std::u16string_view address) {
  const QUrl url(ToQt(address));
  const QString scheme = url.scheme();
  const bool isWeb = scheme == u"http" || scheme == u"https";
  const bool isMail = scheme == u"mailto";
  const bool isUsable = url.isValid() && ((isWeb && !url.host().isEmpty()) ||
                                          (isMail && url.host().isEmpty() && !NamesAFile(url)));
  return isUsable ? url : QUrl();
}

}  // namespace

LinkHost QtLinkOpener::HostOf(std::u16string_view address) const {
  const QUrl url = UrlOf(address);
  const QString ascii = url.host(QUrl::FullyEncoded);
  const QString letters = url.host(QUrl::FullyDecoded);
  return {FromQt(ascii), FromQt(letters)};
}

bool QtLinkOpener::Open(std::u16string_view address) {
  const QUrl url = UrlOf(address);
  return !url.isEmpty() && open_(url);
}

}  // namespace verlume::qt
