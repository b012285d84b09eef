// Decoding and Dictionary-face operations of the bench-local records, instantiated as a record's own
// .cpp file would.
#include "Records.hpp"

#include "frame/detail/DictEngine.hpp"
#include "frame/detail/JSONDecoderImpl.hpp"
#include "user/dict/QBAPIClientConfig.hpp"

QB_TYPED_DEFINE(qb::bench::UserGetFaqResponse)
QB_TYPED_DEFINE(qb::bench::UserInitialiseResponse)
QB_TYPED_DEFINE(qb::bench::UserList)

QB_DICT_MODEL_DEFINE(qb::bench::QBAPIFaq)
QB_DICT_MODEL_DEFINE(qb::bench::QBAPIUser)
QB_DICT_MODEL_DEFINE(qb::bench::QBAPIUserAdditionalData)
QB_DICT_MESSAGE_DEFINE(qb::bench::QBUserGetFaqMessage)
QB_DICT_MESSAGE_DEFINE(qb::bench::QBUserInitialiseMessage)
QB_DICT_MESSAGE_DEFINE(qb::bench::QBBenchUserListMessage)
