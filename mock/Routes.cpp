#include "mock/Routes.hpp"

#include <QBComponentAPI/Catalogues.hpp>
#include <algorithm>

namespace qb::mock {

void keepShared(std::vector<std::string_view>& keys, const std::vector<std::string_view>& other) {
  std::erase_if(keys, [&](std::string_view key) { return std::find(other.begin(), other.end(), key) == other.end(); });
}

namespace {

std::vector<Route> buildRoutes() {
  std::vector<Route> routes;
  forEachType(DomainEndpointLists{}, [&]<class Endpoints>() {
    for (Route& line : domainRoutes<Endpoints>()) {
      const auto existing = std::find_if(routes.begin(), routes.end(),
                                         [&](const Route& r) { return r.endpoint->path == line.endpoint->path; });
      if (existing == routes.end()) {
        routes.push_back(std::move(line));
      } else {
        keepShared(existing->required, line.required);
      }
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
