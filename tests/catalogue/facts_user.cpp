// The user domain's facts for the catalogue tests (see Facts.hpp).
#include <QBComponentAPI/user/User.hpp>

#include "catalogue/FactsOf.hpp"

const qb::test::DomainFacts& qb::test::userFacts() {
  static const DomainFacts facts = factsOf("user", user::Endpoints{}, user::Records{}, user::kClassNames);
  return facts;
}
