// One domain of the library, sharing: its catalogue and both faces. Include this instead of the umbrella
// header <QBComponentAPI/QBComponentAPI.hpp> where one domain is all a file uses: a change to another
// domain's records then leaves the file alone.
#pragma once

#include <QBComponentAPI/share/ShareCatalogue.hpp>
#include <QBComponentAPI/share/typed/ShareTyped.hpp>
