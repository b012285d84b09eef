#pragma once

#include <QBComponentAPI/cms/typed/BookModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of get_book_list.
struct CmsGetBookListResponse {
  std::vector<BookModel> books;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("books", &CmsGetBookListResponse::books));
  QB_TYPED_RESPONSE(CmsGetBookListResponse)
  bool operator==(const CmsGetBookListResponse&) const = default;
};
static_assert(APIDecodableResponse<CmsGetBookListResponse>);

}  // namespace qb
