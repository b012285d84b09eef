#pragma once

#include <QBComponentAPI/frame/Enum.hpp>
#include <cstdint>

namespace qb {

/// The kind of support ticket: who should answer it.
enum class SupportType : std::int64_t {
  normalSupport = 0,
  vipSupport = 1,
  vipUnsubscription = 2,
  expertSupport = 3,
};

}  // namespace qb

QB_ENUM(qb::SupportType, QB_CASE(qb::SupportType, normalSupport), QB_CASE(qb::SupportType, vipSupport),
        QB_CASE(qb::SupportType, vipUnsubscription), QB_CASE(qb::SupportType, expertSupport));
