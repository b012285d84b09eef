// The wire reference: it lists every endpoint once as the catalogues and the tool's registry have it, every
// reference in it resolves, and every reply the mock service gives conforms to it, checked on the reply's
// bytes with a small validator of exactly the schema keywords the generator writes.
#include "cli/OpenApi.hpp"

#include <gtest/gtest.h>

#include <QBComponentAPI/Catalogues.hpp>
#include <QBComponentAPI/host/Client.hpp>
#include <QBComponentAPI/item/typed/ItemListMyCollectionsRequest.hpp>
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <set>

#include "cli/Registry.hpp"
#include "host/ContentArguments.hpp"
#include "host/MockSession.hpp"
#include "host/RecordingTransport.hpp"

namespace qb {
namespace {

// --- A validator for the generator's subset of JSON Schema ----------------------------------------------

// Checks values against the schemas of one document. Keywords it does not know fail the check, so that a
// constraint the generator starts writing cannot be passed over in silence; annotations are skipped.
class SchemaValidator {
 public:
  explicit SchemaValidator(const JsonMap& document) : document_(document) {}

  // Where `value` first breaks `schema`, as "path: reason"; std::nullopt when it conforms.
  std::optional<std::string> check(const JsonValue& schema, const JsonValue& value) const {
    return check(schema, value, "$");
  }

 private:
  static bool isAnnotation(std::string_view keyword) {
    return keyword.starts_with("x-") || keyword == "description" || keyword == "contentMediaType";
  }

  static bool hasType(const JsonValue& value, std::string_view type) {
    if (type == "null") return value.is_null();
    if (type == "boolean") return value.is_bool();
    if (type == "string") return value.is_string();
    if (type == "array") return value.is_array();
    if (type == "object") return value.is_object();
    if (type == "number") return value.is_number();
    if (type == "integer") {
      // As JSON Schema counts them: 3.0 is an integer too.
      return value.is_int64() || value.is_uint64() ||
             (value.is_double() && std::trunc(value.get_double()) == value.get_double());
    }
    return false;
  }

  static double asDouble(const JsonValue& value) {
    return value.is_int64()    ? static_cast<double>(value.get_int64())
           : value.is_uint64() ? static_cast<double>(value.get_uint64())
                               : value.get_double();
  }

  std::optional<std::string> check(const JsonValue& schemaValue, const JsonValue& value,
                                   const std::string& path) const {
    const JsonMap& schema = schemaValue.as_object();
    auto fail = [&](const std::string& reason) { return std::optional<std::string>(path + ": " + reason); };
    for (const auto& [keyword, argument] : schema) {
      if (isAnnotation(keyword)) continue;
      if (keyword == "$ref") {
        const std::string_view target = argument.as_string();
        const std::string_view prefix = "#/components/schemas/";
        if (!target.starts_with(prefix)) return fail("unsupported reference " + std::string(target));
        const JsonValue* resolved =
            document_.at("components").at("schemas").as_object().if_contains(target.substr(prefix.size()));
        if (!resolved) return fail("unresolved reference " + std::string(target));
        if (auto error = check(*resolved, value, path)) return error;
      } else if (keyword == "anyOf") {
        bool any = false;
        for (const auto& option : argument.as_array()) any = any || !check(option, value, path);
        if (!any) return fail("matches none of anyOf");
      } else if (keyword == "type") {
        bool ok = false;
        if (argument.is_string()) {
          ok = hasType(value, argument.as_string());
        } else {
          for (const auto& type : argument.as_array()) ok = ok || hasType(value, type.as_string());
        }
        if (!ok) return fail("not of type " + toJson(argument) + ": " + toJson(value));
      } else if (keyword == "enum") {
        const auto& values = argument.as_array();
        if (std::find(values.begin(), values.end(), value) == values.end())
          return fail("not in enum: " + toJson(value));
      } else if (keyword == "format") {
        // Only int64 constrains; other formats are annotations here.
        if (argument.as_string() == "int64" && value.is_number()) {
          const bool fits =
              value.is_int64() ||
              (value.is_uint64() && value.get_uint64() <= std::uint64_t(std::numeric_limits<std::int64_t>::max())) ||
              (value.is_double() && value.get_double() >= -9223372036854775808.0 &&
               value.get_double() < 9223372036854775808.0);
          if (!fits) return fail("outside int64: " + toJson(value));
        }
      } else if (keyword == "minimum" || keyword == "maximum") {
        if (value.is_number()) {
          const double bound = asDouble(argument), number = asDouble(value);
          if (keyword == "minimum" ? number < bound : number > bound) return fail(std::string(keyword) + " broken");
        }
      } else if (keyword == "required") {
        if (!value.is_object()) continue;
        for (const auto& key : argument.as_array()) {
          if (!value.as_object().contains(key.as_string())) return fail("lacks " + std::string(key.as_string()));
        }
      } else if (keyword == "properties") {
        if (!value.is_object()) continue;
        for (const auto& [key, sub] : argument.as_object()) {
          if (const JsonValue* member = value.as_object().if_contains(key)) {
            if (auto error = check(sub, *member, path + "." + std::string(key))) return error;
          }
        }
      } else if (keyword == "additionalProperties") {
        if (!value.is_object()) continue;
        const JsonValue* declared = schema.if_contains("properties");
        for (const auto& [key, member] : value.as_object()) {
          if (declared && declared->as_object().contains(key)) continue;
          if (argument.is_bool()) {
            if (!argument.as_bool()) return fail("undeclared key " + std::string(key));
          } else if (auto error = check(argument, member, path + "." + std::string(key))) {
            return error;
          }
        }
      } else if (keyword == "items") {
        if (!value.is_array()) continue;
        for (std::size_t i = 0; i < value.as_array().size(); ++i) {
          if (auto error = check(argument, value.as_array()[i], path + "[" + std::to_string(i) + "]")) return error;
        }
      } else {
        return fail("the validator does not know the keyword " + std::string(keyword));
      }
    }
    return std::nullopt;
  }

  const JsonMap& document_;
};

const JsonMap& document() {
  static const JsonMap doc = cli::openApiDocument();
  return doc;
}

const JsonMap& operationOf(const cli::Entry& entry) {
  return document().at("paths").at("/" + std::string(entry.endpoint->path)).at(entry.endpoint->lowerVerb()).as_object();
}

const JsonValue& replySchema(const cli::Entry& entry) {
  return operationOf(entry).at("responses").at("200").at("content").at("application/json").at("schema");
}

// --- The document's shape -------------------------------------------------------------------------------

std::set<std::string> keysOf(const JsonValue& object) {
  std::set<std::string> keys;
  for (const auto& member : object.as_object()) keys.emplace(member.key());
  return keys;
}

TEST(OpenApiDocument, ListsEveryEndpointOnceWithItsVerbSecurityAndFaces) {
  const auto& paths = document().at("paths").as_object();
  EXPECT_EQ(paths.size(), cli::registry().size());
  EXPECT_EQ(paths.size(), 50u);
  std::set<std::string> operationIds;
  for (const cli::Entry& entry : cli::registry()) {
    SCOPED_TRACE(entry.name);
    const JsonValue* item = paths.if_contains("/" + std::string(entry.endpoint->path));
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(keysOf(*item), std::set<std::string>{std::string(entry.endpoint->lowerVerb())});
    const JsonMap& op = operationOf(entry);
    EXPECT_TRUE(operationIds.insert(std::string(op.at("operationId").as_string())).second) << "operationId repeated";

    const char* security = entry.endpoint->auth == Auth::none       ? "[]"
                           : entry.endpoint->auth == Auth::optional ? R"([{},{"bearer":[]}])"
                                                                    : R"([{"bearer":[]}])";
    EXPECT_EQ(op.at("security"), parseJson(security));
    JsonList faces;
    if (entry.dictionary) faces.emplace_back("dictionary");
    if (entry.typed) faces.emplace_back("typed");
    EXPECT_EQ(op.at("x-faces"), JsonValue(faces));

    // Every parameter the registry describes is where the host puts it, and nothing else is.
    const cli::Description d = entry.describe();
    std::set<std::string> described, documented;
    bool file = false;
    for (const auto& p : d.parameters) {
      described.insert(p.key);
      file = file || p.type == "file";
    }
    if (entry.endpoint->verb == HttpVerb::get) {
      EXPECT_FALSE(op.contains("requestBody"));
      for (const auto& p : op.at("parameters").as_array()) {
        EXPECT_EQ(p.at("in"), JsonValue("query"));
        documented.emplace(p.at("name").as_string());
      }
    } else {
      EXPECT_FALSE(op.contains("parameters"));
      const JsonValue& content = op.at("requestBody").at("content");
      std::set<std::string> types;
      if (entry.typed) types.insert("application/json");
      if (entry.dictionary) types.insert("application/x-www-form-urlencoded");
      if (file) types.insert("multipart/form-data");
      EXPECT_EQ(keysOf(content), types);
      for (const auto& [type, media] : content.as_object()) {
        const JsonValue& schema = media.at("schema");
        const JsonValue& object =
            schema.as_object().contains("$ref")
                ? document().at("components").at("schemas").at(std::string(schema.at("$ref").as_string()).substr(21))
                : schema;
        for (const auto& key : keysOf(object.at("properties"))) documented.insert(key);
      }
    }
    EXPECT_EQ(documented, described);
  }
}

// Calls f(value) for every value in the document, at any depth.
void walk(const JsonValue& value, const std::function<void(const JsonValue&)>& f) {
  f(value);
  if (value.is_object()) {
    for (const auto& member : value.as_object()) walk(member.value(), f);
  } else if (value.is_array()) {
    for (const auto& element : value.as_array()) walk(element, f);
  }
}

// Every reference resolves, and every component is referenced or a catalogue record (tag values' records
// are named by no endpoint).
TEST(OpenApiDocument, EveryReferenceResolvesAndEveryComponentIsUsed) {
  std::set<std::string> referenced;
  walk(JsonValue(document()), [&](const JsonValue& v) {
    if (!v.is_object()) return;
    if (const JsonValue* target = v.as_object().if_contains("$ref")) referenced.emplace(target->as_string());
  });
  const JsonValue& components = document().at("components");
  std::set<std::string> defined;
  for (const char* kind : {"schemas", "responses"}) {
    for (const auto& member : components.at(kind).as_object()) {
      defined.insert("#/components/" + std::string(kind) + "/" + std::string(member.key()));
    }
  }
  for (const auto domain : kCatalogueClassNames) {
    for (std::string_view name : domain) {
      const std::string component = "#/components/schemas/" + std::string(name);
      if (defined.contains(component)) referenced.insert(component);
    }
  }
  EXPECT_EQ(referenced, defined);
  for (const char* record : {"CmsTagStringModel", "CmsTagColorsModel", "VerifyResultModel"}) {
    EXPECT_TRUE(defined.contains("#/components/schemas/" + std::string(record))) << record;
  }
  EXPECT_GT(defined.size(), 60u);
}

TEST(OpenApiDocument, IsTheSameTextEveryTime) {
  const std::string text = cli::openApiText();
  EXPECT_EQ(text, cli::openApiText());
  EXPECT_TRUE(text.ends_with("}\n"));
  EXPECT_EQ(parseJsonMap(text), document());
}

// --- Replies against the document -----------------------------------------------------------------------

using Recorder = test::RecordingTransport;

std::vector<std::byte> bytes(std::string_view text) {
  std::vector<std::byte> out;
  for (char c : text) out.push_back(static_cast<std::byte>(c));
  return out;
}

// One valid call: arguments as the tool takes them, with $KEPT, $DELETED and $BATCHED (items of the seeded
// collection) and $CODE (the last verification code mailed) filled in when the row is reached.
struct Call {
  const char* endpoint;
  const char* args;
  std::vector<std::string> files{};
};

// In an order that makes sense to the service: codes are asked for before they are checked, items are
// read before they are deleted, and the account goes last.
std::vector<Call> calls() {
  std::vector<Call> table{
      {"user/initialise", R"({"language_code": 0, "country_code": "US"})"},
      {"user/get_config", R"({"language_code": 1, "country_code": "US"})"},
      {"user/get_faq", R"({"language_code": 1, "device_type": 1})"},
      {"user/get", "{}"},
      {"user/update", R"({"nickname": "Fern", "gender": 1})", {"avatar"}},
      {"user/update_additional_data", R"({"email_notification_enabled": false, "grows_price_label": "B"})"},
      {"user/update_device_info", R"({"device_info": {"device_type": 2, "device_token": "t2"}})"},
      {"user/update_user_conversion", R"({"is_organic": true, "cost_cents_usd": 125, "abset_id": "a"})"},
      {"user/update_user_device_push_info", R"({"time_zone": "UTC", "language_code": 2})"},
      {"user/update_user_properties", R"({"key": "theme", "value": "dark"})"},
      {"user/update_user_time_zone", R"({"time_zone": "UTC"})"},
      {"user/apple_callback", R"({"code": "c"})"},
      {"user/get_verify_code", R"({"email": "fern@example.com", "language_code": 0})"},
      {"user/check_verify_code", R"({"email": "fern@example.com", "verify_code": "$CODE"})"},
      {"user/reset_password_and_login",
       R"({"email": "fern@example.com", "password": "pw", "verify_code": "$CODE",
           "device_info": {"device_type": 1, "device_token": "t"}})"},
      {"user/login_or_create",
       R"({"login_info": {"login_type": 3, "login_key": "fern@example.com", "login_password": "pw"},
           "device_info": {"device_type": 1, "device_token": "t"}, "login_action": 1})"},
      {"user/login_or_create_for_website",
       R"({"login_info": {"login_type": 3, "login_key": "fern@example.com", "login_password": "pw"},
           "device_info": {"device_type": 1, "device_token": "t"}, "login_action": 0})"},
      {"item/list_my_collections", R"({"sign_image_url": true})"},
      {"item/list_my_collections_page", R"({"page_size": 3, "last_item_id": $KEPT})"},
      {"item/get_item_detail",
       R"({"item_id": $KEPT, "language_code": 0, "country_code": "US", "sign_image_url": true})"},
      {"item/change_item_cms_name",
       R"({"item_id": $KEPT, "cms_name_uid": "ficus-lyrata", "cms_name_name": "Fiddle-leaf fig"})"},
      {"item/update_item_custom_name", R"({"item_id": $KEPT, "uid": "u-1", "name": "Figgy"})"},
      {"item/update_item_custom_note", R"({"item_id": $KEPT, "note": "Turn weekly"})"},
      {"item/update_item_location", R"({"item_id": $KEPT, "lng": 2.35, "lat": 48.85})"},
      {"item/update_item_original_image_url",
       R"({"item_id": $KEPT, "original_image_url": "https://u.example/o.heic"})"},
      {"item/update_item_original_det_image_url",
       R"({"item_id": $KEPT, "original_det_image_url": "https://u.example/d.jpg"})"},
      {"item/delete_item", R"({"item_id": $DELETED})"},
      {"item/batch_delete_items", R"({"item_ids": [$BATCHED]})"},
      {"item/item_delete_candidate_user", "{}"},
      {"item/item_delete_notified", "{}"},
      {"item/check_user_buy_cloud_storage", "{}"},
  };
  // The content endpoints keep no state: the arguments the content tests use.
  for (const auto& [endpoint, args] : kContentArguments) table.push_back({endpoint.data(), args});
  const std::vector<Call> rest{
      {"support/get_customer_support_auto_reply",
       R"({"language_code": 0, "country_code": "US", "content": "How do I get a refund?"})"},
      {"support/get_faq_from_cms", R"({"language_code": 5, "country_code": "CA"})"},
      {"support/get_popular_faq_from_cms", R"({"language_code": 0, "country_code": "US"})"},
      {"support/send_support_ticket",
       R"({"email": "fern@example.com", "support_type": 1, "language_code": 0, "country_code": "US",
           "content": "Help", "images": ["https://u.example/1.jpg"], "tags": ["app"], "extra_fields": {"v": 2}})"},
      {"vip/vip_card", "{}"},
      {"vip/remind_user_to_attention_trial",
       R"({"days_to_remind": 2, "email": "fern@example.com", "language_code": 0})"},
      {"user/delete_account", "{}"},
  };
  table.insert(table.end(), rest.begin(), rest.end());
  return table;
}

std::string fill(std::string text, const std::map<std::string, std::function<std::string()>>& values) {
  for (const auto& [name, value] : values) {
    for (auto at = text.find(name); at != std::string::npos; at = text.find(name))
      text.replace(at, name.size(), value());
  }
  return text;
}

cli::Arguments arguments(const Call& call, const std::map<std::string, std::function<std::string()>>& values) {
  cli::Arguments args{.values = parseJsonMap(fill(call.args, values)), .files = {}};
  for (const auto& key : call.files) args.files[key] = bytes("\x89PNG avatar");
  return args;
}

// Through the Typed face where the endpoint has one, else the Dictionary face.
const cli::Send& sendOf(const cli::Entry& entry) { return entry.typed ? entry.typed : entry.dictionary; }

TEST(OpenApiConformance, EveryReplyOfTheMockServiceConformsToItsOperation) {
  auto recorder = std::make_shared<Recorder>();
  MockSession session(recorder);
  const SchemaValidator validator(document());
  std::vector<std::string> items;
  for (const auto& item : session.client.send(ItemListMyCollectionsRequest{}).items) {
    items.push_back(std::to_string(item.itemId));
  }
  ASSERT_GE(items.size(), 3u);
  const std::map<std::string, std::function<std::string()>> values{
      {"$DELETED", [&] { return items[1]; }},
      {"$BATCHED", [&] { return items[2]; }},
      {"$KEPT", [&] { return items[0]; }},
      {"$CODE",
       [&] {
         const auto reply = host::makeCurlTransport()->send(
             {.method = "GET", .url = session.service.baseUrl() + "_mock/verify_codes/fern@example.com"});
         return std::string(parseJsonMap(reply.body).at("code").as_string());
       }},
  };
  std::set<std::string> called;
  for (const Call& call : calls()) {
    SCOPED_TRACE(call.endpoint);
    const cli::Entry* entry = cli::findEntry(call.endpoint);
    ASSERT_NE(entry, nullptr);
    EXPECT_TRUE(called.insert(entry->name).second) << "called twice";
    sendOf (*entry)(session.client, arguments(call, values));
    const JsonValue reply = parseJson(recorder->lastBody());
    const auto error = validator.check(replySchema(*entry), reply);
    EXPECT_FALSE(error) << *error << "\n" << recorder->lastBody();
  }
  for (const auto& entry : cli::registry()) EXPECT_TRUE(called.contains(entry.name)) << entry.name << " never called";
}

// A broken reply: the reply of `endpoint` with the value at `path` ("user.gender", "items.0") replaced by
// `value`, or removed when `value` is empty.
struct Broken {
  const char* endpoint;
  const char* args;
  const char* path;
  const char* value;
  bool conforms;  // to the document, and so for the Typed face's decoder
};

JsonValue& at(JsonValue& root, std::string_view path, std::string& last) {
  JsonValue* node = &root;
  while (true) {
    const auto dot = path.find('.');
    const std::string_view step = path.substr(0, dot);
    if (dot == std::string_view::npos) {
      last = std::string(step);
      return *node;
    }
    node = node->is_array() ? &node->as_array().at(std::stoul(std::string(step))) : &node->as_object().at(step);
    path.remove_prefix(dot + 1);
  }
}

std::string broken(const std::string& reply, const Broken& b) {
  JsonValue root = parseJson(reply);
  std::string last;
  JsonValue& parent = at(root, b.path, last);
  if (parent.is_array()) {
    parent.as_array().at(std::stoul(last)) = parseJson(b.value);
  } else if (*b.value == '\0') {
    parent.as_object().erase(last);
  } else {
    parent.as_object()[last] = parseJson(b.value);
  }
  return toJson(root);
}

// The validator is no rubber stamp, and the document says what the decoder does: null only where it takes
// null, integers within int64, enumeration values where it checks them, dates within its years.
TEST(OpenApiConformance, BrokenRepliesAreRejectedAsTheTypedFaceRejectsThem) {
  const Broken cases[] = {
      {"user/get", "{}", "user.user_id", R"("9007199254740993")", false},
      {"user/get", "{}", "user.user_id", "9223372036854775808", false},
      {"user/get", "{}", "user.user_id", "1.5", false},
      {"user/get", "{}", "user.uuid", "", false},
      {"user/get", "{}", "user.uuid", "null", false},
      {"user/get", "{}", "user.nickname", "null", true},
      {"user/get", "{}", "user.gender", "7", false},
      {"user/get", "{}", "user.gender", "null", true},
      {"user/get", "{}", "user.created_at", R"("2024-03-01T12:30:05Z")", false},
      {"user/get", "{}", "user.created_at", "1e12", false},
      {"user/get", "{}", "user.created_at", "1709296205.25", true},
      {"user/get", "{}", "user.properties", R"({"theme": [1, null, {"a": "b"}]})", true},
      {"user/get", "{}", "user.no_such_key", "1", true},
      {"user/get", "{}", "user_additional_data", "[]", false},
      {"user/get_config", R"({"language_code": 0, "country_code": "US"})", "other_configs", "[]", false},
      {"user/get_config", R"({"language_code": 0, "country_code": "US"})", "other_configs", R"({"a": null})", true},
      {"user/get_config", R"({"language_code": 0, "country_code": "US"})", "config.auto_update", "null", false},
      {"vip/vip_card", "{}", "vip_info.vip_level", "42", true},
      {"vip/vip_card", "{}", "vip_info.vip_level", R"("gold")", false},
      {"item/list_my_collections", "{}", "items.0", "null", false},
      {"item/list_my_collections", "{}", "items", "{}", false},
  };
  // The valid replies the mutations start from.
  auto recorder = std::make_shared<Recorder>();
  MockSession session(recorder);
  std::map<std::string, std::string> replies;
  for (const auto& c : cases) {
    if (replies.contains(c.endpoint)) continue;
    const cli::Entry* entry = cli::findEntry(c.endpoint);
    ASSERT_NE(entry, nullptr);
    entry->typed(session.client, cli::Arguments{.values = parseJsonMap(c.args), .files = {}});
    replies[c.endpoint] = recorder->lastBody();
  }
  // The same replies, broken, decoded by the Typed face through the host.
  recorder->canned.emplace();
  const SchemaValidator validator(document());
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.endpoint) + " " + c.path + " = " + (*c.value ? c.value : "(removed)"));
    const cli::Entry* entry = cli::findEntry(c.endpoint);
    *recorder->canned = broken(replies.at(c.endpoint), c);
    EXPECT_EQ(!validator.check(replySchema(*entry), parseJson(*recorder->canned)), c.conforms);
    bool decoded = true;
    try {
      entry->typed(session.client, cli::Arguments{.values = parseJsonMap(c.args), .files = {}});
    } catch (const DecodingError&) {
      decoded = false;
    }
    EXPECT_EQ(decoded, c.conforms);
  }
}

}  // namespace
}  // namespace qb
