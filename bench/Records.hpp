// The records the benchmarks decode and encode, in both faces: the library's own (accounts, the content
// catalogue and the item collection), plus `UserList` and `QBBenchUserListMessage`, which exist only
// here to give the user record a collection-shaped reply.
#pragma once

#include <QBComponentAPI/cms/dict/CmsDict.hpp>
#include <QBComponentAPI/cms/typed/CmsTyped.hpp>
#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/dict/ItemDict.hpp>
#include <QBComponentAPI/item/typed/ItemTyped.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/dict/QBAPIClientConfig.hpp>
#include <QBComponentAPI/user/dict/QBAPIFaq.hpp>
#include <QBComponentAPI/user/dict/QBAPIUser.hpp>
#include <QBComponentAPI/user/dict/QBAPIUserAdditionalData.hpp>
#include <QBComponentAPI/user/dict/QBUserGetConfigMessage.hpp>
#include <QBComponentAPI/user/dict/QBUserGetFaqMessage.hpp>
#include <QBComponentAPI/user/dict/QBUserInitialiseMessage.hpp>
#include <QBComponentAPI/user/typed/UserGetConfigResponse.hpp>
#include <QBComponentAPI/user/typed/UserGetFaqResponse.hpp>
#include <QBComponentAPI/user/typed/UserInitialiseResponse.hpp>
#include <QBComponentAPI/user/typed/UserModel.hpp>
#include <vector>

namespace qb::bench {

using qb::AutoUpdateModel;
using qb::ClientConfigModel;
using qb::CmsArticleModel;
using qb::CmsDiseaseModel;
using qb::CmsGetCmsNameListResponse;
using qb::CmsGetCmsNameResponse;
using qb::CmsImageModel;
using qb::CmsLayoutModel;
using qb::CmsNameModel;
using qb::CmsStaticUrlModel;
using qb::CmsTagModel;
using qb::CmsTitleModel;
using qb::CmsVideoModel;
using qb::CopyrightModel;
using qb::DiagnoseDetectModel;
using qb::DiagnoseDetectRegionModel;
using qb::FaqModel;
using qb::ItemImageModel;
using qb::ItemListMyCollectionsResponse;
using qb::LegalConfigModel;
using qb::QBCmsGetCmsNameListMessage;
using qb::QBCmsGetCmsNameMessage;
using qb::QBItemListMyCollectionsMessage;
using qb::QBUserGetConfigMessage;
using qb::QBUserGetFaqMessage;
using qb::QBUserInitialiseMessage;
using qb::SimpleCmsDiseaseModel;
using qb::SimpleCmsNameModel;
using qb::SimpleItemModel;
using qb::TaxonomyNameModel;
using qb::UserAdditionalDataModel;
using qb::UserGetConfigResponse;
using qb::UserGetFaqResponse;
using qb::UserInitialiseResponse;
using qb::UserModel;

// Many users in one reply: the user record in a collection-shaped reply.
struct UserList {
  std::vector<UserModel> users;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("users", &UserList::users));
  QB_TYPED_RESPONSE(UserList)
  bool operator==(const UserList&) const = default;
};

// The Dictionary face of UserList.
class QBBenchUserListMessage final : public DictMessage<QBBenchUserListMessage> {
  QB_DICT_MESSAGE(QBBenchUserListMessage, "BenchUserList", user::kGetUser)
  QB_INTEGER(languageCode, LanguageCode)
  QB_PARAMS(QB_OPTIONAL(languageCode, "language_code"))
  QB_MODEL_LIST(QBAPIUser, users, Users)
  QB_RESULTS(QB_OPTIONAL(users, "users"))
};

}  // namespace qb::bench
