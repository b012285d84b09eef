// The one error family.
#include <gtest/gtest.h>

#include <functional>

#include <QBComponentAPI/frame/Errors.hpp>
#include <QBComponentAPI/frame/JSONEncoder.hpp>
#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/user/dict/UserDict.hpp>
#include <QBComponentAPI/user/typed/UserTyped.hpp>

namespace qb {
namespace {

using Kind = DecodingError::Kind;

// The error `f` throws, caught as the family's base.
std::optional<std::string> caughtAsQbError(const std::function<void()>& f,
                                           const std::function<void(const Error&)>& check) {
  try {
    f();
  } catch (const Error& e) {
    check(e);
    return std::string(e.what());
  } catch (...) {
    ADD_FAILURE() << "not a qb::Error";
  }
  return std::nullopt;
}

TEST(Errors, EveryLibraryErrorIsCaughtAsQbErrorWithItsAccessors) {
  struct Case {
    const char* name;
    std::function<void()> raise;
    std::function<void(const Error&)> check;
    const char* what;
  } cases[] = {
      {"ParameterCheckFailException", [] { QBAPIAutoUpdate::initWithJsonObject(parseJsonMap("{}")); },
       [](const Error& e) {
         const auto* p = dynamic_cast<const ParameterCheckFailException*>(&e);
         ASSERT_NE(p, nullptr);
         EXPECT_EQ(p->name(), "ParameterCheckFailException");
         EXPECT_EQ(p->reason(), "hasUpdate is missing in model AutoUpdate");
       },
       "hasUpdate is missing in model AutoUpdate"},
      {"JsonTypeError",
       [] { QBUserGetFaqMessage::initWithData(0, 1)->parseResponse(parseJsonMap(R"({"faqs": "none"})")); },
       [](const Error& e) { EXPECT_NE(dynamic_cast<const JsonTypeError*>(&e), nullptr); }, nullptr},
      {"DecodingError", [] { JSONDecoder().decode<UserGetFaqResponse>(R"({"faqs": [{"title": 1}]})"); },
       [](const Error& e) {
         const auto* d = dynamic_cast<const DecodingError*>(&e);
         ASSERT_NE(d, nullptr);
         EXPECT_EQ(d->kind(), Kind::typeMismatch);
         EXPECT_EQ(renderCodingPath(d->codingPath()), "faqs[0].title");
       },
       nullptr},
      {"EncodingError", [] { JSONEncoder().encode(FaqModel{.title = "\xc0\xaf", .content = "", .faqType = 0}); },
       [](const Error& e) {
         const auto* d = dynamic_cast<const EncodingError*>(&e);
         ASSERT_NE(d, nullptr);
         EXPECT_EQ(renderCodingPath(d->codingPath()), "title");
       },
       nullptr},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const auto what = caughtAsQbError(c.raise, c.check);
    ASSERT_TRUE(what) << "nothing thrown";
    if (c.what) {
      EXPECT_EQ(*what, c.what);
    }
  }
}

}  // namespace
}  // namespace qb
