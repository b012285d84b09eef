// Every domain's catalogue together: all endpoints and all records of the library, for tools that list
// or walk them (see frame/Catalogue.hpp). The face classes named here are only declared; include the
// umbrella header <QBComponentAPI/QBComponentAPI.hpp> to use them.
#pragma once

#include <span>
#include <string_view>

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/share/ShareCatalogue.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

using AllEndpoints = Concat<user::Endpoints, cms::Endpoints, share::Endpoints>;
using AllRecords = Concat<user::Records, cms::Records, share::Records>;

// The name of every class of every catalogue, domain by domain.
inline constexpr std::span<const std::string_view> kCatalogueClassNames[] = {user::kClassNames, cms::kClassNames,
                                                                            share::kClassNames};

}  // namespace qb
