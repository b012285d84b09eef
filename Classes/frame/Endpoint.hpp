// What both faces of an endpoint share: its path, its HTTP verb and its authentication flags.
#pragma once

#include <string>
#include <string_view>

namespace qb {

enum class HttpVerb { get, post };

/// How an endpoint treats the session: `none` sends no credentials; `optional` sends them when the app
/// has a session (needAuth); `required` insists on one (needAuth and mustAuth).
enum class Auth { none, optional, required };

/// Which faces offer an endpoint.
enum class Faces { both, dictionaryOnly, typedOnly };

struct Endpoint {
  std::string_view path;  ///< relative, "v3/<domain>/<action>"
  HttpVerb verb;
  Auth auth;
  Faces faces = Faces::both;

  constexpr bool forceHttps() const noexcept { return true; }
  constexpr bool needAuth() const noexcept { return auth != Auth::none; }
  constexpr bool mustAuth() const noexcept { return auth == Auth::required; }
  /// "get"/"post" for the Dictionary face, "GET"/"POST" for the Typed face.
  constexpr std::string_view lowerVerb() const noexcept { return verb == HttpVerb::get ? "get" : "post"; }
  constexpr std::string_view upperVerb() const noexcept { return verb == HttpVerb::get ? "GET" : "POST"; }
};

}  // namespace qb
