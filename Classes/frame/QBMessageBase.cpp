#include <QBComponentAPI/frame/QBMessageBase.hpp>

namespace qb {

std::vector<QBMimeBody> QBMessageBase::mimeBodies() const { return {}; }

}  // namespace qb
