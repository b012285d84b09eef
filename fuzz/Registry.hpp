// The records the fuzz targets exercise, one list per face, taken from the domain catalogues: a new
// record or endpoint is fuzzed as soon as its catalogue line exists. The first input byte picks the
// record, so no new target is needed.
#pragma once

#include <QBComponentAPI/QBComponentAPI.hpp>
#include <cstddef>
#include <cstdint>

namespace qb::fuzz {

using DictModels = DictionaryModelsOf<AllRecords>::type;
using DictMessages = DictionaryMessagesOf<AllEndpoints>::type;
using TypedRecords = Concat<TypedModelsOf<AllRecords>::type, ResponsesOf<TypedRequestsOf<AllEndpoints>::type>::type>;

// Calls f.template operator()<T>() for the type at `selector` modulo the list's size.
template <class... T, class F>
void dispatch(TypeList<T...>, std::uint8_t selector, F&& f) {
  std::size_t index = 0;
  const std::size_t wanted = selector % sizeof...(T);
  (void)((index++ == wanted ? (f.template operator()<T>(), true) : false) || ...);
}

}  // namespace qb::fuzz
