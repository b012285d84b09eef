#pragma once

#include <QBComponentAPI/frame/Enum.hpp>
#include <cstdint>

namespace qb {

/// The topic the service assigned to a question the user typed. Unknown values, negative ones included,
/// decode as `other`, so that a new topic never breaks a reply; building one from an unknown raw value
/// still gives nothing.
enum class AutoReplyClassification : std::int64_t {
  other = 0,
  garden = 1,
  ability = 2,
  recommend = 3,
  technicalIssues = 4,
  complain = 5,
  incorrectResult = 6,
  subscribe = 7,
  restore = 8,
  refund = 9,
  unsubscribe = 10,
  appraisal = 11,
};

}  // namespace qb

QB_ENUM_WITH_FALLBACK(qb::AutoReplyClassification, other, QB_CASE(qb::AutoReplyClassification, other),
                      QB_CASE(qb::AutoReplyClassification, garden), QB_CASE(qb::AutoReplyClassification, ability),
                      QB_CASE(qb::AutoReplyClassification, recommend),
                      QB_CASE(qb::AutoReplyClassification, technicalIssues),
                      QB_CASE(qb::AutoReplyClassification, complain),
                      QB_CASE(qb::AutoReplyClassification, incorrectResult),
                      QB_CASE(qb::AutoReplyClassification, subscribe), QB_CASE(qb::AutoReplyClassification, restore),
                      QB_CASE(qb::AutoReplyClassification, refund), QB_CASE(qb::AutoReplyClassification, unsubscribe),
                      QB_CASE(qb::AutoReplyClassification, appraisal));
