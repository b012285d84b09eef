// The mock service's routes as the catalogues declare them: one per path, with the parameters a call
// must carry. Kept apart from the HTTP server, and built one domain at a time (mock/routes/), so that a
// change to a record rebuilds only its domain's part of this table.
#pragma once

#include <QBComponentAPI/frame/Endpoint.hpp>
#include <string_view>
#include <vector>

namespace qb::mock {

struct Route {
  const Endpoint* endpoint;
  // The parameters every face of the path always sends: a Dictionary-face message its integers and
  // required parameters, a Typed-face request its non-optional members (files aside). A path shared by
  // two Dictionary-face messages insists only on what both send.
  std::vector<std::string_view> required;
};

// Every path of the catalogues once, in catalogue order.
const std::vector<Route>& catalogueRoutes();

// One route per catalogue line of a domain (qb::<domain>::Endpoints), built in mock/routes/.
template <class Endpoints>
std::vector<Route> domainRoutes();

// Keeps the keys of `keys` that `other` holds too.
void keepShared(std::vector<std::string_view>& keys, const std::vector<std::string_view>& other);

}  // namespace qb::mock
