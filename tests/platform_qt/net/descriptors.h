// What this process has open: descriptors, or handles. Each system in a file of its own.
#pragma once

#include <QtGlobal>
#include <cstdint>

#include "platform_qt/os/tcp.h"

namespace verlume::qt {

// Comparable with each other only: the count itself takes a descriptor on some systems.
qsizetype DescriptorsInUse();

// The socket that is connected to a port, kNoSocket when there is none.
SocketNumber SocketConnectedTo(std::int32_t port);

}  // namespace verlume::qt
