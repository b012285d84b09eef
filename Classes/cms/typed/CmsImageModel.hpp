#pragma once

#include <QBComponentAPI/cms/enums/CmsTagValueType.hpp>
#include <QBComponentAPI/cms/typed/CmsTagModel.hpp>
#include <QBComponentAPI/cms/typed/CopyrightModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// An image of a content name, also carried as a tag value. A reply's "illustration" is not read.
struct CmsImageModel {
  CmsTagValueType type;
  std::string imageUrl;
  std::optional<CopyrightModel> imageCopyright = std::nullopt;
  std::optional<std::vector<CmsTagModel>> tags = std::nullopt;
  std::optional<std::string> comment = std::nullopt;
  std::optional<double> similarity = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("type", &CmsImageModel::type), qb::key("image_url", &CmsImageModel::imageUrl),
                     qb::key("image_copyright", &CmsImageModel::imageCopyright), qb::key("tags", &CmsImageModel::tags),
                     qb::key("comment", &CmsImageModel::comment), qb::key("similarity", &CmsImageModel::similarity));
  bool operator==(const CmsImageModel&) const = default;
};
static_assert(APIModel<CmsImageModel>);

}  // namespace qb
