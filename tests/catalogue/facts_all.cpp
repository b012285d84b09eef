// Every domain's facts, in the order of the catalogues (see Facts.hpp).
#include "catalogue/Facts.hpp"

std::span<const qb::test::DomainFacts* const> qb::test::allFacts() {
  static const DomainFacts* const all[] = {&userFacts(),  &itemFacts(),    &cmsFacts(),
                                           &shareFacts(), &supportFacts(), &vipFacts()};
  return all;
}

namespace {

// One kind of line of every domain, domain after domain.
template <class Line>
std::vector<const Line*> linesOf(std::vector<Line> qb::test::DomainFacts::*lines) {
  std::vector<const Line*> out;
  for (const qb::test::DomainFacts* domain : qb::test::allFacts())
    for (const Line& line : domain->*lines) out.push_back(&line);
  return out;
}

}  // namespace

const std::vector<const qb::test::EndpointFacts*>& qb::test::allEndpoints() {
  static const auto all = linesOf(&DomainFacts::endpoints);
  return all;
}

const std::vector<const qb::test::RecordFacts*>& qb::test::allRecords() {
  static const auto all = linesOf(&DomainFacts::records);
  return all;
}
