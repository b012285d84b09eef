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

#include <QBComponentAPI/cms/Cms.hpp>
#include <QBComponentAPI/item/Item.hpp>
#include <QBComponentAPI/share/Share.hpp>
#include <QBComponentAPI/support/Support.hpp>
#include <QBComponentAPI/user/User.hpp>
#include <QBComponentAPI/vip/Vip.hpp>
