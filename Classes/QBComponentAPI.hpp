// QBComponentAPI: everything an app needs, in one include.
#pragma once

#include "frame/Codable.hpp"
#include "frame/Date.hpp"
#include "frame/DictModel.hpp"
#include "frame/Endpoint.hpp"
#include "frame/Enum.hpp"
#include "frame/Errors.hpp"
#include "frame/HostTypes.hpp"
#include "frame/JSONDecoder.hpp"
#include "frame/JSONEncoder.hpp"
#include "frame/Json.hpp"
#include "frame/JsonValueCodec.hpp"
#include "frame/Protocols.hpp"
#include "frame/QBMessageBase.hpp"

#include "user/UserEndpoints.hpp"
#include "user/dict/UserDict.hpp"
#include "user/enums/UserEnums.hpp"
#include "user/typed/UserTyped.hpp"
