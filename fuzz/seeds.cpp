// Writes the seed corpora: every complete reply of the tests, once per record selector, so the fuzzers
// start from valid records of every kind.
#include <filesystem>
#include <fstream>
#include <iostream>

#include "fuzz/Registry.hpp"
#include "cms/Fixtures.hpp"
#include "item/Fixtures.hpp"
#include "support/Fixtures.hpp"
#include "user/Fixtures.hpp"
#include "vip/Fixtures.hpp"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: qb_fuzz_seeds <corpus directory>\n";
    return 2;
  }
  using namespace qb::fixtures;
  const std::string replies[] = {kUser,
                                 kUserAdditional,
                                 kLoginInfo,
                                 kLoginMethod,
                                 kThirdParty,
                                 kVipInfo,
                                 kDevice,
                                 kDeviceDetail,
                                 kIos,
                                 kAndroid,
                                 kClientConfig,
                                 kAutoUpdate,
                                 kLegal,
                                 kFaq,
                                 kInitialiseReply,
                                 kLoginReply,
                                 R"({"faqs": [)" + kFaq + "]}",
                                 R"({"apple_user_id": "a"})",
                                 cms::kCmsName,
                                 cms::kCmsNameList,
                                 cms::kCmsDisease,
                                 cms::kCmsContent,
                                 cms::kCmsMain,
                                 cms::kCmsTaxonomyName,
                                 cms::kDiagnoseDetect,
                                 cms::kSimpleCmsItem,
                                 cms::kBook,
                                 R"({"cms_name": )" + cms::kCmsName + "}",
                                 R"({"cms_name_list": [)" + cms::kCmsName + "]}",
                                 R"({"articles": [)" + cms::kCmsArticle + "]}",
                                 R"({"share_urls": [)" + cms::kShareUrl + "]}",
                                 item::kItemImage,
                                 item::kSimpleItem,
                                 item::kItemDetail,
                                 R"({"item": )" + item::kItemDetail + "}",
                                 R"({"items": [)" + item::kSimpleItem + "]}",
                                 R"({"notes_with_signed_url": "n", "has_buy_cloud_storage": true})",
                                 support::kAutoReplyArticle,
                                 support::kCmsFaqArticle,
                                 support::kCmsFaqCategory,
                                 support::kAutoReplyReply,
                                 support::kFaqReply,
                                 vip::kVerifyResult,
                                 vip::kRestoreResult};
  const std::filesystem::path root(argv[1]);
  for (const char* target : {"fuzz_dict", "fuzz_typed"}) {
    std::filesystem::create_directories(root / target);
    int n = 0;
    for (const auto& reply : replies) {
      for (int selector = 0; selector < 256; selector += 7) {
        std::ofstream out(root / target / ("seed-" + std::to_string(n++)), std::ios::binary);
        out << static_cast<char>(selector) << reply;
      }
    }
  }
  return 0;
}
