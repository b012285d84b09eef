#include <QBComponentAPI/cms/CmsTagValues.hpp>

#include <QBComponentAPI/cms/dict/CmsDict.hpp>
#include <QBComponentAPI/cms/enums/CmsTagValueType.hpp>
#include <QBComponentAPI/cms/typed/CmsTagValueModel.hpp>
#include <QBComponentAPI/frame/JsonValueCodec.hpp>

namespace qb {
namespace {

template <std::size_t I = 0>
CmsTagValueRecord decodeAlternative(std::size_t index, const JsonValue& value) {
  if constexpr (I < std::variant_size_v<CmsTagValueRecord>) {
    if (index == I) return JsonValueDecoder().decode<std::variant_alternative_t<I, CmsTagValueRecord>>(value);
    return decodeAlternative<I + 1>(index, value);
  } else {
    throw DecodingError(DecodingError::Kind::dataCorrupted, {"type"}, "No record for this tag value type.");
  }
}

}  // namespace

CmsTagValueRecord tagValueRecord(const std::map<std::string, AnyCodable>& value) {
  JsonMap map;
  for (const auto& [key, any] : value) map.emplace(key, any.value);
  const JsonValue object(std::move(map));
  // The kind first, with the enumeration's own errors; then the record of that kind.
  const CmsTagValueType type = JsonValueDecoder().decode<CmsTagValueModel>(object).type;
  return decodeAlternative(static_cast<std::size_t>(rawValue(type)), object);
}

std::shared_ptr<QBAPIModel> tagValueModel(const JsonMap& value) {
  const JsonValue* type = value.if_contains("type");
  if (!type || !(type->is_int64() || type->is_uint64())) {
    throw JsonTypeError(std::string("A tag value needs an integer \"type\" but has ") +
                        std::string(type ? describeKind(*type) : "none") + '.');
  }
  const auto kind = type->is_int64() ? fromRawValue<CmsTagValueType>(type->get_int64()) : std::nullopt;
  if (!kind) throw JsonTypeError("A tag value's \"type\" " + toJson(*type) + " is no CmsTagValueType.");
  switch (*kind) {
    case CmsTagValueType::cmsTagValueString: return QBAPICmsTagString::initWithJsonObject(value);
    case CmsTagValueType::cmsTagValueTag: return QBAPICmsTag::initWithJsonObject(value);
    case CmsTagValueType::cmsTagValueImage: return QBAPICmsImage::initWithJsonObject(value);
    case CmsTagValueType::cmsTagValueMain: return QBAPICmsMain::initWithJsonObject(value);
    case CmsTagValueType::cmsTagValueTaxonomyName: return QBAPICmsTaxonomyName::initWithJsonObject(value);
    case CmsTagValueType::cmsTagValueColor: return QBAPICmsTagColors::initWithJsonObject(value);
  }
  throw JsonTypeError("A tag value's \"type\" is no CmsTagValueType.");
}

std::shared_ptr<QBAPIModel> tagValueModel(const JsonValue& value) {
  if (!value.is_object()) {
    throw JsonTypeError(std::string("A tag value must be an object but is ") + std::string(describeKind(value)) + '.');
  }
  return tagValueModel(value.get_object());
}

}  // namespace qb
