// The share domain's Typed-face decoding, instantiated from its catalogue.
#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>
#include <QBComponentAPI/share/typed/ShareTyped.hpp>

QB_TYPED_DEFINE_DOMAIN(share, QB_SHARE_ENDPOINTS, QB_SHARE_RECORDS)

// The generic codecs of the same records (declared extern by the umbrella header).
QB_CODEC_DEFINE_DOMAIN(QB_SHARE_ENDPOINTS, QB_SHARE_RECORDS)
