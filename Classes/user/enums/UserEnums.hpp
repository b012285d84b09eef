// Every enumeration of the account domain.
#pragma once

#include <QBComponentAPI/user/enums/AutoRenewStatus.hpp>
#include <QBComponentAPI/user/enums/Gender.hpp>
#include <QBComponentAPI/user/enums/LoginAction.hpp>
#include <QBComponentAPI/user/enums/LoginType.hpp>
#include <QBComponentAPI/user/enums/VipLevel.hpp>
