// The generic codecs (JsonValueDecoder, JsonValueEncoder, JSONEncoder) compiled once per domain. A
// domain's Typed-face umbrella header declares them `extern template` for every record, request and
// response of its catalogue, and the domain's .cpp file instantiates them: a program that includes the
// umbrella headers then compiles none of the codecs itself, however many records it uses.
#pragma once

#include <string>

#include <QBComponentAPI/frame/JSONEncoder.hpp>
#include <QBComponentAPI/frame/JsonValueCodec.hpp>

#define QB_CODEC_INSTANCES_(prefix, T)                                                     \
  prefix template T qb::JsonValueDecoder::decode<T>(const ::qb::JsonValue&) const;         \
  prefix template ::qb::JsonValue qb::JsonValueEncoder::encode<T>(const T&) const;         \
  prefix template std::string qb::JSONEncoder::encode<T>(const T&) const;

#define QB_CODEC_EXTERN_API_BOTH_(constant, path, verb, auth, Message, Request) \
  QB_CODEC_EXTERN_API_TYPED_(constant, path, verb, auth, Request)
#define QB_CODEC_EXTERN_API_TYPED_(constant, path, verb, auth, Request) \
  QB_CODEC_INSTANCES_(extern, qb::Request) QB_CODEC_INSTANCES_(extern, qb::Request::Response)
#define QB_CODEC_DEFINE_API_BOTH_(constant, path, verb, auth, Message, Request) \
  QB_CODEC_DEFINE_API_TYPED_(constant, path, verb, auth, Request)
#define QB_CODEC_DEFINE_API_TYPED_(constant, path, verb, auth, Request) \
  QB_CODEC_INSTANCES_(, qb::Request) QB_CODEC_INSTANCES_(, qb::Request::Response)
#define QB_CODEC_SKIP_API_DICT_(constant, path, verb, auth, Message)
#define QB_CODEC_EXTERN_RECORD_BOTH_(Dictionary, Typed) QB_CODEC_INSTANCES_(extern, qb::Typed)
#define QB_CODEC_EXTERN_RECORD_TYPED_(Typed) QB_CODEC_INSTANCES_(extern, qb::Typed)
#define QB_CODEC_DEFINE_RECORD_BOTH_(Dictionary, Typed) QB_CODEC_INSTANCES_(, qb::Typed)
#define QB_CODEC_DEFINE_RECORD_TYPED_(Typed) QB_CODEC_INSTANCES_(, qb::Typed)
#define QB_CODEC_SKIP_RECORD_DICT_(Dictionary)

/// At the end of a domain's Typed-face umbrella header, at global scope.
#define QB_CODEC_EXTERN_DOMAIN(ENDPOINTS, RECORDS)                                          \
  ENDPOINTS(QB_CODEC_EXTERN_API_BOTH_, QB_CODEC_SKIP_API_DICT_, QB_CODEC_EXTERN_API_TYPED_) \
  RECORDS(QB_CODEC_EXTERN_RECORD_BOTH_, QB_CODEC_SKIP_RECORD_DICT_, QB_CODEC_EXTERN_RECORD_TYPED_)

/// In the domain's Typed-face .cpp file, after its umbrella header, at global scope.
#define QB_CODEC_DEFINE_DOMAIN(ENDPOINTS, RECORDS)                                          \
  ENDPOINTS(QB_CODEC_DEFINE_API_BOTH_, QB_CODEC_SKIP_API_DICT_, QB_CODEC_DEFINE_API_TYPED_) \
  RECORDS(QB_CODEC_DEFINE_RECORD_BOTH_, QB_CODEC_SKIP_RECORD_DICT_, QB_CODEC_DEFINE_RECORD_TYPED_)
