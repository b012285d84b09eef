#include "mock/Routes.hpp"

#include <QBComponentAPI/QBComponentAPI.hpp>
#include <QBComponentAPI/frame/Declarations.hpp>
#include <algorithm>

namespace qb::mock {
namespace {

template <class Message>
std::vector<std::string_view> alwaysSentByDictionary() {
  std::vector<std::string_view> keys;
  forEachDictionaryKey(Message::qbParams(), [&](std::string_view key, KeyNeed need, auto) {
    if (need != KeyNeed::optional) keys.push_back(key);
  });
  return keys;
}

template <class Request>
std::vector<std::string_view> alwaysSentByTyped() {
  std::vector<std::string_view> keys;
  forEachCodingKey<Request>([&](std::string_view key, KeyNeed need, auto, bool isFile) {
    if (!isFile && need == KeyNeed::required) keys.push_back(key);
  });
  return keys;
}

// Keeps the keys of `keys` that `other` holds too.
void keepShared(std::vector<std::string_view>& keys, const std::vector<std::string_view>& other) {
  std::erase_if(keys, [&](std::string_view key) { return std::find(other.begin(), other.end(), key) == other.end(); });
}

template <class A>
std::vector<std::string_view> requiredParameters() {
  using Message = typename A::DictionaryMessage;
  using Request = typename A::TypedRequest;
  if constexpr (!hasFace<Request>) {
    return alwaysSentByDictionary<Message>();
  } else if constexpr (!hasFace<Message>) {
    return alwaysSentByTyped<Request>();
  } else {
    std::vector<std::string_view> both = alwaysSentByDictionary<Message>();
    keepShared(both, alwaysSentByTyped<Request>());
    return both;
  }
}

std::vector<Route> buildRoutes() {
  std::vector<Route> routes;
  forEachType(AllEndpoints{}, [&]<class A>() {
    const auto required = requiredParameters<A>();
    const auto existing = std::find_if(routes.begin(), routes.end(),
                                       [&](const Route& r) { return r.endpoint->path == A::endpoint.path; });
    if (existing == routes.end()) {
      routes.push_back(Route{&A::endpoint, required});
    } else {
      keepShared(existing->required, required);
    }
  });
  return routes;
}

}  // namespace

const std::vector<Route>& catalogueRoutes() {
  static const std::vector<Route> routes = buildRoutes();
  return routes;
}

}  // namespace qb::mock
