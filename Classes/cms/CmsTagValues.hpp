// Tag values as records. A tag keeps its values as raw maps in both faces; each map's "type" (a
// CmsTagValueType) names the record it has the shape of. These operations build that record, so that an
// app walks a content page without a switch of its own:
//
//   for (const auto& value : tag.tagValues) {
//     std::visit([](const auto& record) { show(record); }, qb::tagValueRecord(value));
//   }
#pragma once

#include <map>
#include <memory>
#include <string>
#include <variant>

#include <QBComponentAPI/cms/typed/CmsImageModel.hpp>
#include <QBComponentAPI/cms/typed/CmsMainModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTagColorsModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTagModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTagStringModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTaxonomyNameModel.hpp>
#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/frame/HostTypes.hpp>
#include <QBComponentAPI/frame/Json.hpp>

namespace qb {

/// The record of a tag value, one alternative per CmsTagValueType in raw-value order: index() is the
/// value's type.
using CmsTagValueRecord = std::variant<CmsTagStringModel, CmsTagModel, CmsImageModel, CmsMainModel,
                                       CmsTaxonomyNameModel, CmsTagColorsModel>;

/// Typed face: decodes a tag value as the record its "type" names. Throws DecodingError: keyNotFound or
/// valueNotFound for a missing or null "type", dataCorrupted for a number that is no CmsTagValueType,
/// and the record's own errors (with their coding path) when the map does not have its shape.
CmsTagValueRecord tagValueRecord(const std::map<std::string, AnyCodable>& value);

/// Dictionary face: builds the model object its "type" names (a QBAPICmsTagString, QBAPICmsTag,
/// QBAPICmsImage, QBAPICmsMain, QBAPICmsTaxonomyName or QBAPICmsTagColors). Throws JsonTypeError when
/// "type" is missing, null, not an integer or no CmsTagValueType, and the model's own
/// ParameterCheckFailException for a missing required field.
std::shared_ptr<QBAPIModel> tagValueModel(const JsonMap& value);
/// The same for an element of a tag's `tagValues` list; JsonTypeError when it is not a map.
std::shared_ptr<QBAPIModel> tagValueModel(const JsonValue& value);

}  // namespace qb
