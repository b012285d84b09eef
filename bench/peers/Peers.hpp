// The libraries and hand-written code the library is measured against. Each decoder fills the same
// records as qb::JSONDecoder, so the benchmark can compare their checksums; each throws on a reply
// that does not fit the record.
#pragma once

#include <boost/json/storage_ptr.hpp>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include "Records.hpp"

namespace qb::bench::peers {

[[noreturn]] inline void fail(std::string_view what) { throw std::runtime_error(std::string(what)); }

// simdjson On-Demand walking the whole reply and touching every value, with no records built: the
// parser's ceiling. Returns the document checksum (see hashJson).
std::uint64_t simdjsonWalk(std::string_view json);

// A hand-written simdjson On-Demand decoder: one `if` chain over the keys per record.
template <class T>
T decodeHandWritten(std::string_view json);

// Parse into the library's DOM, then read the record's members from it.
template <class T>
T decodeBoost(std::string_view json);
template <class T>
T decodeNlohmann(std::string_view json);
template <class T>
T decodeRapidjson(std::string_view json);

// Parse alone, into a DOM that is destroyed before returning; returns the number of top-level members
// so the work cannot be optimised away.
std::size_t parseBoost(std::string_view json, boost::json::storage_ptr storage = {});
std::size_t parseNlohmann(std::string_view json);

// Encoders for the same data: each holds its own library's value, built once from `json`.
class BoostWriter {
 public:
  explicit BoostWriter(std::string_view json);
  std::string write() const;

 private:
  boost::json::value value_;
};

class NlohmannWriter {
 public:
  explicit NlohmannWriter(std::string_view json);
  ~NlohmannWriter();
  std::string write() const;

 private:
  struct Value;
  Value* value_;
};

// Instantiates a peer's decode function for every reply record of the benchmark.
#define QB_BENCH_PEER_DECODERS(function)                                                    \
  template UserGetFaqResponse function<UserGetFaqResponse>(std::string_view);               \
  template UserList function<UserList>(std::string_view);                                   \
  template UserGetConfigResponse function<UserGetConfigResponse>(std::string_view);         \
  template UserInitialiseResponse function<UserInitialiseResponse>(std::string_view);       \
  template CmsGetCmsNameResponse function<CmsGetCmsNameResponse>(std::string_view);         \
  template CmsGetCmsNameListResponse function<CmsGetCmsNameListResponse>(std::string_view); \
  template ItemListMyCollectionsResponse function<ItemListMyCollectionsResponse>(std::string_view);

}  // namespace qb::bench::peers
