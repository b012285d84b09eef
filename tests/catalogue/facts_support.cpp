// The support domain's facts for the catalogue tests (see Facts.hpp).
#include <QBComponentAPI/support/Support.hpp>

#include "catalogue/FactsOf.hpp"

const qb::test::DomainFacts& qb::test::supportFacts() {
  static const DomainFacts facts = factsOf("support", support::Endpoints{}, support::Records{}, support::kClassNames);
  return facts;
}
