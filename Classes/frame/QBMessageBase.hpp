// The base of every Dictionary-face message: what the host messaging layer asks of a message.
#pragma once

#include <QBComponentAPI/frame/HostTypes.hpp>
#include <QBComponentAPI/frame/Json.hpp>
#include <string>
#include <vector>

namespace qb {

/// The host reads these in declaration order: path, parameters, method, flags, multipart bodies; then it
/// sends the call and hands the reply object to parseResponse. Messages are used by one caller at a time;
/// their properties are atomic, so a finished message may be read from several threads.
class QBMessageBase {
 public:
  virtual ~QBMessageBase() = default;
  QBMessageBase(const QBMessageBase&) = delete;
  QBMessageBase& operator=(const QBMessageBase&) = delete;

  /// The endpoint's relative path, for example "v3/user/get_config".
  virtual std::string api() const = 0;
  /// A new parameter map built from the properties. Throws ParameterCheckFailException when a required
  /// parameter is absent, EncodingError when a parameter (of any kind) cannot be written as JSON text.
  virtual JsonMap getParams() const = 0;
  /// A new one-element list, {"get"} or {"post"}.
  virtual std::vector<std::string> methods() const = 0;
  virtual bool forceHttps() const = 0;
  virtual bool binaryResponse() const = 0;
  virtual bool needAuth() const = 0;
  virtual bool mustAuth() const = 0;
  /// A new list of multipart bodies; empty for every endpoint but the user update.
  virtual std::vector<QBMimeBody> mimeBodies() const;
  /// Fills the result properties from the reply object and returns this message. Raises only what the
  /// nested models it builds raise (ParameterCheckFailException, JsonTypeError).
  virtual QBMessageBase& parseResponse(const JsonMap& reply) = 0;
  /// The same from a reply the caller gives up (a temporary, or std::move(reply)): values are moved into
  /// the properties instead of copied, which halves the allocations of a large reply. Messages of this
  /// library override it; a message that does not reads the reply as the overload above does.
  virtual QBMessageBase& parseResponse(JsonMap&& reply) { return parseResponse(static_cast<const JsonMap&>(reply)); }
  /// The same from the reply's bytes, as the host receives them: parses them and reads the results,
  /// throwing what parseJsonMap throws for bytes that are not a JSON object. Messages of this library
  /// read their results and models from the bytes as the parser reaches them, without building the
  /// reply as a JsonMap (a reply that is not valid JSON, or repeats a key, is parsed in full and read as
  /// a map, so the outcome is always that of parseResponse(parseJsonMap(reply))); a message that does not
  /// override it parses with parseJsonMap and calls parseResponse.
  virtual QBMessageBase& parseResponseBytes(JsonText reply);

 protected:
  QBMessageBase() = default;
};

}  // namespace qb
