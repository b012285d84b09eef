// The content catalogue's Typed-face decoding, instantiated from its catalogue.
#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>
#include <QBComponentAPI/cms/typed/CmsTyped.hpp>

QB_TYPED_DEFINE_DOMAIN(cms, QB_CMS_ENDPOINTS, QB_CMS_RECORDS)
