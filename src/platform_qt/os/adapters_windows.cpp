#include "platform_qt/os/adapters_windows.h"

namespace verlume::qt {

// The list may grow between two questions.
Adapters::Adapters() {
  constexpr ULONG kFlags = GAA_FLAG_SKIP_ANYCAST | GAA_FLAG_SKIP_MULTICAST |
                           GAA_FLAG_SKIP_DNS_SERVER | GAA_FLAG_INCLUDE_GATEWAYS;
  constexpr int kTries = 5;
  ULONG size = 16 << 10;
  for (int tries = 0; tries < kTries; ++tries) {
    buffer_.resize(size);
    auto* first = reinterpret_cast<IP_ADAPTER_ADDRESSES*>(buffer_.data());
    const ULONG error = ::GetAdaptersAddresses(AF_UNSPEC, kFlags, nullptr, first, &size);
    if (error == NO_ERROR) return;
    if (error != ERROR_BUFFER_OVERFLOW) break;
  }
  buffer_.clear();
}

const IP_ADAPTER_ADDRESSES* Adapters::First() const {
  return buffer_.empty() ? nullptr : reinterpret_cast<const IP_ADAPTER_ADDRESSES*>(buffer_.data());
}

}  // namespace verlume::qt
