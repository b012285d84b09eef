// The base URL as the client reads it, and URLs as error messages show them. Internal to the host.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qb::host::url {

/// scheme://[userinfo@]host[:port][path], with the scheme lower-cased and IPv6 hosts without brackets.
struct Parts {
  std::string scheme;
  std::string host;
  bool bracketed = false;  ///< the host was written as [IPv6]
};

/// std::nullopt unless the text is an absolute http or https URL with a well-formed host (and port): no
/// query, no fragment, no bytes outside printable ASCII.
std::optional<Parts> parse(std::string_view text);

/// 127.0.0.0/8 written as four decimal parts, ::1, or localhost in any case.
bool isLoopback(const Parts& parts);

/// The URL without user info, query or fragment: what an error message may quote.
std::string redact(std::string_view text);

}  // namespace qb::host::url
