// QBComponentAPI: everything an app needs, in one include.
#pragma once

#include <QBComponentAPI/Catalogues.hpp>
#include <QBComponentAPI/frame/Catalogue.hpp>
#include <QBComponentAPI/frame/Codable.hpp>
#include <QBComponentAPI/frame/Date.hpp>
#include <QBComponentAPI/frame/Declarations.hpp>
#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/frame/Endpoint.hpp>
#include <QBComponentAPI/frame/Enum.hpp>
#include <QBComponentAPI/frame/Errors.hpp>
#include <QBComponentAPI/frame/HostTypes.hpp>
#include <QBComponentAPI/frame/JSONDecoder.hpp>
#include <QBComponentAPI/frame/JSONEncoder.hpp>
#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/frame/JsonValueCodec.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/frame/QBMessageBase.hpp>

#include <QBComponentAPI/cms/CmsTagValues.hpp>
#include <QBComponentAPI/cms/dict/CmsDict.hpp>
#include <QBComponentAPI/cms/enums/CmsEnums.hpp>
#include <QBComponentAPI/cms/typed/CmsTyped.hpp>
#include <QBComponentAPI/item/dict/ItemDict.hpp>
#include <QBComponentAPI/item/typed/ItemTyped.hpp>
#include <QBComponentAPI/share/typed/ShareTyped.hpp>
#include <QBComponentAPI/support/dict/SupportDict.hpp>
#include <QBComponentAPI/support/enums/SupportEnums.hpp>
#include <QBComponentAPI/support/typed/SupportTyped.hpp>
#include <QBComponentAPI/user/dict/UserDict.hpp>
#include <QBComponentAPI/user/enums/UserEnums.hpp>
#include <QBComponentAPI/user/typed/UserTyped.hpp>
#include <QBComponentAPI/vip/dict/VipDict.hpp>
#include <QBComponentAPI/vip/typed/VipTyped.hpp>
