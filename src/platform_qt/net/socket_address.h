// Network addresses as texts.
#pragma once

#include <QHostAddress>
#include <QString>

namespace verlume::qt {

// The text of an address. An IPv4 address that came over IPv6 is written as plain IPv4.
QString AddressText(const QHostAddress& address);

// The host to look up, from what the user typed: without blanks around it, and without the brackets
// around an IPv6 address. "" when nothing is left.
QString HostToCall(const QString& typed);

// An IPv4 address of a network interface that is up and is not the loopback, else a global IPv6
// address, else 127.0.0.1.
QString OwnAddress();

}  // namespace verlume::qt
