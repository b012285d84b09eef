#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of update_item_custom_note: the note as the server stored it, with signed addresses.
struct ItemUpdateItemCustomNoteResponse {
  std::string notesWithSignedUrl;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("notes_with_signed_url", &ItemUpdateItemCustomNoteResponse::notesWithSignedUrl));
  QB_TYPED_RESPONSE(ItemUpdateItemCustomNoteResponse)
  bool operator==(const ItemUpdateItemCustomNoteResponse&) const = default;
};
static_assert(APIDecodableResponse<ItemUpdateItemCustomNoteResponse>);

}  // namespace qb
