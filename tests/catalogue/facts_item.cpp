// The item domain's facts for the catalogue tests (see Facts.hpp).
#include <QBComponentAPI/item/Item.hpp>

#include "catalogue/FactsOf.hpp"

const qb::test::DomainFacts& qb::test::itemFacts() {
  static const DomainFacts facts = factsOf("item", item::Endpoints{}, item::Records{}, item::kClassNames);
  return facts;
}
