// Complete replies of every account record, shared by both faces' tests (the faces use the same keys).
#pragma once

#include <string>

namespace qb::fixtures {

inline const std::string kThirdParty = R"({"nickname": "Fern", "avatar_url": "https://a.example/f.png", "gender": 2,
  "email": "fern@example.com"})";
inline const std::string kIos = R"({"idfa": "IDFA-1", "idfv": "IDFV-1"})";
inline const std::string kAndroid = R"({"gaid": "GAID-1"})";
inline const std::string kDeviceDetail = R"({"apps_flyer_id": "af-1", "apps_flyer_advertising_id": "ad-1",
  "apps_flyer_att": 3, "adjust_id": "aj-1", "ios_device_data": )" + kIos + R"(, "android_device_data": )" + kAndroid +
  R"(, "country_code": "US", "language": "en", "app_version": "2.1.0", "device_os": "iOS 17.1",
  "device_model": "iPhone15,2"})";
inline const std::string kDevice = R"({"device_type": 1, "device_token": "tok-1", "device_detail_info": )" +
  kDeviceDetail + "}";
inline const std::string kUser = R"({"user_id": 9007199254740993, "uuid": "5f0c-\u00e9\"x\"", "nickname": "Fern 🌿",
  "avatar_url": "https://a.example/1.png", "gender": 1, "email": "fern@example.com", "created_at": 1700000000,
  "guest_user": false, "vip": true, "auto_renew_status": 3, "expert_consultation_count": 2,
  "app_init_version": "1.0.0", "properties": {"theme": "dark", "n": [1, 2.5, null]}})";
inline const std::string kUserAdditional = R"({"exist_user": true, "today_user": false, "is_vip_in_history": false,
  "email_notification_enabled": true, "grows_price_label": "A"})";
inline const std::string kLoginInfo = R"({"login_type": 3, "login_key": "fern@example.com", "login_password": "pw",
  "third_party_user_info": )" + kThirdParty + "}";
inline const std::string kLoginMethod = R"({"type": 7, "login_name": "fern"})";
inline const std::string kVipInfo = R"({"user_id": 9007199254740993, "is_vip": true, "is_trial": false,
  "is_auto_renew": true, "is_vip_in_history": true, "is_paid_in_history": true, "is_refund_in_history": false,
  "is_trial_and_expired": false, "vip_level": 2, "sku": "pro.year", "start_at": 1700000000,
  "expired_at": 1731536000, "purchase_subscription_skus": ["pro.month", "pro.year"]})";
inline const std::string kAutoUpdate = R"({"has_update": true, "force_update": false})";
inline const std::string kLegal = R"({"agreement_url": "https://l.example/a", "agreement_version": 4,
  "next_agreement_url": "https://l.example/n", "next_agreement_version": 5, "next_agreement_available_at": 1700000000,
  "third_party_notices_url": "https://l.example/t", "privacy_policy_url": "https://l.example/p",
  "data_management_url": "https://l.example/d", "privacy_policy_version": 7})";
inline const std::string kClientConfig = R"({"auto_update": )" + kAutoUpdate +
  R"(, "expert_default_count": 3, "share_app_url": "https://s.example", "timestamp": 1700000000, "legal_config": )" +
  kLegal + "}";
inline const std::string kFaq = R"({"title": "How?", "content": "Like <b>this</b>.", "faq_type": 1})";

inline const std::string kLoginReply = R"({"user": )" + kUser + R"(, "user_additional_data": )" + kUserAdditional +
  R"(, "access_token": "token-1"})";
inline const std::string kInitialiseReply = R"({"user": )" + kUser + R"(, "user_additional_data": )" +
  kUserAdditional + R"(, "access_token": "token-1", "config": )" + kClientConfig +
  R"(, "other_configs": {"x": 1}, "app_server_time": 1700000000.5, "country": "US"})";

}  // namespace qb::fixtures
