// One domain of the library, customer support: its catalogue and both faces. Include this instead of the umbrella
// header <QBComponentAPI/QBComponentAPI.hpp> where one domain is all a file uses: a change to another
// domain's records then leaves the file alone.
#pragma once

#include <QBComponentAPI/support/SupportCatalogue.hpp>
#include <QBComponentAPI/support/enums/SupportEnums.hpp>
#include <QBComponentAPI/support/dict/SupportDict.hpp>
#include <QBComponentAPI/support/typed/SupportTyped.hpp>
