// Every enumeration of the account domain.
#pragma once

#include "user/enums/AutoRenewStatus.hpp"
#include "user/enums/Gender.hpp"
#include "user/enums/LoginAction.hpp"
#include "user/enums/LoginType.hpp"
#include "user/enums/VipLevel.hpp"
