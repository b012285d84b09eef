#include "mock/Service.hpp"

#include <httplib.h>
#include <sys/socket.h>

#include <QBComponentAPI/frame/Endpoint.hpp>
#include <QBComponentAPI/frame/Errors.hpp>
#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/vip/VipCatalogue.hpp>
#include <algorithm>
#include <charconv>
#include <chrono>
#include <exception>
#include <functional>
#include <iostream>
#include <map>
#include <mutex>
#include <random>
#include <stdexcept>
#include <thread>

#include "mock/Handlers.hpp"
#include "mock/Routes.hpp"

namespace qb::mock {
namespace {

int hexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// A user id from a route's path; 0 (no user has it) when the digits overflow.
std::int64_t pathId(const std::string& digits) {
  std::int64_t id = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), id);
  return error == std::errc{} && end == digits.data() + digits.size() ? id : 0;
}

std::string urlDecode(std::string_view text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '+') {
      out += ' ';
    } else if (text[i] == '%' && i + 2 < text.size() && hexDigit(text[i + 1]) >= 0 && hexDigit(text[i + 2]) >= 0) {
      out += static_cast<char>(hexDigit(text[i + 1]) * 16 + hexDigit(text[i + 2]));
      i += 2;
    } else {
      out += text[i];
    }
  }
  return out;
}

// A parameter value: the Dictionary face sends records as JSON text inside the form, the Typed face as
// JSON; both become the same value here.
JsonValue parameterValue(const std::string& text) {
  if (!text.empty() && (text.front() == '{' || text.front() == '[')) {
    try {
      return parseJson(text);
    } catch (const std::exception&) {
    }
  }
  return JsonValue(text);
}

// The random engine behind tokens and codes: from `seed` when given, else from the system's entropy.
std::mt19937_64 randomEngine(std::optional<std::uint64_t> seed) {
  if (seed) return std::mt19937_64(*seed);
  std::random_device device;
  std::seed_seq entropy{device(), device(), device(), device(), device(), device(), device(), device()};
  return std::mt19937_64(entropy);
}

// The error answered for a status that no handler gave a body: httplib's own refusals (an unreadable
// request, a body over the limit, an exception) and requests that match no route.
JsonMap errorBody(int status) {
  switch (status) {
    case 400: return JsonMap{{"error", "bad_request"}, {"message", "the request could not be read"}};
    case 404: return JsonMap{{"error", "not_found"}, {"message", "no such endpoint"}};
    case 405: return JsonMap{{"error", "method_not_allowed"}, {"message", "this endpoint does not answer this method"}};
    case 413:
      return JsonMap{{"error", "payload_too_large"},
                     {"message", "the request body is over " + std::to_string(Service::kMaxBodyBytes) + " bytes"}};
    case 414: return JsonMap{{"error", "uri_too_long"}, {"message", "the request target is too long"}};
    case 416: return JsonMap{{"error", "range_not_satisfiable"}, {"message", "the requested range is not available"}};
    case 500: return JsonMap{{"error", "internal_error"}, {"message", "the service failed while answering"}};
    default:
      return JsonMap{{"error", status < 500 ? "bad_request" : "internal_error"},
                     {"message", "HTTP status " + std::to_string(status)}};
  }
}

// httplib listens with a backlog of 5, so that a burst of connections (a few stalled clients and the
// next request) leaves some waiting a second or more for the handshake to be retried. Listening again on
// the bound socket widens it.
class Server : public httplib::Server {
 public:
  void widenBacklog() { ::listen(svr_sock_.load(), SOMAXCONN); }
};

}  // namespace

struct Service::State {
  explicit State(std::optional<std::uint64_t> seed) : random(randomEngine(seed)) {}

  Server server;
  std::thread thread;
  int port = 0;
  std::atomic<std::uint64_t> requests{0};

  std::mutex mutex;
  std::map<std::int64_t, JsonMap> users;            // user id -> user record
  std::map<std::int64_t, JsonMap> additional;       // user id -> additional data
  std::map<std::string, std::int64_t> tokens;       // access token -> user id
  std::map<std::string, std::int64_t> logins;       // "<login_type>:<login_key>" -> user id
  std::map<std::string, std::string> passwords;     // login key -> password
  std::map<std::string, std::string> verifyCodes;   // e-mail -> code
  std::map<std::int64_t, Upload> avatars;           // user id -> uploaded avatar
  std::map<std::int64_t, JsonMap> vipInfos;         // user id -> subscription summary, once changed
  std::map<std::int64_t, JsonList> trialReminders;  // user id -> reminders asked for
  std::size_t faqCount = 3;                         // entries get_faq answers
  Extras extras;                                    // the domains' /_mock/ routes and deletion hooks
  std::int64_t nextUserId = 9007199254740993;       // above 2^53, as real ids may be
  std::mt19937_64 random;
  std::map<std::string, std::string> verbs;  // "/<endpoint path>" -> its verb, for the Allow header of a 405

  std::string newToken() { return "tok-" + std::to_string(random()); }

  std::int64_t createUser(bool guest, const std::string& email) {
    const std::int64_t id = nextUserId++;
    JsonMap user{
        {"user_id", id},
        {"uuid", "uuid-" + std::to_string(id)},
        {"gender", 2},
        {"created_at",
         std::chrono::duration_cast<std::chrono::seconds>(std::chrono::system_clock::now().time_since_epoch()).count()},
        {"guest_user", guest},
        {"vip", false},
        {"auto_renew_status", 2},
        {"expert_consultation_count", 0},
        {"app_init_version", "1.0.0"},
        {"properties", JsonMap{}}};
    if (!email.empty()) user["email"] = email;
    users[id] = std::move(user);
    additional[id] = JsonMap{{"exist_user", false},
                             {"today_user", true},
                             {"is_vip_in_history", false},
                             {"email_notification_enabled", true}};
    return id;
  }

  JsonMap loginReply(std::int64_t id) {
    const std::string token = newToken();
    tokens[token] = id;
    return JsonMap{{"user", users[id]}, {"user_additional_data", additional[id]}, {"access_token", token}};
  }

  static JsonMap clientConfig() {
    return JsonMap{{"auto_update", JsonMap{{"has_update", false}, {"force_update", false}}},
                   {"expert_default_count", 3},
                   {"share_app_url", "https://example.invalid/app"},
                   {"timestamp", 1700000000},
                   {"legal_config", JsonMap{{"agreement_url", "https://example.invalid/terms"},
                                            {"agreement_version", 4},
                                            {"privacy_policy_url", "https://example.invalid/privacy"},
                                            {"privacy_policy_version", 7}}}};
  }

  std::int64_t loginFor(const JsonMap& loginInfo, std::int64_t action) {
    const std::string type = text(loginInfo, "login_type");
    const std::string key = text(loginInfo, "login_key");
    if (key.empty()) throw Failure{400, "invalid_parameter", "login_info.login_key is required"};
    const std::string password = text(loginInfo, "login_password");
    const auto found = logins.find(type + ":" + key);
    if (found != logins.end()) {
      if (action == 2) throw Failure{409, "account_exists", "an account already exists for this login"};
      if (const auto pw = passwords.find(key); pw != passwords.end() && pw->second != password) {
        throw Failure{401, "wrong_password", "the password does not match"};
      }
      additional[found->second]["exist_user"] = true;
      additional[found->second]["today_user"] = false;
      return found->second;
    }
    if (action == 1) throw Failure{404, "no_account", "no account exists for this login"};
    const std::int64_t id = createUser(false, type == "3" ? key : "");
    logins[type + ":" + key] = id;
    if (!password.empty()) passwords[key] = password;
    return id;
  }

  JsonMap& userOf(const Call& call) { return users.at(*call.userId); }

  // The account's subscription summary: a free account until a test sets it (POST /_mock/vip/<id>).
  JsonMap& vipInfo(std::int64_t id) {
    auto [found, fresh] = vipInfos.try_emplace(id);
    if (fresh) {
      found->second = JsonMap{{"user_id", id},
                              {"is_vip", false},
                              {"is_trial", false},
                              {"is_auto_renew", false},
                              {"is_vip_in_history", false},
                              {"is_paid_in_history", false},
                              {"vip_level", 0}};
    }
    return found->second;
  }

  // The hand-written part of the service: what each endpoint does, by path. Which endpoints exist, their
  // verbs, whether they need a session and which parameters they insist on come from the catalogues.
  HandlerTable accountHandlers() {
    auto login = [this](Call& call) {
      const JsonValue& info = call.params.at("login_info");
      if (!info.is_object()) throw Failure{400, "invalid_parameter", "login_info must be an object"};
      return loginReply(loginFor(info.get_object(), std::atoi(text(call.params, "login_action").c_str())));
    };
    auto store = [this](std::string_view target) {
      return [this, target = std::string(target)](Call& call) {
        for (const auto& member : call.params)
          userOf(call)["_" + target + "." + std::string(member.key())] = member.value();
        return JsonMap{};
      };
    };
    return {
        {user::kInitialise.path,
         [this](Call& call) {
           const std::int64_t id = call.userId ? *call.userId : createUser(true, "");
           JsonMap reply = loginReply(id);
           reply["config"] = clientConfig();
           reply["other_configs"] = JsonMap{{"feature_x", true}, {"rollout", 0.25}};
           reply["app_server_time"] = 1700000000.5;
           reply["country"] = text(call.params, "country_code");
           return reply;
         }},
        {user::kLoginOrCreate.path, login},
        {user::kLoginOrCreateForWebsite.path, login},
        {user::kAppleCallback.path,
         [](Call& call) {
           return JsonMap{{"apple_user_id", "apple." + text(call.params, "code")}};
         }},
        {user::kGetVerifyCode.path,
         [this](Call& call) {
           verifyCodes[text(call.params, "email")] = std::to_string(100000 + random() % 900000);
           return JsonMap{};
         }},
        {user::kCheckVerifyCode.path,
         [this](Call& call) {
           const auto code = verifyCodes.find(text(call.params, "email"));
           if (code == verifyCodes.end() || code->second != text(call.params, "verify_code")) {
             throw Failure{400, "wrong_verify_code", "the verification code does not match"};
           }
           return JsonMap{};
         }},
        {user::kResetPasswordAndLogin.path,
         [this](Call& call) {
           const std::string email = text(call.params, "email");
           const auto code = verifyCodes.find(email);
           if (code == verifyCodes.end() || code->second != text(call.params, "verify_code")) {
             throw Failure{400, "wrong_verify_code", "the verification code does not match"};
           }
           verifyCodes.erase(code);
           passwords[email] = text(call.params, "password");
           return loginReply(
               loginFor(JsonMap{{"login_type", 3}, {"login_key", email}, {"login_password", passwords[email]}}, 0));
         }},
        {user::kDeleteAccount.path,
         [this](Call& call) {
           const std::int64_t id = *call.userId;
           users.erase(id);
           additional.erase(id);
           avatars.erase(id);
           vipInfos.erase(id);
           trialReminders.erase(id);
           for (const auto& forget : extras.onAccountDeleted) forget(id);
           std::erase_if(tokens, [id](const auto& t) { return t.second == id; });
           std::erase_if(logins, [id](const auto& l) { return l.second == id; });
           return JsonMap{};
         }},
        {user::kGetUser.path,
         [this](Call& call) {
           JsonMap user;
           for (const auto& member : userOf(call)) {
             if (!member.key().starts_with("_")) user[member.key()] = member.value();
           }
           return JsonMap{{"user", user}, {"user_additional_data", additional[*call.userId]}};
         }},
        {user::kUpdate.path,
         [this](Call& call) {
           JsonMap& user = userOf(call);
           if (call.params.contains("nickname")) user["nickname"] = call.params.at("nickname");
           if (call.params.contains("gender")) user["gender"] = std::atoll(text(call.params, "gender").c_str());
           JsonMap reply;
           if (const auto avatar = call.files.find("avatar"); avatar != call.files.end()) {
             avatars[*call.userId] = avatar->second;
             user["avatar_url"] =
                 "http://127.0.0.1:" + std::to_string(port) + "/_mock/avatars/" + std::to_string(*call.userId);
           }
           if (user.contains("avatar_url")) reply["avatar_url"] = user["avatar_url"];
           return reply;
         }},
        {user::kUpdateAdditionalData.path,
         [this](Call& call) {
           for (const char* key : {"email_notification_enabled", "grows_price_label"}) {
             if (call.params.contains(key)) additional[*call.userId][key] = call.params.at(key);
           }
           return JsonMap{};
         }},
        {user::kUpdateDeviceInfo.path, store("device")},
        {user::kUpdateUserConversion.path, store("conversion")},
        {user::kUpdateUserDevicePushInfo.path, store("push")},
        {user::kUpdateUserProperties.path,
         [this](Call& call) {
           userOf(call)["properties"].as_object()[text(call.params, "key")] = text(call.params, "value");
           return JsonMap{};
         }},
        {user::kUpdateUserTimeZone.path, store("time_zone")},
        {user::kGetConfig.path,
         [](Call&) {
           return JsonMap{{"config", clientConfig()}, {"other_configs", JsonMap{{"feature_x", true}}}};
         }},
        {vip::kVipCard.path,
         [this](Call& call) {
           return JsonMap{{"vip_info", vipInfo(*call.userId)}};
         }},
        {vip::kRemindUserToAttentionTrial.path,
         [this](Call& call) {
           trialReminders[*call.userId].push_back(call.params);
           return JsonMap{};
         }},
        {user::kGetFaq.path,
         [this](Call&) {
           JsonList faqs;
           const char* entries[][2] = {{"How do I identify a plant?", "Take a clear photo of a leaf or flower."},
                                       {"Can I use the app offline?", "Identification needs a connection."},
                                       {"How do I cancel my subscription?", "In your store's account settings."}};
           // Three entries unless a test asked for more (POST /_mock/faq), numbered after the first round.
           for (std::size_t i = 0; i < faqCount; ++i) {
             const auto& e = entries[i % 3];
             const std::string round = i < 3 ? "" : " (" + std::to_string(i / 3 + 1) + ")";
             faqs.push_back(JsonMap{
                 {"title", e[0] + round}, {"content", e[1]}, {"faq_type", static_cast<std::int64_t>(i % 3 + 1)}});
           }
           return JsonMap{{"faqs", std::move(faqs)}};
         }},
    };
  }

  static void answer(httplib::Response& res, int status, const JsonMap& body) {
    res.status = status;
    res.set_content(toJson(body), "application/json");
  }

  // A request's body as read by readBody: its bytes, or its parts when it is a multipart form.
  struct Body {
    std::string data;
    httplib::MultipartFormDataItems parts;
  };

  // Reads a request's body, up to kMaxBodyBytes whatever its framing: httplib caps only a declared
  // Content-Length (skipping the body), so a chunked body is counted here. Reading it here also spares a
  // form body httplib's own 8 KiB limit. False, with the error answered, when the body cannot be read or
  // is too long.
  static bool readBody(const httplib::Request& req, httplib::Response& res, const httplib::ContentReader& reader,
                       Body& body) {
    std::size_t total = 0;
    auto fits = [&total](std::size_t n) {
      total += n;
      return total <= kMaxBodyBytes;
    };
    bool read = false;
    if (req.is_multipart_form_data()) {
      read = reader(
          [&](const httplib::MultipartFormData& part) {
            body.parts.push_back(part);
            return true;
          },
          [&](const char* data, std::size_t n) {
            if (!fits(n) || body.parts.empty()) return false;
            body.parts.back().content.append(data, n);
            return true;
          });
    } else {
      read = reader([&](const char* data, std::size_t n) {
        if (!fits(n)) return false;
        body.data.append(data, n);
        return true;
      });
    }
    if (read) return true;
    const int status = total > kMaxBodyBytes || res.status == 413 ? 413 : 400;
    answer(res, status, errorBody(status));
    return false;
  }

  Call parse(const httplib::Request& req, const Body& body) {
    Call call;
    for (const auto& [key, value] : req.params) call.params[key] = parameterValue(value);
    const std::string type = req.get_header_value("Content-Type");
    if (req.is_multipart_form_data()) {
      for (const auto& file : body.parts) {
        const std::string& name = file.name;
        if (file.filename.empty()) {
          call.params[name] = parameterValue(file.content);
        } else {
          call.files[name] = Upload{file.content_type, file.content};
        }
      }
    } else if (type.starts_with("application/json") && !body.data.empty()) {
      for (const auto& member : parseJsonMap(body.data)) call.params[member.key()] = member.value();
    } else if (type.starts_with("application/x-www-form-urlencoded")) {
      std::string_view rest = body.data;
      while (!rest.empty()) {
        const std::string_view pair = rest.substr(0, rest.find('&'));
        rest = pair.size() < rest.size() ? rest.substr(pair.size() + 1) : std::string_view{};
        const auto eq = pair.find('=');
        call.params[urlDecode(pair.substr(0, eq))] =
            parameterValue(eq == std::string_view::npos ? "" : urlDecode(pair.substr(eq + 1)));
      }
    }
    const std::string auth = req.get_header_value("Authorization");
    if (auth.starts_with("Bearer ")) call.token = auth.substr(7);
    return call;
  }

  // One path of the catalogues: the route, with its hand-written handler.
  void installRoute(const Route& route, HandlerTable& all) {
    const Endpoint& endpoint = *route.endpoint;
    const auto found = all.find(endpoint.path);
    if (found == all.end()) throw std::logic_error("qbapi-mock has no handler for " + std::string(endpoint.path));
    Handler handler = std::move(found->second);
    all.erase(found);
    const bool mustAuth = endpoint.mustAuth();
    auto handle = [this, handler = std::move(handler), required = route.required, mustAuth](
                      const httplib::Request& req, const Body& body, httplib::Response& res) {
      ++requests;
      try {
        Call call = parse(req, body);
        std::lock_guard lock(mutex);
        if (!call.token.empty()) {
          const auto token = tokens.find(call.token);
          if (token == tokens.end()) throw Failure{401, "invalid_token", "the access token is not valid"};
          call.userId = token->second;
        }
        if (mustAuth && !call.userId) {
          throw Failure{401, "auth_required", "this endpoint needs an access token"};
        }
        for (const auto& key : required) {
          const JsonValue* v = call.params.if_contains(key);
          if (!v || v->is_null()) throw Failure{400, "missing_parameter", std::string(key) + " is required"};
        }
        answer(res, 200, handler(call));
      } catch (const Failure& f) {
        answer(res, f.status, JsonMap{{"error", f.code}, {"message", f.message}});
      } catch (const std::exception& e) {
        answer(res, 400, JsonMap{{"error", "bad_request"}, {"message", e.what()}});
      }
    };
    const std::string path = "/" + std::string(endpoint.path);
    verbs[path] = endpoint.verb == HttpVerb::get ? "GET, HEAD" : "POST";
    if (endpoint.verb == HttpVerb::get) {
      server.Get(path, [handle = std::move(handle)](const httplib::Request& req, httplib::Response& res) {
        handle(req, Body{}, res);
      });
    } else {
      server.Post(path, [handle = std::move(handle)](const httplib::Request& req, httplib::Response& res,
                                                     const httplib::ContentReader& reader) {
        if (Body body; readBody(req, res, reader, body)) handle(req, body, res);
      });
    }
  }

  void install() {
    HandlerTable all = accountHandlers();
    all.merge(contentHandlers());
    all.merge(itemHandlers(extras));
    all.merge(supportHandlers(extras));
    for (const Route& route : catalogueRoutes()) installRoute(route, all);
    if (!all.empty())
      throw std::logic_error("qbapi-mock has a handler for " + std::string(all.begin()->first) +
                             ", which no catalogue lists");
    server.Get(R"(/_mock/verify_codes/(.+))", [this](const httplib::Request& req, httplib::Response& res) {
      std::lock_guard lock(mutex);
      const auto code = verifyCodes.find(urlDecode(req.matches[1].str()));
      if (code == verifyCodes.end())
        return answer(res, 404, JsonMap{{"error", "no_code"}, {"message", "no code sent"}});
      answer(res, 200, JsonMap{{"email", code->first}, {"code", code->second}});
    });
    server.Get(R"(/_mock/avatars/(\d+))", [this](const httplib::Request& req, httplib::Response& res) {
      std::lock_guard lock(mutex);
      const auto avatar = avatars.find(pathId(req.matches[1].str()));
      if (avatar == avatars.end()) return answer(res, 404, JsonMap{{"error", "no_avatar"}, {"message", "no avatar"}});
      res.set_content(avatar->second.data, avatar->second.contentType);
    });
    for (auto& [pattern, route] : extras.routes) {
      server.Get("/_mock/" + pattern,
                 [this, route = std::move(route)](const httplib::Request& req, httplib::Response& res) {
                   std::lock_guard lock(mutex);
                   std::vector<std::string> captures;
                   for (std::size_t i = 1; i < req.matches.size(); ++i) captures.push_back(req.matches[i].str());
                   try {
                     answer(res, 200, route(captures));
                   } catch (const Failure& f) {
                     answer(res, f.status, JsonMap{{"error", f.code}, {"message", f.message}});
                   }
                 });
    }
    // How many entries get_faq answers, for tests and benchmarks of larger replies: {"count": N}.
    server.Post("/_mock/faq", [this](const httplib::Request& req, httplib::Response& res,
                                     const httplib::ContentReader& reader) {
      Body body;
      if (!readBody(req, res, reader, body)) return;
      std::lock_guard lock(mutex);
      try {
        const JsonValue count = parseJsonMap(body.data).at("count");
        if (!count.is_int64() || count.get_int64() < 0 || count.get_int64() > 100000) throw std::out_of_range("count");
        faqCount = static_cast<std::size_t>(count.get_int64());
        answer(res, 200, JsonMap{{"count", count}});
      } catch (const std::exception&) {
        answer(res, 400, JsonMap{{"error", "bad_request"}, {"message", "the body must be {\"count\": 0..100000}"}});
      }
    });
    // The subscription summary and the trial reminders of an account; POST merges the body's members
    // into the summary (`{"is_vip": true, "vip_level": 3}`), for tests of a subscribed account.
    server.Get(R"(/_mock/vip/(\d+))", [this](const httplib::Request& req, httplib::Response& res) {
      std::lock_guard lock(mutex);
      const std::int64_t id = pathId(req.matches[1].str());
      if (!users.contains(id)) return answer(res, 404, JsonMap{{"error", "no_user"}, {"message", "no such user"}});
      answer(res, 200, JsonMap{{"vip_info", vipInfo(id)}, {"trial_reminders", trialReminders[id]}});
    });
    server.Post(R"(/_mock/vip/(\d+))",
                [this](const httplib::Request& req, httplib::Response& res, const httplib::ContentReader& reader) {
                  Body body;
                  if (!readBody(req, res, reader, body)) return;
                  std::lock_guard lock(mutex);
                  const std::int64_t id = pathId(req.matches[1].str());
                  if (!users.contains(id))
                    return answer(res, 404, JsonMap{{"error", "no_user"}, {"message", "no such user"}});
                  try {
                    JsonMap& info = vipInfo(id);
                    for (const auto& member : parseJsonMap(body.data)) info[member.key()] = member.value();
                    users[id]["vip"] = info["is_vip"];
                    answer(res, 200, JsonMap{{"vip_info", info}});
                  } catch (const std::exception&) {
                    answer(res, 400, JsonMap{{"error", "bad_request"}, {"message", "the body must be a JSON object"}});
                  }
                });
    // Statuses that come without a body: a route's path asked for with another verb is a 405.
    server.set_error_handler([this](const httplib::Request& req, httplib::Response& res) {
      if (!res.body.empty()) return;
      if (const auto verb = verbs.find(req.path); res.status == 404 && verb != verbs.end()) {
        res.status = 405;
        res.set_header("Allow", verb->second);
      }
      answer(res, res.status, errorBody(res.status));
    });
    // An exception that escapes a route is a 500 with the usual error body. Its text goes to the log, not
    // into the answer (httplib's own handling would echo it in a header).
    server.set_exception_handler([](const httplib::Request& req, httplib::Response& res, std::exception_ptr ep) {
      try {
        std::rethrow_exception(ep);
      } catch (const std::exception& e) {
        std::cerr << "qbapi-mock: " << req.method << " " << req.path << " failed: " << e.what() << "\n";
      } catch (...) {
        std::cerr << "qbapi-mock: " << req.method << " " << req.path << " failed\n";
      }
      res.headers.clear();
      answer(res, 500, errorBody(500));
    });
  }

  // Limits that keep a misbehaving client from exhausting memory or the workers.
  void limit() {
    server.set_payload_max_length(kMaxBodyBytes);
    server.set_read_timeout(kStallTimeout);
    server.set_write_timeout(kStallTimeout);
    server.set_keep_alive_timeout(kStallTimeout.count());
    server.new_task_queue = [] { return new httplib::ThreadPool(kWorkers); };
    // Replies go out at once: with Nagle's algorithm a reply written in two pieces waits for the client's
    // delayed acknowledgement (40 ms on Linux) on every keep-alive call.
    server.set_tcp_nodelay(true);
    // A keep-alive connection serves many calls, as a real service's does (the default closes after 5).
    server.set_keep_alive_max_count(1000);
  }
};

Service::Service(std::optional<std::uint64_t> seed) : state_(std::make_unique<State>(seed)) {
  state_->install();
  state_->limit();
}

Service::~Service() { stop(); }

int Service::start(int port) {
  State& s = *state_;
  s.port = port == 0 ? s.server.bind_to_any_port("127.0.0.1") : (s.server.bind_to_port("127.0.0.1", port) ? port : -1);
  // A qb::Error, so that the qbapi tool, which starts the service in-process, reports it with the rest.
  if (s.port <= 0) throw qb::Error("qbapi-mock could not bind 127.0.0.1:" + std::to_string(port));
  s.server.widenBacklog();
  s.thread = std::thread([&s] { s.server.listen_after_bind(); });
  for (int i = 0; i < 5000 && !s.server.is_running(); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  return s.port;
}

void Service::stop() {
  if (state_->thread.joinable()) {
    state_->server.stop();
    state_->thread.join();
  }
}

std::string Service::baseUrl() const { return "http://127.0.0.1:" + std::to_string(state_->port) + "/"; }

std::uint64_t Service::requestCount() const { return state_->requests.load(); }

}  // namespace qb::mock
