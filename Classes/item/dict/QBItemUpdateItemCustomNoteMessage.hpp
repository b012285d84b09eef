#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>

namespace qb {

/// update_item_custom_note: the user's own note on an item. The reply gives the note back as the server
/// stored it, with signed addresses.
class QBItemUpdateItemCustomNoteMessage final : public DictMessage<QBItemUpdateItemCustomNoteMessage> {
  QB_DICT_MESSAGE(QBItemUpdateItemCustomNoteMessage, "UpdateItemCustomNote", item::kUpdateItemCustomNote)
  static std::shared_ptr<QBItemUpdateItemCustomNoteMessage> initWithData(std::optional<JsonValue> itemId,
                                                                         std::optional<JsonValue> note) {
    return make<&Self::itemId_, &Self::note_>(std::move(itemId), std::move(note));
  }

  QB_VALUE(itemId, ItemId)
  QB_VALUE(note, Note)
  QB_PARAMS(QB_REQUIRED(itemId, "item_id"), QB_REQUIRED(note, "note"))

  QB_VALUE(notesWithSignedUrl, NotesWithSignedUrl)
  QB_RESULTS(QB_OPTIONAL(notesWithSignedUrl, "notes_with_signed_url"))
};

}  // namespace qb
