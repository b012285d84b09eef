// Complete replies of every item record, shared by both faces' tests (the faces use the same keys). Every
// key of every record is present, with values both faces accept; the ids lie above 2^53, where a double
// would round them.
#pragma once

#include <string>

#include "cms/Fixtures.hpp"

namespace qb::fixtures::item {

inline const std::string kItemImage = R"({"icon_url": "https://i.example/items/1/icon.jpg",
  "thumbnail_url": "https://i.example/items/1/thumb.jpg", "image_url": "https://i.example/items/1.jpg",
  "original_url": "https://i.example/items/1/original.heic",
  "signature_image_url": "https://i.example/items/1.jpg?sig=a%2Fb&exp=1700003600"})";
inline const std::string kSimpleItem =
    R"({"item_id": 9007199254740993, "item_image": )" + kItemImage +
    R"(, "shoot_at": 1700000000.25, "name": "Swiss cheese plant", "cms_name_uid": "cn-1", "disease_uid": "d-1",
  "latin_name": "Monstera deliciosa", "custom_name": "Living-room \"Monty\" \ud83c\udf3f",
  "custom_note": "Repotted in May", "properties": "{\"pot\":\"clay\"}", "cms_cache_business_fields": "{\"v\":2}",
  "lng": 139.69170000000003, "lat": -35.6895})";
inline const std::string kItemDetail =
    R"({"item_id": 9007199254740995, "item_image": )" + kItemImage +
    R"(, "shoot_at": 1700000000.25, "name": "Swiss cheese plant", "cms_name_uid": "cn-1", "disease_uid": "d-1",
  "latin_name": "Monstera deliciosa", "custom_name": "Monty", "custom_note": "Repotted in May",
  "properties": "{\"pot\":\"clay\"}", "cms_cache_business_fields": "{\"v\":2}", "lng": 139.69170000000003,
  "lat": -35.6895, "cms_names": [)" +
    cms::kCmsName + R"(], "probabilities": [0.8700000000000001]})";

}  // namespace qb::fixtures::item
