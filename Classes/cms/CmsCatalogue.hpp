// The content catalogue: every endpoint and every record, once. The faces refer to the endpoint
// constants declared here (qb::cms::kGetCmsName); everything that lists endpoints or records derives
// from these lines (see frame/Catalogue.hpp). The share endpoint and its record have a catalogue of
// their own (share/ShareCatalogue.hpp).
#pragma once

#include <QBComponentAPI/frame/Catalogue.hpp>

/// constant, path, verb, authentication, Dictionary-face message, Typed-face request
#define QB_CMS_ENDPOINTS(BOTH, DICT, TYPED)                                                                   \
  BOTH(kArticles, "v3/cms/articles", get, required, QBCmsGetCmsArticlesMessage, CmsGetCmsArticlesRequest)    \
  BOTH(kGetCmsName, "v3/cms/get_cms_name", get, required, QBCmsGetCmsNameMessage, CmsGetCmsNameRequest)      \
  BOTH(kGetCmsNameList, "v3/cms/get_cms_name_list", get, required, QBCmsGetCmsNameListMessage,               \
       CmsGetCmsNameListRequest)                                                                              \
  BOTH(kGetCmsNameLists, "v3/cms/get_cms_name_lists", get, required, QBCmsGetCmsNameListsMessage,            \
       CmsGetCmsNameListsRequest)                                                                             \
  BOTH(kGetStaticContent, "v3/cms/get_static_content", get, required, QBCmsGetStaticContentMessage,          \
       CmsGetStaticContentRequest)                                                                            \
  BOTH(kGetStaticUrl, "v3/cms/get_static_url", get, required, QBCmsGetStaticUrlMessage, CmsGetStaticUrlRequest) \
  BOTH(kUserFeedback, "v3/cms/user_feedback", post, required, QBCmsUserFeedbackMessage, CmsUserFeedbackRequest) \
  TYPED(kGetSimpleCmsNameList, "v3/cms/get_simple_cms_name_list", get, required, CmsGetSimpleCmsNameListRequest) \
  TYPED(kGetNameList, "v3/cms/get_name_list", get, required, CmsGetNameListRequest)                           \
  TYPED(kListSimpleItems, "v3/cms/list_simple_items", get, required, CmsListSimpleItemsRequest)               \
  TYPED(kGetBookList, "v3/cms/get_book_list", get, required, CmsGetBookListRequest)

/// Dictionary-face model, Typed-face model
#define QB_CMS_RECORDS(BOTH, DICT, TYPED)                    \
  BOTH(QBAPICmsName, CmsNameModel)                           \
  BOTH(QBAPICmsMain, CmsMainModel)                           \
  BOTH(QBAPICmsNameList, CmsNameListModel)                   \
  BOTH(QBAPISimpleCmsName, SimpleCmsNameModel)               \
  BOTH(QBAPITaxonomyName, TaxonomyNameModel)                 \
  BOTH(QBAPICmsTaxonomyName, CmsTaxonomyNameModel)           \
  BOTH(QBAPICmsTitle, CmsTitleModel)                         \
  BOTH(QBAPICmsImage, CmsImageModel)                         \
  BOTH(QBAPICopyright, CopyrightModel)                       \
  BOTH(QBAPICmsStaticUrl, CmsStaticUrlModel)                 \
  BOTH(QBAPICmsLayout, CmsLayoutModel)                       \
  BOTH(QBAPICmsContent, CmsContentModel)                     \
  BOTH(QBAPICmsTag, CmsTagModel)                             \
  BOTH(QBAPICmsTagValue, CmsTagValueModel)                   \
  BOTH(QBAPICmsTagString, CmsTagStringModel)                 \
  BOTH(QBAPICmsTagColors, CmsTagColorsModel)                 \
  BOTH(QBAPICmsArticle, CmsArticleModel)                     \
  BOTH(QBAPICmsVideo, CmsVideoModel)                         \
  BOTH(QBAPICmsDisease, CmsDiseaseModel)                     \
  BOTH(QBAPISimpleCmsDisease, SimpleCmsDiseaseModel)         \
  BOTH(QBAPIDiagnoseDetect, DiagnoseDetectModel)             \
  BOTH(QBAPIDiagnoseDetectRegion, DiagnoseDetectRegionModel) \
  TYPED(SimpleCmsItemModel)                                  \
  TYPED(SimpleCmsItemFieldModel)                             \
  TYPED(BookModel)                                           \
  TYPED(PriceTierModel)

QB_CATALOGUE(cms, QB_CMS_ENDPOINTS, QB_CMS_RECORDS)
