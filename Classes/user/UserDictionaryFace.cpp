// The account domain's Dictionary-face operations, defined from its catalogue.
#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/user/dict/UserDict.hpp>

QB_DICT_DEFINE_DOMAIN(user, QB_USER_ENDPOINTS, QB_USER_RECORDS)
