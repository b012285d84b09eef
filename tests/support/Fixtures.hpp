// Complete records and replies of the support domain, shared by both faces' tests (the faces use the same
// keys). Every key of every record is present, in declared order, with values both faces accept.
#pragma once

#include <string>

#include "cms/Fixtures.hpp"

namespace qb::fixtures::support {

using cms::kCmsStaticUrl;

inline const std::string kAutoReplyArticle =
    R"({"question": "Why do the leaves turn yellow?", "cms_static_url": )" + kCmsStaticUrl + "}";
inline const std::string kCmsFaqArticle = R"({"uid": "fa-1", "title": "Watering", "summary": "How often to water",
  "image_url": "https://i.example/fa.jpg", "type": 1, "feed_type": 2, "cms_static_url": )" +
                                          kCmsStaticUrl + "}";
inline const std::string kCmsFaqCategory = R"({"uid": "fc-1", "title": "Care", "summary": "Everyday care",
  "image_url": "https://i.example/fc.jpg", "cms_faq_article_list": [)" +
                                           kCmsFaqArticle + "]}";

inline const std::string kAutoReplyReply =
    R"({"classification": 4, "auto_reply_article": [)" + kAutoReplyArticle + ", " + kAutoReplyArticle + "]}";
inline const std::string kFaqReply = R"({"cms_faq_category_list": [)" + kCmsFaqCategory + "]}";

}  // namespace qb::fixtures::support
