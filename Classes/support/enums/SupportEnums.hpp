// Every enumeration of the support domain.
#pragma once

#include <QBComponentAPI/support/enums/AutoReplyClassification.hpp>
#include <QBComponentAPI/support/enums/SupportType.hpp>
