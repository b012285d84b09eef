// Every Typed-face request of the content catalogue and share domains: the exact body it encodes, with
// every field and with its optional fields left out.
#include <gtest/gtest.h>

#include <QBComponentAPI/cms/typed/CmsTyped.hpp>
#include <QBComponentAPI/share/typed/ShareTyped.hpp>
#include <functional>

#include "typed_helpers.hpp"

namespace qb {
namespace {

const std::vector<RequestRow>& rows() {
  static const std::vector<RequestRow> table{
      {[] { return describe(CmsGetCmsArticlesRequest{.contentType = "care_guide", .languageCode = LanguageCode::fr}); },
       "v3/cms/articles", R"({"content_type":"care_guide","language_code":5})"},
      {[] { return describe(CmsGetCmsArticlesRequest{.languageCode = LanguageCode::en}); }, "v3/cms/articles",
       R"({"language_code":0})"},
      {[] {
         return describe(
             CmsGetCmsNameRequest{.cmsNameUid = "cn-1", .languageCode = LanguageCode::ja, .countryCode = "JP"});
       },
       "v3/cms/get_cms_name", R"({"cms_name_uid":"cn-1","language_code":3,"country_code":"JP"})"},
      // The ids go out as an array, not as the JSON text of one.
      {[] {
         return describe(CmsGetCmsNameListRequest{
             .cmsNameUids = {"a", "b"}, .languageCode = LanguageCode::de, .countryCode = "DE"});
       },
       "v3/cms/get_cms_name_list", R"({"cms_name_uids":["a","b"],"language_code":6,"country_code":"DE"})"},
      {[] {
         return describe(
             CmsGetCmsNameListsRequest{.contentType = "plant", .languageCode = LanguageCode::en, .countryCode = "US"});
       },
       "v3/cms/get_cms_name_lists", R"({"content_type":"plant","language_code":0,"country_code":"US"})"},
      {[] {
         return describe(CmsGetStaticContentRequest{
             .contentType = "terms", .languageCode = LanguageCode::zhHans, .countryCode = "CN"});
       },
       "v3/cms/get_static_content", R"({"content_type":"terms","language_code":1,"country_code":"CN"})"},
      {[] {
         return describe(CmsGetStaticUrlRequest{
             .contentType = "care", .languageCode = LanguageCode::it, .countryCode = "IT", .uid = "cn-1"});
       },
       "v3/cms/get_static_url", R"({"content_type":"care","language_code":8,"country_code":"IT","uid":"cn-1"})"},
      {[] {
         return describe(
             CmsGetStaticUrlRequest{.contentType = "care", .languageCode = LanguageCode::it, .countryCode = "IT"});
       },
       "v3/cms/get_static_url", R"({"content_type":"care","language_code":8,"country_code":"IT"})"},
      {[] {
         return describe(CmsUserFeedbackRequest{.userId = "42",
                                                .languageCode = LanguageCode::es,
                                                .countryCode = "ES",
                                                .deviceType = DeviceType::android,
                                                .deviceOs = "Android 14",
                                                .deviceModel = "Pixel 8",
                                                .appVersion = "2.1.0",
                                                .productName = "plants",
                                                .feedbackType = "wrong_name",
                                                .content = "Not a \"fern\""});
       },
       "v3/cms/user_feedback",
       R"({"user_id":"42","language_code":7,"country_code":"ES","device_type":2,"device_os":"Android 14",)"
       R"("device_model":"Pixel 8","app_version":"2.1.0","product_name":"plants","feedback_type":"wrong_name",)"
       R"("content":"Not a \"fern\""})"},
      {[] {
         return describe(CmsUserFeedbackRequest{.userId = "42",
                                                .languageCode = LanguageCode::es,
                                                .countryCode = "ES",
                                                .deviceType = DeviceType::ios,
                                                .deviceOs = "iOS 17",
                                                .deviceModel = "iPhone15,2",
                                                .appVersion = "2.1.0",
                                                .productName = "plants",
                                                .feedbackType = "other"});
       },
       "v3/cms/user_feedback",
       R"({"user_id":"42","language_code":7,"country_code":"ES","device_type":1,"device_os":"iOS 17",)"
       R"("device_model":"iPhone15,2","app_version":"2.1.0","product_name":"plants","feedback_type":"other"})"},
      {[] {
         return describe(CmsGetSimpleCmsNameListRequest{
             .cmsNameUids = {"a"}, .languageCode = LanguageCode::ko, .countryCode = "KR"});
       },
       "v3/cms/get_simple_cms_name_list", R"({"cms_name_uids":["a"],"language_code":4,"country_code":"KR"})"},
      {[] {
         return describe(
             CmsGetNameListRequest{.languageCode = LanguageCode::nl, .countryCode = "NL", .category = "succulents"});
       },
       "v3/cms/get_name_list", R"({"language_code":12,"country_code":"NL","category":"succulents"})"},
      {[] {
         return describe(
             CmsListSimpleItemsRequest{.languageCode = LanguageCode::pl, .countryCode = "PL", .contentType = "rock"});
       },
       "v3/cms/list_simple_items", R"({"language_code":13,"country_code":"PL","content_type":"rock"})"},
      {[] { return describe(CmsGetBookListRequest{.languageCode = LanguageCode::sv, .countryCode = "SE"}); },
       "v3/cms/get_book_list", R"({"language_code":15,"country_code":"SE"})"},
      {[] {
         return describe(ShareGetCmsShareUrlsRequest{
             .uid = "cn-1",
             .contentTypes = {"care", "toxicity"},
             .languageCode = LanguageCode::pt,
             .countryCode = "BR",
             .itemId = "item-9",
             .itemType = "plant",
             .shareIds = {"s1", "s2"},
             .fields = std::map<std::string, AnyCodable>{{"source", {"app"}}, {"n", {parseJson("[1,2.5,null]")}}}});
       },
       "v3/share/get_cms_share_urls",
       R"({"uid":"cn-1","content_types":["care","toxicity"],"language_code":9,"country_code":"BR",)"
       R"("item_id":"item-9","item_type":"plant","share_ids":["s1","s2"],"fields":{"n":[1,2.5,null],"source":"app"}})"},
      {[] {
         return describe(ShareGetCmsShareUrlsRequest{
             .uid = "cn-1", .contentTypes = {}, .languageCode = LanguageCode::pt, .countryCode = "BR", .shareIds = {}});
       },
       "v3/share/get_cms_share_urls",
       R"({"uid":"cn-1","content_types":[],"language_code":9,"country_code":"BR","share_ids":[]})"},
  };
  return table;
}

TEST(CmsTypedRequests, EncodeExactly) { expectRequestRows(rows()); }

}  // namespace
}  // namespace qb
