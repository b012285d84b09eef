// One domain of the library, the subscription status: its catalogue and both faces. Include this instead of the umbrella
// header <QBComponentAPI/QBComponentAPI.hpp> where one domain is all a file uses: a change to another
// domain's records then leaves the file alone.
#pragma once

#include <QBComponentAPI/vip/VipCatalogue.hpp>
#include <QBComponentAPI/vip/dict/VipDict.hpp>
#include <QBComponentAPI/vip/typed/VipTyped.hpp>
