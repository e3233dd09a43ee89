// Addresses as texts.
#pragma once

#include <QHostAddress>
#include <QString>

namespace verlume::qt {

// An IPv4 address that came over IPv6 is shown as plain IPv4.
QString AddressText(const QHostAddress& address);

// What to look up for a host as the user typed it: without blanks around it, and without the
// brackets that an IPv6 address may stand in. "" when nothing is left.
QString HostToCall(const QString& typed);

// An IPv4 address of an interface that is up and no loopback, else a global IPv6 address, else
// 127.0.0.1.
QString OwnAddress();

}  // namespace verlume::qt
