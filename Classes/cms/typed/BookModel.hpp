#pragma once

#include <QBComponentAPI/cms/typed/PriceTierModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// A book offered for a country and language.
struct BookModel {
  std::string uid;
  std::string title;
  std::string subTitle;
  std::string summary;
  std::string coverImageUrl;
  std::string edition;
  std::string ptbn;
  std::string seriesName;
  std::string seriesDescription;
  std::vector<PriceTierModel> priceTiers;
  std::string url;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("uid", &BookModel::uid), qb::key("title", &BookModel::title), qb::key("sub_title", &BookModel::subTitle),
      qb::key("summary", &BookModel::summary), qb::key("cover_image_url", &BookModel::coverImageUrl),
      qb::key("edition", &BookModel::edition), qb::key("ptbn", &BookModel::ptbn),
      qb::key("series_name", &BookModel::seriesName), qb::key("series_description", &BookModel::seriesDescription),
      qb::key("price_tiers", &BookModel::priceTiers), qb::key("url", &BookModel::url));
  bool operator==(const BookModel&) const = default;
};
static_assert(APIModel<BookModel>);

}  // namespace qb
