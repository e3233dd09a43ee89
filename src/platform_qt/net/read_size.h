// How bytes are read from sockets.
#pragma once

#include <QByteArray>
#include <string_view>

namespace verlume::qt {

// How many bytes one read returns at most, and Qt reads ahead.
inline constexpr qint64 kReadSize = 256 << 10;

inline std::string_view View(const QByteArray& bytes) {
  return {bytes.data(), static_cast<std::size_t>(bytes.size())};
}

}  // namespace verlume::qt
