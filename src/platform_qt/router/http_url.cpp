#include "platform_qt/router/http_url.h"

#include <algorithm>
#include <charconv>

namespace verlume::qt {
namespace {

constexpr std::string_view kScheme = "http://";
constexpr std::size_t kLongestUrl = 1000;

// What goes into a request must not end its line.
bool IsVisible(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c > ' ' && c < '\x7F'; });
}

std::optional<std::uint16_t> ParsePort(std::string_view text) {
  std::uint16_t port = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
  if (error != std::errc() || end != text.data() + text.size() || port == 0) return std::nullopt;
  return port;
}

bool StartsWithScheme(std::string_view text) {
  return text.size() >= kScheme.size() &&
         std::equal(kScheme.begin(), kScheme.end(), text.begin(), [](char want, char is) {
           return want == (is >= 'A' && is <= 'Z' ? is | 0x20 : is);
         });
}

// The folder that the path is in, with '/' at its end.
std::string FolderOf(const std::string& path) {
  return path.substr(0, path.substr(0, path.find('?')).rfind('/') + 1);
}

}  // namespace

std::optional<HttpUrl> ParseHttpUrl(std::string_view text) {
  if (text.size() > kLongestUrl || !IsVisible(text) || !StartsWithScheme(text)) return std::nullopt;
  text.remove_prefix(kScheme.size());
  const std::string_view place = text.substr(0, text.find('/'));
  const std::string_view host = place.substr(0, place.find(':'));
  HttpUrl url;
  const auto address = ParseIpv4(host);
  if (!address) return std::nullopt;
  url.host = *address;
  if (host.size() < place.size()) {
    const auto port = ParsePort(place.substr(host.size() + 1));
    if (!port) return std::nullopt;
    url.port = *port;
  }
  url.path = text.substr(place.size());
  if (url.path.empty()) url.path = "/";
  return url;
}

std::optional<HttpUrl> ResolveUrl(const HttpUrl& base, std::string_view reference) {
  if (reference.size() > kLongestUrl || !IsVisible(reference)) return std::nullopt;
  if (StartsWithScheme(reference)) {
    const auto url = ParseHttpUrl(reference);
    return url && url->host == base.host ? url : std::nullopt;
  }
  if (reference.empty() || reference.starts_with("//")) return std::nullopt;
  HttpUrl url = base;
  url.path = reference.starts_with('/') ? "" : FolderOf(base.path);
  url.path += reference;
  return url;
}

}  // namespace verlume::qt
