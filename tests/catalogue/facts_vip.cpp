// The vip domain's facts for the catalogue tests (see Facts.hpp).
#include <QBComponentAPI/vip/Vip.hpp>

#include "catalogue/FactsOf.hpp"

const qb::test::DomainFacts& qb::test::vipFacts() {
  static const DomainFacts facts = factsOf("vip", vip::Endpoints{}, vip::Records{}, vip::kClassNames);
  return facts;
}
