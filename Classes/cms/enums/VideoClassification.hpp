#pragma once

#include <QBComponentAPI/frame/Enum.hpp>
#include <cstdint>

namespace qb {

/// The topic of a video. Unknown values, negative ones included, decode as `unknown`, so that a new
/// topic never breaks a reply; building one from an unknown raw value still gives nothing.
enum class VideoClassification : std::int64_t {
  unknown = 0,
  sunLight = 1,
  watering = 2,
  fertilize = 3,
};

}  // namespace qb

QB_ENUM_WITH_FALLBACK(qb::VideoClassification, unknown, QB_CASE(qb::VideoClassification, unknown),
                      QB_CASE(qb::VideoClassification, sunLight), QB_CASE(qb::VideoClassification, watering),
                      QB_CASE(qb::VideoClassification, fertilize));
