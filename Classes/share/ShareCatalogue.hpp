// Share links for catalogue content: every endpoint and every record, once (see frame/Catalogue.hpp).
#pragma once

#include <QBComponentAPI/frame/Catalogue.hpp>

/// constant, path, verb, authentication, Dictionary-face message, Typed-face request
#define QB_SHARE_ENDPOINTS(BOTH, DICT, TYPED) \
  TYPED(kGetCmsShareUrls, "v3/share/get_cms_share_urls", get, required, ShareGetCmsShareUrlsRequest)

/// Dictionary-face model, Typed-face model
#define QB_SHARE_RECORDS(BOTH, DICT, TYPED) TYPED(ShareUrlModel)

QB_CATALOGUE(share, QB_SHARE_ENDPOINTS, QB_SHARE_RECORDS)
