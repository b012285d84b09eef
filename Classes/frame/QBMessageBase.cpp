#include <QBComponentAPI/frame/QBMessageBase.hpp>

namespace qb {

std::vector<QBMimeBody> QBMessageBase::mimeBodies() const { return {}; }

QBMessageBase& QBMessageBase::parseResponseBytes(JsonText reply) { return parseResponse(parseJsonMap(reply)); }

}  // namespace qb
