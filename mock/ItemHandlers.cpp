// The item collection in the mock service (being written).
#include <QBComponentAPI/item/ItemCatalogue.hpp>

#include "mock/Handlers.hpp"

namespace qb::mock {

HandlerTable itemHandlers(Extras&) {
  auto pending = [](Call&) -> JsonMap { throw Failure{501, "not_implemented", "not answered yet"}; };
  return {{item::kGetItemDetail.path, pending},
          {item::kListMyCollections.path, pending},
          {item::kListMyCollectionsPage.path, pending},
          {item::kDeleteItem.path, pending},
          {item::kBatchDeleteItems.path, pending},
          {item::kChangeItemCmsName.path, pending},
          {item::kUpdateItemCustomName.path, pending},
          {item::kUpdateItemCustomNote.path, pending},
          {item::kUpdateItemLocation.path, pending},
          {item::kUpdateItemOriginalImageUrl.path, pending},
          {item::kUpdateItemOriginalDetImageUrl.path, pending},
          {item::kItemDeleteCandidateUser.path, pending},
          {item::kItemDeleteNotified.path, pending},
          {item::kCheckUserBuyCloudStorage.path, pending}};
}

}  // namespace qb::mock
