// Gathers a domain's facts (Facts.hpp) from its catalogue. Included by facts_<domain>.cpp only, after
// that domain's face headers, so that each instantiation sees the complete classes of one domain.
#pragma once

#include <QBComponentAPI/frame/Catalogue.hpp>
#include <memory>

#include "catalogue/Facts.hpp"
#include "declarations.hpp"

namespace qb::test {

template <class Message>
CallFacts callOf(const Message& m) {
  CallFacts call{m.api(), m.methods(), m.forceHttps(), false, m.needAuth(), m.mustAuth(), m.mimeBodies().empty()};
  if constexpr (requires { m.binaryResponse(); }) call.binaryResponse = m.binaryResponse();
  return call;
}

template <class D>
FaceFacts dictionaryFace() {
  if constexpr (hasFace<D>) {
    return {true,
            className<D>(),
            std::string(D::kModelName),
            {dictionaryKeys<&D::qbFields>(), dictionaryRequiredKeys<&D::qbFields>(),
             dictionaryAlwaysSentKeys<&D::qbFields>()}};
  } else {
    return {};
  }
}

template <class T>
FaceFacts typedFace() {
  if constexpr (hasFace<T>) {
    auto required = typedRequiredKeys<T>();
    return {true, className<T>(), {}, {typedKeys<T>(), required, required}};
  } else {
    return {};
  }
}

template <class A, class Endpoints>
EndpointFacts endpointFacts() {
  using M = typename A::DictionaryMessage;
  using Q = typename A::TypedRequest;
  EndpointFacts facts;
  facts.endpoint = &A::endpoint;
  facts.repeatsPath = repeatsPath<A>(Endpoints{});
  if constexpr (hasFace<M>) {
    const std::string name = className<M>(), model(M::kModelName);
    facts.message = {true,
                     name,
                     model,
                     {dictionaryKeys<&M::qbParams>(), dictionaryRequiredKeys<&M::qbParams>(),
                      dictionaryAlwaysSentKeys<&M::qbParams>()}};
    facts.results = {true,
                     name,
                     model,
                     {dictionaryKeys<&M::qbResults>(), dictionaryRequiredKeys<&M::qbResults>(),
                      dictionaryAlwaysSentKeys<&M::qbResults>()}};
    facts.messageCall = callOf(*std::make_shared<M>());
  }
  if constexpr (hasFace<Q>) {
    facts.request = typedFace<Q>();
    facts.response = typedFace<typename Q::Response>();
    facts.requestCall = callOf(Q{});
  }
  return facts;
}

/// A domain's facts, from its catalogue's Endpoints and Records.
template <class... A, class... R>
DomainFacts factsOf(std::string_view name, TypeList<A...>, TypeList<R...>,
                    std::span<const std::string_view> classNames) {
  return {name,
          {endpointFacts<A, TypeList<A...>>()...},
          {RecordFacts{dictionaryFace<typename R::Dictionary>(), typedFace<typename R::Typed>()}...},
          classNames};
}

}  // namespace qb::test
