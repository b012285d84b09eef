// Walks the get_config call through both faces, printing what a host would send and what it decoded.
// The reply is a canned one here; examples using a real host live beside this file.
#include <QBComponentAPI/frame/JSONDecoder.hpp>
#include <QBComponentAPI/frame/JSONEncoder.hpp>
#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/user/dict/QBAPIClientConfig.hpp>
#include <QBComponentAPI/user/dict/QBAPILegalConfig.hpp>
#include <QBComponentAPI/user/dict/QBUserGetConfigMessage.hpp>
#include <QBComponentAPI/user/typed/UserGetConfigRequest.hpp>
#include <iostream>

namespace {

const char* const kReply = R"({
  "config": {
    "auto_update": {"has_update": true, "force_update": false},
    "expert_default_count": 3,
    "share_app_url": "https://example.invalid/app",
    "timestamp": 1700000000,
    "legal_config": {"agreement_url": "https://example.invalid/terms", "agreement_version": 4,
                     "privacy_policy_version": 7}
  },
  "other_configs": {"feature_x": true, "rollout": 0.25, "big_id": 9007199254740993}
})";

void printRequest(std::string_view face, std::string_view api, const std::vector<std::string>& methods, bool needAuth,
                  bool mustAuth, std::string_view params) {
  std::cout << "[" << face << "] " << methods.front() << " " << api << "  needAuth=" << needAuth
            << " mustAuth=" << mustAuth << "\n  params: " << params << "\n";
}

}  // namespace

int main() {
  // Dictionary face: a message built from plain values, a parameter map, and a reply map.
  auto message = qb::QBUserGetConfigMessage::initWithData(qb::rawValue(qb::LanguageCode::en), qb::JsonValue("US"));
  printRequest("dictionary", message->api(), message->methods(), message->needAuth(), message->mustAuth(),
               qb::toJson(message->getParams()));
  message->parseResponse(qb::parseJsonMap(kReply));
  std::cout << "  decoded config:\n" << message->config()->toJsonString().value_or("<unwritable>") << "\n";
  std::cout << "  privacy policy version: " << *message->config()->legalConfig()->privacyPolicyVersion() << "\n\n";

  // Typed face: a request record through the encoder, the reply bytes straight into a response record.
  const qb::UserGetConfigRequest request{.languageCode = qb::LanguageCode::en, .countryCode = "US"};
  printRequest("typed", request.api(), request.methods(), request.needAuth(), request.mustAuth(),
               request.parseParamater(qb::JSONEncoder()));
  const auto response = qb::UserGetConfigResponse::init(std::string_view(kReply), qb::JSONDecoder());
  std::cout << "  decoded config: " << qb::JSONEncoder().encode(response.config) << "\n";
  std::cout << "  other configs: " << qb::JSONEncoder().encode(response.otherConfigs) << "\n";

  // A reply without "config" leaves the Dictionary face's property empty but fails the Typed face.
  try {
    qb::UserGetConfigResponse::init(std::string_view(R"({"other_configs": {}})"), qb::JSONDecoder());
  } catch (const qb::DecodingError& error) {
    std::cout << "  a reply without config: " << error.what() << "\n";
  }
  return 0;
}
