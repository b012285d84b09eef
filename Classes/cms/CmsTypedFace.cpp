// The content catalogue's Typed-face decoding, instantiated from its catalogue.
#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>
#include <QBComponentAPI/cms/typed/CmsTyped.hpp>

QB_TYPED_DEFINE_DOMAIN(cms, QB_CMS_ENDPOINTS, QB_CMS_RECORDS)

// The generic codecs of the same records (declared extern by the umbrella header).
QB_CODEC_DEFINE_DOMAIN(QB_CMS_ENDPOINTS, QB_CMS_RECORDS)
