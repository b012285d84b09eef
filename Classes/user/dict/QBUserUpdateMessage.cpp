#include <QBComponentAPI/user/dict/QBUserUpdateMessage.hpp>

std::vector<qb::QBMimeBody> qb::QBUserUpdateMessage::mimeBodies() const {
  auto data = avatar();
  if (!data) return {};
  return {QBMimeBody{"application/octet-stream", "avatar", "file", std::move(*data)}};
}
