// The share domain's facts for the catalogue tests (see Facts.hpp).
#include <QBComponentAPI/share/Share.hpp>

#include "catalogue/FactsOf.hpp"

const qb::test::DomainFacts& qb::test::shareFacts() {
  static const DomainFacts facts = factsOf("share", share::Endpoints{}, share::Records{}, share::kClassNames);
  return facts;
}
