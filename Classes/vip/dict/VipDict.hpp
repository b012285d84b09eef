// Every Dictionary-face class of the subscription domain, and the summary record they embed.
#pragma once

#include <QBComponentAPI/user/dict/QBAPIVipInfo.hpp>
#include <QBComponentAPI/vip/VipCatalogue.hpp>
#include <QBComponentAPI/vip/dict/QBAPIRestoreResult.hpp>
#include <QBComponentAPI/vip/dict/QBAPIVerifyResult.hpp>
#include <QBComponentAPI/vip/dict/QBVipGetVipCardMessage.hpp>
