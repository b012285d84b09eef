// Arguments for every content and share endpoint, shared by the end-to-end tests that call them all.
#pragma once

#include <map>
#include <string_view>

namespace qb {

// Parameters for each content and share endpoint, as the tool takes them: valid against the mock service's
// seeded catalogue.
inline const std::map<std::string_view, const char*> kContentArguments{
    {"v3/cms/articles", R"({"content_type": "care", "language_code": 0})"},
    {"v3/cms/get_cms_name", R"({"cms_name_uid": "monstera-deliciosa", "language_code": 0, "country_code": "US"})"},
    {"v3/cms/get_cms_name_list",
     R"({"cms_name_uids": ["ficus-lyrata", "epipremnum-aureum"], "language_code": 0, "country_code": "US"})"},
    {"v3/cms/get_cms_name_lists", R"({"content_type": "easy", "language_code": 0, "country_code": "US"})"},
    {"v3/cms/get_static_content", R"({"content_type": "terms", "language_code": 0, "country_code": "US"})"},
    {"v3/cms/get_static_url", R"({"content_type": "about", "language_code": 0, "country_code": "US", "uid": "u"})"},
    {"v3/cms/user_feedback",
     R"({"user_id": "9007199254740993", "language_code": 0, "country_code": "US", "device_type": 1,
        "device_os": "iOS 17", "device_model": "iPhone", "app_version": "2.1", "product_name": "app",
        "feedback_type": "content", "content": "Lovely"})"},
    {"v3/cms/get_simple_cms_name_list",
     R"({"cms_name_uids": ["calathea-orbifolia"], "language_code": 0, "country_code": "US"})"},
    {"v3/cms/get_name_list", R"({"language_code": 0, "country_code": "US", "category": "easy"})"},
    {"v3/cms/list_simple_items", R"({"language_code": 0, "country_code": "US", "content_type": "easy"})"},
    {"v3/cms/get_book_list", R"({"language_code": 0, "country_code": "US"})"},
    {"v3/share/get_cms_share_urls",
     R"({"uid": "monstera-deliciosa", "content_types": ["name", "care"], "language_code": 0, "country_code": "US",
        "share_ids": ["s1"]})"},
};

}  // namespace qb
