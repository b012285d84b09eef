// One domain of the library, the account domain: its catalogue and both faces. Include this instead of the umbrella
// header <QBComponentAPI/QBComponentAPI.hpp> where one domain is all a file uses: a change to another
// domain's records then leaves the file alone.
#pragma once

#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/enums/UserEnums.hpp>
#include <QBComponentAPI/user/dict/UserDict.hpp>
#include <QBComponentAPI/user/typed/UserTyped.hpp>
