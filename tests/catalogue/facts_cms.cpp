// The cms domain's facts for the catalogue tests (see Facts.hpp).
#include <QBComponentAPI/cms/Cms.hpp>

#include "catalogue/FactsOf.hpp"

const qb::test::DomainFacts& qb::test::cmsFacts() {
  static const DomainFacts facts = factsOf("cms", cms::Endpoints{}, cms::Records{}, cms::kClassNames);
  return facts;
}
