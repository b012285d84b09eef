#pragma once

#include <QBComponentAPI/frame/Enum.hpp>
#include <cstdint>

namespace qb {

/// How badly a disease affects the plant.
enum class DiseaseLevel : std::int64_t {
  healthy = 0,
  mild = 1,
  severe = 2,
};

}  // namespace qb

QB_ENUM(qb::DiseaseLevel, QB_CASE(qb::DiseaseLevel, healthy), QB_CASE(qb::DiseaseLevel, mild),
        QB_CASE(qb::DiseaseLevel, severe));
