// One domain of the library, the content catalogue: its catalogue and both faces. Include this instead of the umbrella
// header <QBComponentAPI/QBComponentAPI.hpp> where one domain is all a file uses: a change to another
// domain's records then leaves the file alone.
#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/cms/CmsTagValues.hpp>
#include <QBComponentAPI/cms/enums/CmsEnums.hpp>
#include <QBComponentAPI/cms/dict/CmsDict.hpp>
#include <QBComponentAPI/cms/typed/CmsTyped.hpp>
