// Every domain's facts, in the order of the catalogues (see Facts.hpp).
#include "catalogue/Facts.hpp"

std::span<const qb::test::DomainFacts* const> qb::test::allFacts() {
  static const DomainFacts* const all[] = {&userFacts(),  &itemFacts(),    &cmsFacts(),
                                           &shareFacts(), &supportFacts(), &vipFacts()};
  return all;
}

const std::vector<const qb::test::EndpointFacts*>& qb::test::allEndpoints() {
  static const auto all = [] {
    std::vector<const EndpointFacts*> out;
    for (const DomainFacts* domain : allFacts())
      for (const EndpointFacts& line : domain->endpoints) out.push_back(&line);
    return out;
  }();
  return all;
}

const std::vector<const qb::test::RecordFacts*>& qb::test::allRecords() {
  static const auto all = [] {
    std::vector<const RecordFacts*> out;
    for (const DomainFacts* domain : allFacts())
      for (const RecordFacts& record : domain->records) out.push_back(&record);
    return out;
  }();
  return all;
}
