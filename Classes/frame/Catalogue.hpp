// Endpoint catalogues: each domain declares every endpoint once, as one line of an X-macro, and every
// record once, and everything that lists endpoints or records (the endpoint constants the faces refer
// to, the umbrella headers' checks, the decoder instantiations, the tool's registry, the mock service's
// routes, the fuzz registries, the per-endpoint tests) is derived from those lines.
//
// A domain's catalogue header defines two macros, each taking three callbacks for entries with both
// faces, with the Dictionary face only and with the Typed face only:
//
//   #define QB_USER_ENDPOINTS(BOTH, DICT, TYPED)
//     BOTH(kGetConfig, "v3/user/get_config", post, required, QBUserGetConfigMessage, UserGetConfigRequest)
//     DICT(kUpdateUserTimeZone, "v3/user/update_user_time_zone", post, required,
//          QBUserUpdateUserTimeZoneMessage)
//     TYPED(kAppleCallback, "v3/user/apple_callback", post, optional, UserAppleLoginCallBackRequest)
//
//   #define QB_USER_RECORDS(BOTH, DICT, TYPED) BOTH(QBAPIUser, UserModel) ...
//
// and expands them with QB_CATALOGUE(user, QB_USER_ENDPOINTS, QB_USER_RECORDS). The verb is `get` or
// `post`; the authentication `none`, `optional` or `required` (see qb::Auth). A Typed-face response is
// the request's `Response` and needs no line of its own.
#pragma once

#include <QBComponentAPI/frame/Endpoint.hpp>
#include <cstddef>
#include <string_view>
#include <type_traits>

namespace qb {

/// Stands in a catalogue entry for the face an endpoint or record does not have.
struct NoFace;

template <class T>
inline constexpr bool hasFace = !std::is_same_v<T, NoFace>;

template <class... T>
struct TypeList {
  static constexpr std::size_t size = sizeof...(T);
};

/// One endpoint: its constant and the class of each face (NoFace where it has none).
template <const Endpoint& E, class Message, class Request>
struct Api {
  static constexpr const Endpoint& endpoint = E;
  using DictionaryMessage = Message;
  using TypedRequest = Request;
};

/// One record: the class of each face (NoFace where it has none).
template <class DictionaryModel, class TypedModel>
struct Record {
  using Dictionary = DictionaryModel;
  using Typed = TypedModel;
};

/// A catalogue line's endpoint and the class names of its faces (empty for a face it lacks).
struct EndpointNames {
  const Endpoint* endpoint;
  std::string_view message;
  std::string_view request;
};

template <class Message, class Request>
constexpr Faces facesOf() {
  if constexpr (hasFace<Message> && hasFace<Request>) {
    return Faces::both;
  } else if constexpr (hasFace<Message>) {
    return Faces::dictionaryOnly;
  } else {
    static_assert(hasFace<Request>, "an endpoint needs at least one face");
    return Faces::typedOnly;
  }
}

namespace detail {

/// The macros below list types with a comma after each; the list ends with this marker, which
/// WithoutEnd drops.
struct EndOfList;

template <class Done, class... Rest>
struct WithoutEndImpl;
template <class... Done>
struct WithoutEndImpl<TypeList<Done...>, EndOfList> {
  using type = TypeList<Done...>;
};
template <class... Done, class Next, class... Rest>
struct WithoutEndImpl<TypeList<Done...>, Next, Rest...> : WithoutEndImpl<TypeList<Done..., Next>, Rest...> {};

template <class... T>
using WithoutEnd = typename WithoutEndImpl<TypeList<>, T...>::type;

}  // namespace detail

/// Concatenation of type lists.
template <class... Lists>
struct ConcatImpl;
template <>
struct ConcatImpl<> {
  using type = TypeList<>;
};
template <class... A>
struct ConcatImpl<TypeList<A...>> {
  using type = TypeList<A...>;
};
template <class... A, class... B, class... Rest>
struct ConcatImpl<TypeList<A...>, TypeList<B...>, Rest...> : ConcatImpl<TypeList<A..., B...>, Rest...> {};
template <class... Lists>
using Concat = typename ConcatImpl<Lists...>::type;

/// Concatenation of the lists of a list of type lists.
template <class ListOfLists>
struct FlattenImpl;
template <class... Lists>
struct FlattenImpl<TypeList<Lists...>> {
  using type = Concat<Lists...>;
};
template <class ListOfLists>
using Flatten = typename FlattenImpl<ListOfLists>::type;

/// Calls `f.template operator()<T>()` for each T of the list, in order.
template <class... T, class F>
constexpr void forEachType(TypeList<T...>, F&& f) {
  (f.template operator()<T>(), ...);
}

/// Whether an endpoint (a qb::Api) repeats the path of an earlier entry of the list: the line of a
/// further Dictionary-face message of an endpoint that already has its line. Everything that lists
/// endpoints counts such a path once, under its first line.
template <class A, class... All>
constexpr bool repeatsPath(TypeList<All...>) {
  bool reached = false, repeats = false;
  (
      [&] {
        if (std::is_same_v<A, All>) reached = true;
        if (!reached && All::endpoint.path == A::endpoint.path) repeats = true;
      }(),
      ...);
  return repeats;
}

}  // namespace qb

// --- Expansion callbacks -----------------------------------------------------------------------------

#define QB_CATALOGUE_FORWARD_BOTH_(constant, path, verb, auth, Message, Request) \
  class Message;                                                                 \
  struct Request;
#define QB_CATALOGUE_FORWARD_DICT_(constant, path, verb, auth, Message) class Message;
#define QB_CATALOGUE_FORWARD_TYPED_(constant, path, verb, auth, Request) struct Request;
#define QB_CATALOGUE_FORWARD_RECORD_BOTH_(Dictionary, Typed) \
  class Dictionary;                                          \
  struct Typed;
#define QB_CATALOGUE_FORWARD_RECORD_DICT_(Dictionary) class Dictionary;
#define QB_CATALOGUE_FORWARD_RECORD_TYPED_(Typed) struct Typed;

#define QB_CATALOGUE_ENDPOINT_(constant, path, verb, auth, Message, Request)             \
  inline constexpr ::qb::Endpoint constant{path, ::qb::HttpVerb::verb, ::qb::Auth::auth, \
                                           ::qb::facesOf<Message, Request>()};
#define QB_CATALOGUE_ENDPOINT_BOTH_(constant, path, verb, auth, Message, Request) \
  QB_CATALOGUE_ENDPOINT_(constant, path, verb, auth, ::qb::Message, ::qb::Request)
#define QB_CATALOGUE_ENDPOINT_DICT_(constant, path, verb, auth, Message) \
  QB_CATALOGUE_ENDPOINT_(constant, path, verb, auth, ::qb::Message, ::qb::NoFace)
#define QB_CATALOGUE_ENDPOINT_TYPED_(constant, path, verb, auth, Request) \
  QB_CATALOGUE_ENDPOINT_(constant, path, verb, auth, ::qb::NoFace, ::qb::Request)

#define QB_CATALOGUE_API_BOTH_(constant, path, verb, auth, Message, Request) \
  ::qb::Api<constant, ::qb::Message, ::qb::Request>,
#define QB_CATALOGUE_API_DICT_(constant, path, verb, auth, Message) ::qb::Api<constant, ::qb::Message, ::qb::NoFace>,
#define QB_CATALOGUE_API_TYPED_(constant, path, verb, auth, Request) ::qb::Api<constant, ::qb::NoFace, ::qb::Request>,
#define QB_CATALOGUE_RECORD_BOTH_(Dictionary, Typed) ::qb::Record<::qb::Dictionary, ::qb::Typed>,
#define QB_CATALOGUE_RECORD_DICT_(Dictionary) ::qb::Record<::qb::Dictionary, ::qb::NoFace>,
#define QB_CATALOGUE_RECORD_TYPED_(Typed) ::qb::Record<::qb::NoFace, ::qb::Typed>,

#define QB_CATALOGUE_RECORD_NAME_BOTH_(Dictionary, Typed) std::string_view(#Dictionary), std::string_view(#Typed),
#define QB_CATALOGUE_RECORD_NAME_ONE_(Name) std::string_view(#Name),
#define QB_CATALOGUE_CLASS_NAMES_BOTH_(constant, path, verb, auth, Message, Request) \
  std::string_view(#Message), std::string_view(#Request),
#define QB_CATALOGUE_CLASS_NAME_ONE_(constant, path, verb, auth, Name) std::string_view(#Name),
#define QB_CATALOGUE_NAMES_BOTH_(constant, path, verb, auth, Message, Request) \
  ::qb::EndpointNames{&constant, #Message, #Request},
#define QB_CATALOGUE_NAMES_DICT_(constant, path, verb, auth, Message) ::qb::EndpointNames{&constant, #Message, {}},
#define QB_CATALOGUE_NAMES_TYPED_(constant, path, verb, auth, Request) ::qb::EndpointNames{&constant, {}, #Request},

/// Declares, in namespace `qb::<domain>`: the endpoint constants (kGetConfig, ...), `Endpoints` (a TypeList
/// of qb::Api) and `Records` (a TypeList of qb::Record), and `kClassNames`, the name of every class of
/// the catalogue (messages, requests, records), for checks against the source tree, and `kEndpointNames`,
/// each line's endpoint with the names of its face classes, for listings.
#define QB_CATALOGUE(domain, ENDPOINTS, RECORDS)                                                                    \
  namespace qb {                                                                                                    \
  ENDPOINTS(QB_CATALOGUE_FORWARD_BOTH_, QB_CATALOGUE_FORWARD_DICT_, QB_CATALOGUE_FORWARD_TYPED_)                    \
  RECORDS(QB_CATALOGUE_FORWARD_RECORD_BOTH_, QB_CATALOGUE_FORWARD_RECORD_DICT_, QB_CATALOGUE_FORWARD_RECORD_TYPED_) \
  namespace domain {                                                                                                \
  ENDPOINTS(QB_CATALOGUE_ENDPOINT_BOTH_, QB_CATALOGUE_ENDPOINT_DICT_, QB_CATALOGUE_ENDPOINT_TYPED_)                 \
  using Endpoints = ::qb::detail::WithoutEnd<ENDPOINTS(QB_CATALOGUE_API_BOTH_, QB_CATALOGUE_API_DICT_,              \
                                                       QB_CATALOGUE_API_TYPED_)::qb::detail::EndOfList>;            \
  using Records = ::qb::detail::WithoutEnd<RECORDS(QB_CATALOGUE_RECORD_BOTH_, QB_CATALOGUE_RECORD_DICT_,            \
                                                   QB_CATALOGUE_RECORD_TYPED_)::qb::detail::EndOfList>;             \
  inline constexpr std::string_view kClassNames[] = {                                                               \
      ENDPOINTS(QB_CATALOGUE_CLASS_NAMES_BOTH_, QB_CATALOGUE_CLASS_NAME_ONE_, QB_CATALOGUE_CLASS_NAME_ONE_)         \
          RECORDS(QB_CATALOGUE_RECORD_NAME_BOTH_, QB_CATALOGUE_RECORD_NAME_ONE_, QB_CATALOGUE_RECORD_NAME_ONE_)};   \
  inline constexpr ::qb::EndpointNames kEndpointNames[] = {                                                         \
      ENDPOINTS(QB_CATALOGUE_NAMES_BOTH_, QB_CATALOGUE_NAMES_DICT_, QB_CATALOGUE_NAMES_TYPED_)};                    \
  }                                                                                                                 \
  }

namespace qb {

/// Whether a face class declares the same endpoint as its catalogue line (checked where the classes are
/// complete, by the domain's definitions).
constexpr bool sameEndpoint(const Endpoint& a, const Endpoint& b) {
  return a.path == b.path && a.verb == b.verb && a.auth == b.auth && a.faces == b.faces;
}

}  // namespace qb

namespace qb {

/// The classes of one face among a catalogue's records or endpoints. Responses need the requests to be
/// complete, so these are used where the domain's umbrella headers are included.
template <class Records>
struct DictionaryModelsOf;
template <class... R>
struct DictionaryModelsOf<TypeList<R...>> {
  using type =
      Concat<std::conditional_t<hasFace<typename R::Dictionary>, TypeList<typename R::Dictionary>, TypeList<>>...>;
};
template <class Records>
struct TypedModelsOf;
template <class... R>
struct TypedModelsOf<TypeList<R...>> {
  using type = Concat<std::conditional_t<hasFace<typename R::Typed>, TypeList<typename R::Typed>, TypeList<>>...>;
};
template <class Endpoints>
struct DictionaryMessagesOf;
template <class... A>
struct DictionaryMessagesOf<TypeList<A...>> {
  using type = Concat<std::conditional_t<hasFace<typename A::DictionaryMessage>,
                                         TypeList<typename A::DictionaryMessage>, TypeList<>>...>;
};
template <class Endpoints>
struct TypedRequestsOf;
template <class... A>
struct TypedRequestsOf<TypeList<A...>> {
  using type =
      Concat<std::conditional_t<hasFace<typename A::TypedRequest>, TypeList<typename A::TypedRequest>, TypeList<>>...>;
};
template <class Requests>
struct ResponsesOf;
template <class... R>
struct ResponsesOf<TypeList<R...>> {
  using type = TypeList<typename R::Response...>;
};

}  // namespace qb
