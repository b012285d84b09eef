// Every domain's catalogue together: all endpoints and all records of the library, for tools that list
// or walk them (see frame/Catalogue.hpp). The face classes named here are only declared; include a
// domain's header (<QBComponentAPI/user/User.hpp>) or the umbrella header to use them.
#pragma once

#include <span>
#include <string_view>

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/share/ShareCatalogue.hpp>
#include <QBComponentAPI/support/SupportCatalogue.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/vip/VipCatalogue.hpp>

namespace qb {

/// Each domain's endpoints and records, domain by domain: for tools that compile one domain at a time.
using DomainEndpointLists =
    TypeList<user::Endpoints, item::Endpoints, cms::Endpoints, share::Endpoints, support::Endpoints, vip::Endpoints>;
using DomainRecordLists =
    TypeList<user::Records, item::Records, cms::Records, share::Records, support::Records, vip::Records>;

using AllEndpoints = Flatten<DomainEndpointLists>;
using AllRecords = Flatten<DomainRecordLists>;

/// The name of every class of every catalogue, domain by domain.
inline constexpr std::span<const std::string_view> kCatalogueClassNames[] = {
    user::kClassNames, item::kClassNames, cms::kClassNames, share::kClassNames, support::kClassNames, vip::kClassNames};

/// Every catalogue line with the class names of its faces, domain by domain.
inline constexpr std::span<const EndpointNames> kCatalogueEndpointNames[] = {
    user::kEndpointNames,  item::kEndpointNames,    cms::kEndpointNames,
    share::kEndpointNames, support::kEndpointNames, vip::kEndpointNames};

}  // namespace qb
