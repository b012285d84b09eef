// The item collection's Typed-face decoding, instantiated from its catalogue.
#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>
#include <QBComponentAPI/item/typed/ItemTyped.hpp>

QB_TYPED_DEFINE_DOMAIN(item, QB_ITEM_ENDPOINTS, QB_ITEM_RECORDS)

// The generic codecs of the same records (declared extern by the umbrella header).
QB_CODEC_DEFINE_DOMAIN(QB_ITEM_ENDPOINTS, QB_ITEM_RECORDS)
