#pragma once

#include "common/text/Text.h"

#include <QObject>
#include <QTcpServer>
#include <QTcpSocket>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace korvane::test {

/// A server on the loopback address, which remembers what it was asked for.
class PageServer {
public:
    using Behaviour = std::function<void(QTcpSocket&)>;

    /// Takes the connections of another kind of server; without one they are plain.
    explicit PageServer(std::unique_ptr<QTcpServer> server = std::make_unique<QTcpServer>())
        : server_(std::move(server)) {
        server_->listen(QHostAddress::LocalHost);
        QObject::connect(server_.get(), &QTcpServer::pendingConnectionAvailable, server_.get(),
                         [this] { Welcome(); });
    }
    PageServer(const PageServer&) = delete;
    PageServer& operator=(const PageServer&) = delete;

    /// The address of a path on the server: "http://127.0.0.1:40000/a".
    Text Address(const std::string& path, const std::string& scheme = "http") const {
        return FromUtf8(scheme + "://127.0.0.1:" + std::to_string(server_->serverPort()) + path);
    }

    void On(const std::string& path, Behaviour behaviour) { behaviours_[path] = std::move(behaviour); }
    /// A whole answer with these lines in its head.
    void Put(const std::string& path, const std::string& body,
             const std::string& head = "Content-Type: text/html", const std::string& status = "200 OK") {
        On(path, [=](QTcpSocket& socket) {
            Write(socket, "HTTP/1.1 " + status + "\r\n" + head + "\r\nContent-Length: " +
                              std::to_string(body.size()) + "\r\nConnection: close\r\n\r\n" + body);
            socket.disconnectFromHost();
        });
    }
    void Redirect(const std::string& path, const Text& to) {
        Put(path, "", "Location: " + ToUtf8(to), "302 Found");
    }
    void Hang(const std::string& path) {
        On(path, [](QTcpSocket&) {});
    }
    /// Sends without an end after this head.
    void SendWithoutEnd(const std::string& path, const std::string& head) {
        On(path, [this, head](QTcpSocket& socket) {
            Write(socket, "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n" + head + "\r\n");
            const auto more = [this, &socket] {
                sent_ += 65'536;
                Write(socket, std::string(65'536, 'x'));
            };
            QObject::connect(&socket, &QTcpSocket::bytesWritten, &socket, [more, &socket] {
                if (socket.bytesToWrite() == 0) more();
            });
            more();
        });
    }
    static void Write(QTcpSocket& socket, const std::string& bytes) {
        socket.write(bytes.data(), static_cast<qint64>(bytes.size()));
    }

    /// The paths that were asked for, in order, and the heads of the requests.
    const std::vector<std::string>& Paths() const { return paths_; }
    const std::vector<std::string>& Heads() const { return heads_; }
    std::int64_t Sent() const { return sent_; }

private:
    void Welcome() {
        while (QTcpSocket* socket = server_->nextPendingConnection()) {
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            const auto head = std::make_shared<std::string>();
            const auto read = [this, socket, head] {
                const bool whole = head->find("\r\n\r\n") != std::string::npos;
                *head += socket->readAll().toStdString();
                if (!whole && head->find("\r\n\r\n") != std::string::npos) Answer(*socket, *head);
            };
            QObject::connect(socket, &QTcpSocket::readyRead, socket, read);
            read();
        }
    }
    void Answer(QTcpSocket& socket, const std::string& head) {
        const std::size_t start = head.find(' ') + 1;
        const std::string path = head.substr(start, head.find(' ', start) - start);
        paths_.push_back(path);
        heads_.push_back(head);
        const auto behaviour = behaviours_.find(path);
        if (behaviour != behaviours_.end()) return behaviour->second(socket);
        Write(socket, "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
        socket.disconnectFromHost();
    }

    std::unique_ptr<QTcpServer> server_;
    std::map<std::string, Behaviour> behaviours_;
    std::vector<std::string> paths_;
    std::vector<std::string> heads_;
    std::int64_t sent_ = 0;
};

} // namespace korvane::test
