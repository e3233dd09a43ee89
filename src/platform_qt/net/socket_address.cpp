#include "platform_qt/net/socket_address.h"

#include <QNetworkInterface>

namespace verlume::qt {
namespace {

QList<QHostAddress> OwnAddresses() {
  QList<QHostAddress> addresses;
  for (const QNetworkInterface& card : QNetworkInterface::allInterfaces()) {
    const auto flags = card.flags();
    if (!flags.testFlag(QNetworkInterface::IsUp) || flags.testFlag(QNetworkInterface::IsLoopBack)) {
      continue;
    }
    for (const QNetworkAddressEntry& entry : card.addressEntries()) addresses << entry.ip();
  }
  return addresses;
}

}  // namespace

QString AddressText(const QHostAddress& address) {
  bool isIPv4 = false;
  const quint32 plain = address.toIPv4Address(&isIPv4);
  return isIPv4 ? QHostAddress(plain).toString() : address.toString();
}

QString HostToCall(const QString& typed) {
  const QString host = typed.trimmed();
  const bool isBracketed = host.startsWith('[') && host.endsWith(']');
  return isBracketed ? host.mid(1, host.size() - 2).trimmed() : host;
}

QString OwnAddress() {
  const QList<QHostAddress> addresses = OwnAddresses();
  for (const QHostAddress& address : addresses) {
    if (address.protocol() == QAbstractSocket::IPv4Protocol && !address.isLinkLocal()) {
      return address.toString();
    }
  }
  for (const QHostAddress& address : addresses) {
    if (address.protocol() == QAbstractSocket::IPv6Protocol && !address.isLinkLocal()) {
      return address.toString();
    }
  }
  return QHostAddress(QHostAddress::LocalHost).toString();
}

}  // namespace verlume::qt
