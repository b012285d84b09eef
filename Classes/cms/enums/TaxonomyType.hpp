#pragma once

#include <QBComponentAPI/frame/Enum.hpp>
#include <cstdint>

namespace qb {

/// The rank or kind of a taxonomy name. `kindom` is spelled as the service spells it; `class`
/// is a C++ keyword, so its case is written `class_` and keeps the name "class".
enum class TaxonomyType : std::int64_t {
  kindom = 0,
  phylum = 1,
  class_ = 2,
  order = 3,
  family = 4,
  genus = 5,
  species = 6,
  subspecies = 7,
  variety = 8,
  cultivar = 9,
  dog = 10,
  disease = 11,
  pest = 12,
  symptom = 13,
  rock = 14,
  term = 15,
  jewellery = 16,
  termdomain = 17,
  breed = 18,
  dogtype = 19,
  food = 20,
  rocktype = 21,
  other = 22,
};

}  // namespace qb

QB_ENUM(qb::TaxonomyType, QB_CASE(qb::TaxonomyType, kindom), QB_CASE(qb::TaxonomyType, phylum),
        ::qb::EnumCase<qb::TaxonomyType>{qb::TaxonomyType::class_, "class"}, QB_CASE(qb::TaxonomyType, order),
        QB_CASE(qb::TaxonomyType, family), QB_CASE(qb::TaxonomyType, genus), QB_CASE(qb::TaxonomyType, species),
        QB_CASE(qb::TaxonomyType, subspecies), QB_CASE(qb::TaxonomyType, variety), QB_CASE(qb::TaxonomyType, cultivar),
        QB_CASE(qb::TaxonomyType, dog), QB_CASE(qb::TaxonomyType, disease), QB_CASE(qb::TaxonomyType, pest),
        QB_CASE(qb::TaxonomyType, symptom), QB_CASE(qb::TaxonomyType, rock), QB_CASE(qb::TaxonomyType, term),
        QB_CASE(qb::TaxonomyType, jewellery), QB_CASE(qb::TaxonomyType, termdomain), QB_CASE(qb::TaxonomyType, breed),
        QB_CASE(qb::TaxonomyType, dogtype), QB_CASE(qb::TaxonomyType, food), QB_CASE(qb::TaxonomyType, rocktype),
        QB_CASE(qb::TaxonomyType, other));
