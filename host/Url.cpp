#include "Url.hpp"

#include <algorithm>

namespace qb::host::url {
namespace {

bool asciiDigit(char c) { return c >= '0' && c <= '9'; }
bool asciiAlpha(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool asciiHex(char c) { return asciiDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

std::string lower(std::string_view text) {
  std::string out(text);
  for (char& c : out) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return out;
}

// Four parts of one to three digits, each at most 255 and without a leading zero (which some resolvers
// read as octal: 0127.0.0.1 is not in 127.0.0.0/8 for them).
std::optional<int> dottedQuadFirst(std::string_view host) {
  int first = -1;
  for (int part = 0; part < 4; ++part) {
    const auto end = part < 3 ? host.find('.') : host.size();
    if (end == std::string_view::npos) return std::nullopt;
    const std::string_view digits = host.substr(0, end);
    if (digits.empty() || digits.size() > 3 || !std::all_of(digits.begin(), digits.end(), asciiDigit)) return std::nullopt;
    if (digits.size() > 1 && digits[0] == '0') return std::nullopt;
    int value = 0;
    for (char c : digits) value = value * 10 + (c - '0');
    if (value > 255) return std::nullopt;
    if (part == 0) first = value;
    host.remove_prefix(part < 3 ? end + 1 : end);
  }
  return first;
}

}  // namespace

std::optional<Parts> parse(std::string_view text) {
  for (unsigned char c : text) {
    if (c <= 0x20 || c >= 0x7f || c == '?' || c == '#' || c == '\\') return std::nullopt;
  }
  const auto schemeEnd = text.find("://");
  if (schemeEnd == std::string_view::npos || schemeEnd == 0) return std::nullopt;
  Parts parts;
  parts.scheme = lower(text.substr(0, schemeEnd));
  if (parts.scheme != "http" && parts.scheme != "https") return std::nullopt;
  std::string_view authority = text.substr(schemeEnd + 3);
  authority = authority.substr(0, authority.find('/'));
  if (const auto at = authority.rfind('@'); at != std::string_view::npos) authority.remove_prefix(at + 1);

  std::string_view host, port;
  bool hasPort = false;
  if (authority.starts_with('[')) {
    const auto close = authority.find(']');
    if (close == std::string_view::npos) return std::nullopt;
    host = authority.substr(1, close - 1);
    const std::string_view after = authority.substr(close + 1);
    if (!after.empty() && !after.starts_with(':')) return std::nullopt;
    hasPort = !after.empty();
    if (hasPort) port = after.substr(1);
    if (host.find(':') == std::string_view::npos ||
        !std::all_of(host.begin(), host.end(), [](char c) { return asciiHex(c) || c == ':' || c == '.'; })) {
      return std::nullopt;
    }
    parts.bracketed = true;
  } else {
    const auto colon = authority.find(':');
    host = authority.substr(0, colon);
    hasPort = colon != std::string_view::npos;
    if (hasPort) port = authority.substr(colon + 1);
    if (!std::all_of(host.begin(), host.end(),
                     [](char c) { return asciiDigit(c) || asciiAlpha(c) || c == '-' || c == '.' || c == '_'; })) {
      return std::nullopt;
    }
  }
  if (host.empty()) return std::nullopt;
  if (hasPort && (port.empty() || port.size() > 5 || !std::all_of(port.begin(), port.end(), asciiDigit) ||
                  std::stoul(std::string(port)) > 65535)) {
    return std::nullopt;
  }
  parts.host = lower(host);
  return parts;
}

bool isLoopback(const Parts& parts) {
  if (parts.bracketed) return parts.host == "::1";
  if (parts.host == "localhost") return true;
  return dottedQuadFirst(parts.host) == 127;
}

std::string redact(std::string_view text) {
  text = text.substr(0, text.find_first_of("?#"));
  const auto schemeEnd = text.find("://");
  const auto authorityStart = schemeEnd == std::string_view::npos ? 0 : schemeEnd + 3;
  const auto authorityEnd = std::min(text.find('/', authorityStart), text.size());
  const auto at = text.substr(0, authorityEnd).rfind('@');
  if (at == std::string_view::npos || at < authorityStart) return std::string(text);
  return std::string(text.substr(0, authorityStart)) + std::string(text.substr(at + 1));
}

}  // namespace qb::host::url
