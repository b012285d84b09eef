// A GoogleMock transport, so that apps can test code that uses qb::host::Client without a network.
#pragma once

#include <gmock/gmock.h>

#include <QBComponentAPI/host/Transport.hpp>

namespace qb::host {

class MockTransport : public Transport {
 public:
  MOCK_METHOD(HttpResponse, send, (const HttpRequest& request), (override));
};

}  // namespace qb::host
