// Customer support in the mock service. Until the support handlers land, every support endpoint answers
// 501, so that the routes exist and the rest of the service can be used.
#include <QBComponentAPI/support/SupportCatalogue.hpp>

#include "mock/Handlers.hpp"

namespace qb::mock {

HandlerTable supportHandlers(Extras&) {
  auto pending = [](Call&) -> JsonMap { throw Failure{501, "not_implemented", "not answered yet"}; };
  return {{support::kGetCustomerSupportAutoReply.path, pending},
          {support::kGetFaqFromCms.path, pending},
          {support::kGetPopularFaqFromCms.path, pending},
          {support::kSendSupportTicket.path, pending}};
}

}  // namespace qb::mock
