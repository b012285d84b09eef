#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class SPAPICmsFaqArticle;

/// One category of the FAQ catalogue and its articles. Every field is required; an empty article list
/// is present.
class SPAPICmsFaqCategory final : public QBAPIModel {
  QB_DICT_MODEL(SPAPICmsFaqCategory, "CmsFaqCategory")
  QB_VALUE(uid, Uid)
  QB_VALUE(title, Title)
  QB_VALUE(summary, Summary)
  QB_VALUE(imageUrl, ImageUrl)
  QB_MODEL_LIST(SPAPICmsFaqArticle, cmsFaqArticleList, CmsFaqArticleList)
  QB_FIELDS(QB_REQUIRED(uid, "uid"), QB_REQUIRED(title, "title"), QB_REQUIRED(summary, "summary"),
            QB_REQUIRED(imageUrl, "image_url"), QB_REQUIRED(cmsFaqArticleList, "cms_faq_article_list"))
};

}  // namespace qb
