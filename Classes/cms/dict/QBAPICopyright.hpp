#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// The attribution of an image. No field is required. "authorlink" is one word, key and property alike.
class QBAPICopyright final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICopyright, "Copyright")
  QB_VALUE(author, Author)
  QB_LIST(certIcons, CertIcons)
  QB_VALUE(certUrl, CertUrl)
  QB_VALUE(detailUrl, DetailUrl)
  QB_VALUE(authorlink, Authorlink)
  QB_VALUE(license, License)
  QB_FIELDS(QB_OPTIONAL(author, "author"), QB_OPTIONAL(certIcons, "cert_icons"), QB_OPTIONAL(certUrl, "cert_url"),
            QB_OPTIONAL(detailUrl, "detail_url"), QB_OPTIONAL(authorlink, "authorlink"),
            QB_OPTIONAL(license, "license"))
};

}  // namespace qb
