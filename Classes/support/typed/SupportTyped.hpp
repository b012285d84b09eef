// Every Typed-face record of the support domain.
#pragma once

#include <QBComponentAPI/frame/CodecInstances.hpp>
#include <QBComponentAPI/support/SupportCatalogue.hpp>
#include <QBComponentAPI/support/typed/AutoReplyArticleModel.hpp>
#include <QBComponentAPI/support/typed/CmsFaqArticleModel.hpp>
#include <QBComponentAPI/support/typed/CmsFaqCategoryModel.hpp>
#include <QBComponentAPI/support/typed/SupportGetCustomerSupportAutoReplyRequest.hpp>
#include <QBComponentAPI/support/typed/SupportGetCustomerSupportAutoReplyResponse.hpp>
#include <QBComponentAPI/support/typed/SupportGetFaqFromCmsRequest.hpp>
#include <QBComponentAPI/support/typed/SupportGetFaqFromCmsResponse.hpp>
#include <QBComponentAPI/support/typed/SupportGetPopularFaqFromCmsRequest.hpp>
#include <QBComponentAPI/support/typed/SupportGetPopularFaqFromCmsResponse.hpp>
#include <QBComponentAPI/support/typed/SupportSendSupportTicketRequest.hpp>
#include <QBComponentAPI/support/typed/SupportSendSupportTicketResponse.hpp>

// The generic codecs of these records are compiled once, by the domain's .cpp file.
QB_CODEC_EXTERN_DOMAIN(QB_SUPPORT_ENDPOINTS, QB_SUPPORT_RECORDS)
