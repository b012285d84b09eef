#pragma once

#include <cstdint>

#include <QBComponentAPI/frame/Enum.hpp>

namespace qb {

/// The state of the automatic subscription renewal. 0 is no case.
enum class AutoRenewStatus : std::int64_t {
  on = 1,
  off = 2,
  billingRetrying = 3,
  billingRetryFail = 4,
  paused = 5,
};

}  // namespace qb

QB_ENUM(qb::AutoRenewStatus, QB_CASE(qb::AutoRenewStatus, on), QB_CASE(qb::AutoRenewStatus, off),
        QB_CASE(qb::AutoRenewStatus, billingRetrying), QB_CASE(qb::AutoRenewStatus, billingRetryFail),
        QB_CASE(qb::AutoRenewStatus, paused));
