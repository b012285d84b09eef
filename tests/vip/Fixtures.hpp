// Complete subscription results, shared by both faces' tests; the summary they wrap is the account
// domain's.
#pragma once

#include <string>

#include "user/Fixtures.hpp"

namespace qb::fixtures::vip {

using fixtures::kVipInfo;

inline const std::string kVerifyResult = R"({"vip_info": )" + kVipInfo + "}";
inline const std::string kRestoreResult = R"({"vip_info": )" + kVipInfo + R"(, "login_secret": "ls-7f3a"})";

}  // namespace qb::fixtures::vip
