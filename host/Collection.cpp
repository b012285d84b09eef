#include <QBComponentAPI/host/Collection.hpp>

#include <QBComponentAPI/item/typed/ItemTyped.hpp>
#include <utility>

namespace qb::host {

Collection Client::collection(CollectionOptions options) { return Collection(*this, std::move(options)); }

Collection::Collection(Client& client, CollectionOptions options)
    : client_(&client), options_(std::move(options)), cursor_(options_.after) {
  if (options_.pageSize < 1) throw qb::Error("a collection page holds at least one item");
}

Collection::iterator Collection::begin() {
  if (!started_) fetch();
  return iterator(this);
}

// Asks for the page after the cursor; until it arrives the range keeps the page it had (an error leaves
// the range where it was, so the same increment can be tried again).
void Collection::fetch() {
  ItemListMyCollectionsPageRequest request{.pageSize = options_.pageSize, .lastItemId = cursor_};
  std::vector<SimpleItemModel> items = client_->send(request).items;
  started_ = true;
  ++pages_;
  // A page holding the item it was to start after would have the range go round in circles.
  for (const SimpleItemModel& item : items) {
    if (cursor_ && item.itemId == *cursor_) {
      throw PagingError("list_my_collections_page answered a page holding item " + std::to_string(*cursor_) +
                        ", which it was asked to start after");
    }
  }
  last_ = items.size() < static_cast<std::size_t>(options_.pageSize);
  page_ = std::move(items);
  index_ = 0;
  if (!page_.empty()) cursor_ = page_.front().itemId;
}

void Collection::advance() {
  if (index_ + 1 < page_.size()) {
    cursor_ = page_[++index_].itemId;
    return;
  }
  if (last_) {
    index_ = page_.size();
    return;
  }
  fetch();
}

}  // namespace qb::host
