// The account domain's Typed-face decoding, instantiated from its catalogue.
#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>
#include <QBComponentAPI/user/typed/UserTyped.hpp>

QB_TYPED_DEFINE_DOMAIN(user, QB_USER_ENDPOINTS, QB_USER_RECORDS)

// The generic codecs of the same records (declared extern by the umbrella header).
QB_CODEC_DEFINE_DOMAIN(QB_USER_ENDPOINTS, QB_USER_RECORDS)
