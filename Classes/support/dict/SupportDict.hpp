// Every Dictionary-face class of the support domain, and the content record its articles embed.
#pragma once

#include <QBComponentAPI/cms/dict/QBAPICmsStaticUrl.hpp>
#include <QBComponentAPI/support/SupportCatalogue.hpp>
#include <QBComponentAPI/support/dict/QBSupportSendSupportTicketMessage.hpp>
#include <QBComponentAPI/support/dict/SPAPIAutoReplyArticle.hpp>
#include <QBComponentAPI/support/dict/SPAPICmsFaqArticle.hpp>
#include <QBComponentAPI/support/dict/SPAPICmsFaqCategory.hpp>
#include <QBComponentAPI/support/dict/SPSupportGetCustomerSupportAutoReplyMessage.hpp>
#include <QBComponentAPI/support/dict/SPSupportGetFaqFromCmsMessage.hpp>
#include <QBComponentAPI/support/dict/SPSupportGetPopularFaqFromCmsMessage.hpp>
#include <QBComponentAPI/support/dict/SPSupportSendSupportTicketMessage.hpp>
