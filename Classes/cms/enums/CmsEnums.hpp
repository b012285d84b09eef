// Every enumeration of the content catalogue.
#pragma once

#include <QBComponentAPI/cms/enums/CmsColor.hpp>
#include <QBComponentAPI/cms/enums/CmsFormat.hpp>
#include <QBComponentAPI/cms/enums/CmsLayoutType.hpp>
#include <QBComponentAPI/cms/enums/CmsLayoutTypeSet.hpp>
#include <QBComponentAPI/cms/enums/CmsTagValueType.hpp>
#include <QBComponentAPI/cms/enums/DiseaseLevel.hpp>
#include <QBComponentAPI/cms/enums/TaxonomyType.hpp>
#include <QBComponentAPI/cms/enums/VideoClassification.hpp>
