// Every Typed-face record of the share domain.
#pragma once

#include <QBComponentAPI/share/ShareCatalogue.hpp>
#include <QBComponentAPI/share/typed/ShareGetCmsShareUrlsRequest.hpp>
#include <QBComponentAPI/share/typed/ShareGetCmsShareUrlsResponse.hpp>
#include <QBComponentAPI/share/typed/ShareUrlModel.hpp>

#include <QBComponentAPI/frame/CodecInstances.hpp>

// The generic codecs of these records are compiled once, by the domain's .cpp file.
QB_CODEC_EXTERN_DOMAIN(QB_SHARE_ENDPOINTS, QB_SHARE_RECORDS)
