// Every Dictionary-face content message: the parameters it builds, each missing required parameter, and
// the reply keys it reads.
#include <gtest/gtest.h>

#include <QBComponentAPI/cms/dict/CmsDict.hpp>
#include <functional>
#include <string>
#include <vector>

#include "cms/Fixtures.hpp"
#include "dict_helpers.hpp"

namespace qb {
namespace {

using namespace fixtures::cms;

JsonValue text(const char* s) { return JsonValue(s); }

using Articles = QBCmsGetCmsArticlesMessage;
using Name = QBCmsGetCmsNameMessage;
using NameList = QBCmsGetCmsNameListMessage;
using NameLists = QBCmsGetCmsNameListsMessage;
using StaticContent = QBCmsGetStaticContentMessage;
using StaticUrl = QBCmsGetStaticUrlMessage;
using Feedback = QBCmsUserFeedbackMessage;

std::shared_ptr<Feedback> feedback(std::optional<JsonValue> content) {
  return Feedback::initWithData(JsonValue(42), 3, text("DE"), 2, text("iOS 17"), text("iPhone15,2"), text("2.1.0"),
                                text("app"), text("wrong_name"), std::move(content));
}

// The id list travels as its indented JSON text.
const char* const kUidsParams =
    R"({"cms_name_uids":"[\n  \"a1\",\n  \"b2\"\n]","language_code":1,"country_code":"US"})";

// clang-format off
const std::vector<DictMessageRow>& rows() {
  static const std::vector<DictMessageRow> table{
      {"GetCmsArticles", [] { return Articles::initWithData(text("care"), 1); },
       R"({"content_type":"care","language_code":1})", {},
       R"({"articles": [)" + kCmsArticle + "]}", "articles", hasResult<Articles>(&Articles::articles)},
      {"GetCmsName", [] { return Name::initWithData(text("cn-1"), 2, text("US")); },
       R"({"cms_name_uid":"cn-1","language_code":2,"country_code":"US"})",
       {{unset(&Name::setCmsNameUid), "cmsNameUid is missing in model GetCmsName"},
        {unset(&Name::setCountryCode), "countryCode is missing in model GetCmsName"}},
       R"({"cms_name": )" + kCmsName + "}", "cms_name", hasResult<Name>(&Name::cmsName)},
      {"GetCmsNameList", [] { return NameList::initWithData(JsonList{"a1", "b2"}, 1, text("US")); },
       kUidsParams,
       {{unset(&NameList::setCmsNameUids), "cmsNameUids is missing in model GetCmsNameList"},
        {unset(&NameList::setCountryCode), "countryCode is missing in model GetCmsNameList"}},
       R"({"cms_name_list": [)" + kCmsName + "]}", "cms_name_list", hasResult<NameList>(&NameList::cmsNameList)},
      {"GetCmsNameLists", [] { return NameLists::initWithData(text("plant"), 0, text("GB")); },
       R"({"content_type":"plant","language_code":0,"country_code":"GB"})",
       {{unset(&NameLists::setContentType), "contentType is missing in model GetCmsNameLists"},
        {unset(&NameLists::setCountryCode), "countryCode is missing in model GetCmsNameLists"}},
       R"({"cms_name_lists": [)" + kCmsNameList + "]}", "cms_name_lists",
       hasResult<NameLists>(&NameLists::cmsNameLists)},
      {"GetStaticContent", [] { return StaticContent::initWithData(text("terms"), 4, text("FR")); },
       R"({"content_type":"terms","language_code":4,"country_code":"FR"})",
       {{unset(&StaticContent::setContentType), "contentType is missing in model GetStaticContent"},
        {unset(&StaticContent::setCountryCode), "countryCode is missing in model GetStaticContent"}},
       R"({"content": "# Terms"})", "content", hasResult<StaticContent>(&StaticContent::content)},
      {"GetStaticUrl", [] { return StaticUrl::initWithData(text("faq"), 5, text("JP"), text("u-9")); },
       R"({"content_type":"faq","language_code":5,"country_code":"JP","uid":"u-9"})",
       {{unset(&StaticUrl::setContentType), "contentType is missing in model GetStaticUrl"},
        {unset(&StaticUrl::setCountryCode), "countryCode is missing in model GetStaticUrl"}},
       R"({"cms_static_url": )" + kCmsStaticUrl + "}", "cms_static_url",
       hasResult<StaticUrl>(&StaticUrl::cmsStaticUrl)},
      {"UserFeedback", [] { return feedback(text("Not a fern")); },
       R"({"user_id":42,"language_code":3,"country_code":"DE","device_type":2,"device_os":"iOS 17",)"
       R"("device_model":"iPhone15,2","app_version":"2.1.0","product_name":"app","feedback_type":"wrong_name",)"
       R"("content":"Not a fern"})",
       {{unset(&Feedback::setUserId), "userId is missing in model UserFeedback"},
        {unset(&Feedback::setCountryCode), "countryCode is missing in model UserFeedback"},
        {unset(&Feedback::setDeviceOs), "deviceOs is missing in model UserFeedback"},
        {unset(&Feedback::setDeviceModel), "deviceModel is missing in model UserFeedback"},
        {unset(&Feedback::setAppVersion), "appVersion is missing in model UserFeedback"},
        {unset(&Feedback::setProductName), "productName is missing in model UserFeedback"},
        {unset(&Feedback::setFeedbackType), "feedbackType is missing in model UserFeedback"}},
       "{}", nullptr, nullptr},
  };
  return table;
}
// clang-format on

TEST(CmsDictMessages, BuildTheirParametersCheckTheRequiredOnesAndReadTheirResultKey) { expectMessageRows(rows()); }

TEST(CmsDictMessages, ResultsHoldTheReplyRecords) {
  auto name = Name::initWithData(text("cn-1"), 0, text("US"));
  name->parseResponse(parseJsonMap(R"({"cms_name": )" + kCmsName + "}"));
  ASSERT_TRUE(name->cmsName());
  EXPECT_EQ(name->cmsName()->uid(), JsonValue("cn-1"));

  auto list = NameList::initWithData(JsonList{"cn-1"}, 0, text("US"));
  list->parseResponse(parseJsonMap(R"({"cms_name_list": [)" + kCmsName + ", " + kCmsName + "]}"));
  ASSERT_TRUE(list->cmsNameList());
  EXPECT_EQ(list->cmsNameList()->size(), 2u);

  auto content = StaticContent::initWithData(text("terms"), 0, text("US"));
  content->parseResponse(parseJsonMap(R"({"content": "# Terms"})"));
  EXPECT_EQ(content->content(), JsonValue("# Terms"));
  content->parseResponse(parseJsonMap(R"({"content": null})"));
  EXPECT_FALSE(content->content()) << "null clears the text";

  // A reply record that lacks a required field raises the record's own reason.
  JsonValue broken = parseJson(kCmsName);
  broken.as_object().erase("matched_similar_images");
  EXPECT_EQ(reasonOf([&] {
              name->parseResponse(JsonMap{{"cms_name", broken}});
            }),
            "matchedSimilarImages is missing in model CmsName");
}

TEST(CmsDictMessages, NameIdsTravelAsOneJsonText) {
  const JsonMap params = NameList::initWithData(JsonList{"a", "b"}, 0, text("US"))->getParams();
  const JsonValue& ids = params.at("cms_name_uids");
  ASSERT_TRUE(ids.is_string());
  EXPECT_EQ(parseJson(std::string_view(ids.as_string().data(), ids.as_string().size())), parseJson(R"(["a", "b"])"));
}

TEST(CmsDictMessages, OptionalParametersAreLeftOut) {
  EXPECT_EQ(toJson(Articles::initWithData(std::nullopt, 7)->getParams()), R"({"language_code":7})");
  EXPECT_EQ(toJson(StaticUrl::initWithData(text("faq"), 0, text("US"), std::nullopt)->getParams()),
            R"({"content_type":"faq","language_code":0,"country_code":"US"})");
  EXPECT_FALSE(feedback(std::nullopt)->getParams().contains("content"));
}

}  // namespace
}  // namespace qb
