// One domain of the library, the collection of identified items: its catalogue and both faces. Include this instead of the umbrella
// header <QBComponentAPI/QBComponentAPI.hpp> where one domain is all a file uses: a change to another
// domain's records then leaves the file alone.
#pragma once

#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/dict/ItemDict.hpp>
#include <QBComponentAPI/item/typed/ItemTyped.hpp>
