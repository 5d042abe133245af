#pragma once

#include <QTcpServer>
#include <memory>

namespace korvane::test {

/// A server with a certificate that it made itself, and for another name.
std::unique_ptr<QTcpServer> UntrustedServer();

} // namespace korvane::test
