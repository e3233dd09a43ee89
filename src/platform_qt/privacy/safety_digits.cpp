#include "platform_qt/privacy/safety_digits.h"

#include <openssl/evp.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace verlume::qt {
namespace {

using std::string_view_literals::operator""sv;

constexpr std::string_view kPurpose = "verlume-safety-1\0"sv;
// So many that it takes time to look for a key with the same digits.
constexpr int kRounds = 5200;
constexpr std::size_t kGroups = 6;  // of each key
constexpr std::size_t kBytesOfGroup = 5;
constexpr std::size_t kDigitsOfGroup = 5;

using Hash = std::array<unsigned char, 64>;

Hash Sha512(const std::string& bytes) {
  Hash hash{};
  EVP_Digest(bytes.data(), bytes.size(), hash.data(), nullptr, EVP_sha512(), nullptr);
  return hash;
}

std::string Group(const Hash& hash, std::size_t index) {
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < kBytesOfGroup; ++i)
    number = number << 8 | hash[index * kBytesOfGroup + i];
  const std::string digits = std::to_string(number % 100'000);
  return std::string(kDigitsOfGroup - digits.size(), '0') + digits;
}

std::string HalfOf(const PublicKey& key) {
  Hash hash = Sha512(std::string(kPurpose) + key);
  for (int round = 0; round < kRounds; ++round)
    hash = Sha512(std::string(hash.begin(), hash.end()) + key);
  std::string half;
  for (std::size_t i = 0; i < kGroups; ++i) half += Group(hash, i);
  return half;
}

}  // namespace

std::u16string SafetyDigitsOf(const PublicKey& one, const PublicKey& other) {
  const std::string half = HalfOf(one);
  const std::string otherHalf = HalfOf(other);
  const std::string digits = std::min(half, otherHalf) + std::max(half, otherHalf);
  return {digits.begin(), digits.end()};
}

}  // namespace verlume::qt
