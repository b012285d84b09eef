// The routes of one domain's catalogue, from its declarations. Heavy templates: included only by the files
// under mock/routes/, each of which instantiates them over one domain after that domain's face headers.
#pragma once

#include <QBComponentAPI/Catalogues.hpp>
#include <QBComponentAPI/frame/Declarations.hpp>
#include <string_view>
#include <vector>

#include "mock/Routes.hpp"

namespace qb::mock {

namespace routeParts {

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

}  // namespace routeParts

template <class Endpoints>
std::vector<Route> domainRoutes() {
  std::vector<Route> routes;
  forEachType(Endpoints{}, [&]<class A>() {
    routes.push_back(Route{&A::endpoint, routeParts::requiredParameters<A>()});
  });
  return routes;
}

}  // namespace qb::mock

/// The mock service's routes of one domain (qb::<domain>::Endpoints). Used once per domain, in mock/routes/,
/// after that domain's face headers.
#define QB_MOCK_DOMAIN(domain) \
  template std::vector<::qb::mock::Route> qb::mock::domainRoutes<::qb::domain::Endpoints>();
