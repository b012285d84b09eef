// Every Typed-face record of the share domain.
#pragma once

#include <QBComponentAPI/share/ShareCatalogue.hpp>
#include <QBComponentAPI/share/typed/ShareGetCmsShareUrlsRequest.hpp>
#include <QBComponentAPI/share/typed/ShareGetCmsShareUrlsResponse.hpp>
#include <QBComponentAPI/share/typed/ShareUrlModel.hpp>
