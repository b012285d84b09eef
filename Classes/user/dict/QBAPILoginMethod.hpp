#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// One way in which an account can log in.
class QBAPILoginMethod final : public QBAPIModel {
  QB_DICT_MODEL(QBAPILoginMethod, "LoginMethod")
  QB_INTEGER(type, Type)
  QB_VALUE(loginName, LoginName)
  QB_FIELDS(QB_OPTIONAL(type, "type"), QB_REQUIRED(loginName, "login_name"))
};

}  // namespace qb
