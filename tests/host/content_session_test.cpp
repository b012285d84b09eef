// The content catalogue and share endpoints end to end: every one of them through each face it has,
// against the mock service's seeded catalogue, whose replies must decode cleanly in both faces.
#include <gtest/gtest.h>

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/cms/CmsTagValues.hpp>
#include <QBComponentAPI/cms/dict/CmsDict.hpp>
#include <QBComponentAPI/cms/typed/CmsTyped.hpp>
#include <QBComponentAPI/host/Client.hpp>
#include <QBComponentAPI/share/ShareCatalogue.hpp>
#include <map>
#include <set>

#include "cli/Registry.hpp"
#include "host/ContentArguments.hpp"
#include "host/MockSession.hpp"

namespace qb {
namespace {

using Session = MockSession;

template <class Endpoints>
void callEvery(Session& session, std::set<std::string>& called) {
  forEachType(Endpoints{}, [&]<class A>() {
    const std::string_view path = A::endpoint.path;
    SCOPED_TRACE(std::string(path));
    const auto args = kContentArguments.find(path);
    ASSERT_NE(args, kContentArguments.end()) << "no arguments for this endpoint";
    const cli::Entry* entry = cli::findEntry(path);
    ASSERT_NE(entry, nullptr);
    const cli::Arguments arguments{.values = parseJsonMap(args->second), .files = {}};
    for (const auto* send : {&entry->dictionary, &entry->typed}) {
      if (!*send) continue;
      const JsonValue reply = (*send)(session.client, arguments);
      if (path != "v3/cms/user_feedback") {
        EXPECT_FALSE(reply.as_object().empty());
      }
      called.insert(std::string(path) + (send == &entry->dictionary ? " dictionary" : " typed"));
    }
  });
}

TEST(ContentSession, EveryContentEndpointAnswersInEveryFaceItHas) {
  Session session;
  std::set<std::string> called;
  callEvery<cms::Endpoints>(session, called);
  callEvery<share::Endpoints>(session, called);
  // Seven content endpoints have both faces, four the Typed face only, and the share endpoint too.
  EXPECT_EQ(called.size(), 7u * 2 + 4 + 1);
}

TEST(ContentSession, AContentPageWalksThroughItsTagValuesInBothFaces) {
  Session session;
  const auto page = session.client.send(
      CmsGetCmsNameRequest{.cmsNameUid = "monstera-deliciosa", .languageCode = LanguageCode::en, .countryCode = "US"});
  ASSERT_TRUE(page.cmsName.tags.has_value());
  std::set<std::size_t> kinds;
  for (const auto& tag : *page.cmsName.tags) {
    for (const auto& value : tag.tagValues) kinds.insert(tagValueRecord(value).index());
  }
  EXPECT_EQ(kinds, (std::set<std::size_t>{0, 1, 2, 3, 4, 5})) << "the seeded page has values of all six kinds";
  ASSERT_TRUE(page.cmsName.disease.has_value());
  EXPECT_EQ(page.cmsName.disease->diagnoseDetect->regions.at(0).region.size(), 4u);

  auto message = QBCmsGetCmsNameMessage::initWithData(JsonValue("monstera-deliciosa"), 0, JsonValue("US"));
  session.client.send(*message);
  std::set<std::string_view> models;
  // Getters return copies: keep each list while walking it.
  const auto tags = message->cmsName()->tags();
  ASSERT_TRUE(tags.has_value());
  for (const auto& tag : *tags) {
    const auto values = tag->tagValues();
    for (const auto& value : *values) models.insert(tagValueModel(value)->modelName());
  }
  EXPECT_EQ(models, (std::set<std::string_view>{"CmsTagString", "CmsTag", "CmsImage", "CmsMain", "CmsTaxonomyName",
                                                "CmsTagColors"}));
}

TEST(ContentSession, AnUnknownContentNameIsNotFound) {
  Session session;
  EXPECT_THROW(session.client.send(CmsGetCmsNameRequest{
                   .cmsNameUid = "no-such-name", .languageCode = LanguageCode::en, .countryCode = "US"}),
               host::HttpError);
}

}  // namespace
}  // namespace qb
