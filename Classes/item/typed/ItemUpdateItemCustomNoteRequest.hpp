#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/typed/ItemUpdateItemCustomNoteResponse.hpp>

namespace qb {

/// update_item_custom_note: the user's own note on an item.
struct ItemUpdateItemCustomNoteRequest {
  std::int64_t itemId;
  std::string note;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("item_id", &ItemUpdateItemCustomNoteRequest::itemId),
                                                    qb::key("note", &ItemUpdateItemCustomNoteRequest::note));
  QB_TYPED_REQUEST(item::kUpdateItemCustomNote, ItemUpdateItemCustomNoteResponse)
  bool operator==(const ItemUpdateItemCustomNoteRequest&) const = default;
};
static_assert(APIEncodableRequest<ItemUpdateItemCustomNoteRequest>);

}  // namespace qb
