// Decoding and Dictionary-face operations of the bench-only records, instantiated as a record's own
// .cpp file would.
#include "Records.hpp"

#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::bench::UserList)
QB_DICT_MESSAGE_DEFINE(qb::bench::QBBenchUserListMessage)
