// The support domain's Typed-face decoding, instantiated from its catalogue.
#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>
#include <QBComponentAPI/support/typed/SupportTyped.hpp>

QB_TYPED_DEFINE_DOMAIN(support, QB_SUPPORT_ENDPOINTS, QB_SUPPORT_RECORDS)

// The generic codecs of the same records (declared extern by the umbrella header).
QB_CODEC_DEFINE_DOMAIN(QB_SUPPORT_ENDPOINTS, QB_SUPPORT_RECORDS)
