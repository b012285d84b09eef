// The share domain's facts for the catalogue tests (see Facts.hpp).
#include <QBComponentAPI/share/ShareCatalogue.hpp>
#include <QBComponentAPI/share/typed/ShareTyped.hpp>

#include "catalogue/FactsOf.hpp"

const qb::test::DomainFacts& qb::test::shareFacts() {
  static const DomainFacts facts = factsOf("share", share::Endpoints{}, share::Records{}, share::kClassNames);
  return facts;
}
