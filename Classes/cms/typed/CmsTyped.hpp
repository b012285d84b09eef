// Every Typed-face record of the content catalogue.
#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/cms/typed/BookModel.hpp>
#include <QBComponentAPI/cms/typed/CmsArticleModel.hpp>
#include <QBComponentAPI/cms/typed/CmsContentModel.hpp>
#include <QBComponentAPI/cms/typed/CmsDiseaseModel.hpp>
#include <QBComponentAPI/cms/typed/CmsGetBookListRequest.hpp>
#include <QBComponentAPI/cms/typed/CmsGetBookListResponse.hpp>
#include <QBComponentAPI/cms/typed/CmsGetCmsArticlesRequest.hpp>
#include <QBComponentAPI/cms/typed/CmsGetCmsArticlesResponse.hpp>
#include <QBComponentAPI/cms/typed/CmsGetCmsNameListRequest.hpp>
#include <QBComponentAPI/cms/typed/CmsGetCmsNameListResponse.hpp>
#include <QBComponentAPI/cms/typed/CmsGetCmsNameListsRequest.hpp>
#include <QBComponentAPI/cms/typed/CmsGetCmsNameListsResponse.hpp>
#include <QBComponentAPI/cms/typed/CmsGetCmsNameRequest.hpp>
#include <QBComponentAPI/cms/typed/CmsGetCmsNameResponse.hpp>
#include <QBComponentAPI/cms/typed/CmsGetNameListRequest.hpp>
#include <QBComponentAPI/cms/typed/CmsGetNameListResponse.hpp>
#include <QBComponentAPI/cms/typed/CmsGetSimpleCmsNameListRequest.hpp>
#include <QBComponentAPI/cms/typed/CmsGetSimpleCmsNameListResponse.hpp>
#include <QBComponentAPI/cms/typed/CmsGetStaticContentRequest.hpp>
#include <QBComponentAPI/cms/typed/CmsGetStaticContentResponse.hpp>
#include <QBComponentAPI/cms/typed/CmsGetStaticUrlRequest.hpp>
#include <QBComponentAPI/cms/typed/CmsGetStaticUrlResponse.hpp>
#include <QBComponentAPI/cms/typed/CmsImageModel.hpp>
#include <QBComponentAPI/cms/typed/CmsLayoutModel.hpp>
#include <QBComponentAPI/cms/typed/CmsListSimpleItemsRequest.hpp>
#include <QBComponentAPI/cms/typed/CmsListSimpleItemsResponse.hpp>
#include <QBComponentAPI/cms/typed/CmsMainModel.hpp>
#include <QBComponentAPI/cms/typed/CmsNameListModel.hpp>
#include <QBComponentAPI/cms/typed/CmsNameModel.hpp>
#include <QBComponentAPI/cms/typed/CmsStaticUrlModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTagColorsModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTagModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTagStringModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTagValueModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTaxonomyNameModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTitleModel.hpp>
#include <QBComponentAPI/cms/typed/CmsUserFeedbackRequest.hpp>
#include <QBComponentAPI/cms/typed/CmsUserFeedbackResponse.hpp>
#include <QBComponentAPI/cms/typed/CmsVideoModel.hpp>
#include <QBComponentAPI/cms/typed/CopyrightModel.hpp>
#include <QBComponentAPI/cms/typed/DiagnoseDetectModel.hpp>
#include <QBComponentAPI/cms/typed/DiagnoseDetectRegionModel.hpp>
#include <QBComponentAPI/cms/typed/PriceTierModel.hpp>
#include <QBComponentAPI/cms/typed/SimpleCmsDiseaseModel.hpp>
#include <QBComponentAPI/cms/typed/SimpleCmsItemFieldModel.hpp>
#include <QBComponentAPI/cms/typed/SimpleCmsItemModel.hpp>
#include <QBComponentAPI/cms/typed/SimpleCmsNameModel.hpp>
#include <QBComponentAPI/cms/typed/TaxonomyNameModel.hpp>

#include <QBComponentAPI/frame/CodecInstances.hpp>

// The generic codecs of these records are compiled once, by the domain's .cpp file.
QB_CODEC_EXTERN_DOMAIN(QB_CMS_ENDPOINTS, QB_CMS_RECORDS)
