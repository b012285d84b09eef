#include <QBComponentAPI/user/dict/QBUserUpdateMessage.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MESSAGE_DEFINE(qb::QBUserUpdateMessage)

std::vector<qb::QBMimeBody> qb::QBUserUpdateMessage::mimeBodies() const {
  auto data = avatar();
  if (!data) return {};
  return {QBMimeBody{"application/octet-stream", "avatar", "file", std::move(*data)}};
}
