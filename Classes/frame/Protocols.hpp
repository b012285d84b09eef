// The host protocols of the Typed face, as concepts, and the declarations a request or response makes.
#pragma once

#include <concepts>
#include <string>
#include <vector>

#include <QBComponentAPI/frame/Codable.hpp>
#include <QBComponentAPI/frame/Endpoint.hpp>
#include <QBComponentAPI/frame/HostTypes.hpp>
#include <QBComponentAPI/frame/JSONDecoder.hpp>
#include <QBComponentAPI/frame/JSONEncoder.hpp>

namespace qb {

/// A record that both encodes and decodes through its coding keys.
template <class T>
concept APIModel = Codable<T> && std::copyable<T> && std::equality_comparable<T>;

/// What the host asks of a request.
template <class T>
concept APIRequest = requires(const T& request) {
  typename T::Response;
  { request.api() } -> std::convertible_to<std::string>;
  { request.methods() } -> std::same_as<std::vector<std::string>>;
  { request.forceHttps() } -> std::same_as<bool>;
  { request.needAuth() } -> std::same_as<bool>;
  { request.mustAuth() } -> std::same_as<bool>;
  { request.mimeBodies() } -> std::same_as<std::vector<APIMimeBody>>;
};

/// A request that hands itself to an encoder.
template <class T>
concept APIEncodableRequest = APIRequest<T> && Codable<T> && requires(const T& request, const JSONEncoder& encoder) {
  { request.parseParamater(encoder) } -> std::same_as<std::string>;
};

/// A response the host builds from reply data and a decoder.
template <class T>
concept APIResponse = requires(std::string_view data, const JSONDecoder& decoder) {
  { T::init(data, decoder) } -> std::same_as<T>;
};

/// A response built from JSON text.
template <class T>
concept APIJSONResponse = APIResponse<T>;

/// A response decoded through its coding keys.
template <class T>
concept APIDecodableResponse = APIResponse<T> && Codable<T>;

namespace detail {

/// The multipart bodies of a request: one per present file member, named after its key, with the file
/// name "file" and the content type "application/octet-stream".
template <Codable T>
std::vector<APIMimeBody> mimeBodiesOf(const T& request) {
  std::vector<APIMimeBody> bodies;
  std::apply([&](const auto&... k) {
    [[maybe_unused]] auto one = [&](const auto& key) {
      if constexpr (std::remove_cvref_t<decltype(key)>::isFile) {
        if (const auto& file = request.*key.member) {
          bodies.push_back(APIMimeBody{std::string(key.name), *file, "file", "application/octet-stream"});
        }
      }
    };
    (one(k), ...);
  }, T::codingKeys);
  return bodies;
}

}  // namespace detail
}  // namespace qb

/// Declares the operations of a request for `endpoint` (a qb::Endpoint) whose reply decodes as `ResponseType`.
#define QB_TYPED_REQUEST(endpoint, ResponseType)                                                      \
  using Response = ResponseType;                                                                     \
  static constexpr ::qb::Endpoint kEndpoint = endpoint;                                               \
  std::string api() const { return std::string(kEndpoint.path); }                                   \
  std::vector<std::string> methods() const { return {std::string(kEndpoint.upperVerb())}; }          \
  bool forceHttps() const { return kEndpoint.forceHttps(); }                                          \
  bool needAuth() const { return kEndpoint.needAuth(); }                                              \
  bool mustAuth() const { return kEndpoint.mustAuth(); }                                              \
  std::vector<::qb::APIMimeBody> mimeBodies() const { return ::qb::detail::mimeBodiesOf(*this); }     \
  template <class Encoder>                                                                           \
  auto parseParamater(const Encoder& encoder) const { return encoder.encode(*this); }

/// Declares `init(data, decoder)` of a response record.
#define QB_TYPED_RESPONSE(Type)                                     \
  template <class Data, class Decoder>                              \
  static Type init(const Data& data, const Decoder& decoder) {      \
    return decoder.template decode<Type>(data);                     \
  }

/// Instantiates qb::JSONDecoder for a record; put in the record's .cpp file.
#define QB_TYPED_DEFINE(Type) template Type qb::JSONDecoder::decode<Type>(::qb::JsonText) const;
