// The signed-in user's whole collection as a C++20 input range, fetched page by page on demand:
//
//   for (const qb::SimpleItemModel& item : client.collection({.pageSize = 50})) show(item);
//
// Each page is one list_my_collections_page call whose last_item_id is the id of the last item already
// received; the range ends after an empty page or one shorter than the page size. Errors of a call
// (qb::host::HttpError, TransportError, a DecodingError of a bad reply...) are thrown from begin() or
// from the increment that needed the page, and leave the range where it was.
//
// To stop and resume later, keep cursor(), the id of the last item the range handed out, and pass it as
// `after`: the new range starts with the item that follows it, with nothing repeated or skipped.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <vector>

#include <QBComponentAPI/host/Client.hpp>
#include <QBComponentAPI/item/typed/SimpleItemModel.hpp>

namespace qb::host {

struct CollectionOptions {
  std::int64_t pageSize = 50;                         ///< items asked for per call; below 1 throws qb::Error
  std::optional<std::int64_t> after = std::nullopt;  ///< a saved cursor(): start after this item
};

/// A page held the item it was asked to start after, so paging would not advance.
class PagingError : public HostError {
 public:
  using HostError::HostError;
};

/// Single-pass: iterate it once, from one thread. It refers to the client, which must outlive it.
class Collection {
 public:
  class iterator {
   public:
    using value_type = SimpleItemModel;
    using difference_type = std::ptrdiff_t;
    using reference = const SimpleItemModel&;

    iterator() = default;
    reference operator*() const { return owner_->page_[owner_->index_]; }
    const SimpleItemModel* operator->() const { return &**this; }
    iterator& operator++() {
      owner_->advance();
      return *this;
    }
    void operator++(int) { ++*this; }
    friend bool operator==(const iterator& it, std::default_sentinel_t) { return !it.owner_ || it.owner_->done(); }

   private:
    friend class Collection;
    explicit iterator(Collection* owner) : owner_(owner) {}
    Collection* owner_ = nullptr;
  };

  Collection(Client& client, CollectionOptions options);

  /// Fetches the first page unless one is held already.
  iterator begin();
  std::default_sentinel_t end() const noexcept { return {}; }

  /// The id of the last item handed out (the one the iterator is at), or the starting `after` before any.
  std::optional<std::int64_t> cursor() const noexcept { return cursor_; }
  /// Pages asked for so far.
  std::size_t pagesFetched() const noexcept { return pages_; }
  /// True once every item has been handed out.
  bool done() const noexcept { return index_ >= page_.size() && last_; }

 private:
  void fetch();
  void advance();

  Client* client_;
  CollectionOptions options_;
  std::vector<SimpleItemModel> page_;
  std::size_t index_ = 0;
  bool last_ = false;     ///< no page follows the one held
  bool started_ = false;  ///< the first page has been asked for
  std::optional<std::int64_t> cursor_;
  std::size_t pages_ = 0;
};

static_assert(std::input_iterator<Collection::iterator>);
static_assert(std::sentinel_for<std::default_sentinel_t, Collection::iterator>);

}  // namespace qb::host
