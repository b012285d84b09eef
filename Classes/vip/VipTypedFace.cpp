// The subscription domain's Typed-face decoding, instantiated from its catalogue.
#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>
#include <QBComponentAPI/vip/typed/VipTyped.hpp>

QB_TYPED_DEFINE_DOMAIN(vip, QB_VIP_ENDPOINTS, QB_VIP_RECORDS)

// The generic codecs of the same records (declared extern by the umbrella header).
QB_CODEC_DEFINE_DOMAIN(QB_VIP_ENDPOINTS, QB_VIP_RECORDS)
