#include "e2e/LoopbackServer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>

namespace korvane::e2e {

namespace {

constexpr int kWaitingClients = 16;

sockaddr_in Loopback() {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

/// The head of a request, or what came of it.
std::string ReadHead(int client) {
    std::string head;
    std::array<char, 4096> buffer{};
    while (head.find("\r\n\r\n") == std::string::npos && WaitToRead(client)) {
        const ssize_t count = read(client, buffer.data(), buffer.size());
        if (count <= 0) break;
        head.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return head;
}

void WriteAll(int client, const std::string& bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count = send(client, bytes.data() + done, bytes.size() - done, MSG_NOSIGNAL);
        if (count <= 0) return;
        done += static_cast<std::size_t>(count);
    }
}

} // namespace

LoopbackServer::LoopbackServer()
    : descriptor_(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)) {
    const sockaddr_in address = Loopback();
    if (bind(descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        listen(descriptor_, kWaitingClients);
}

LoopbackServer::~LoopbackServer() {
    close(descriptor_);
}

void LoopbackServer::Put(const std::string& path, const std::string& type, const std::string& body) {
    pages_[path] = {type, body};
}

std::string LoopbackServer::Address(const std::string& path) const {
    sockaddr_in address = Loopback();
    socklen_t size = sizeof address;
    getsockname(descriptor_, reinterpret_cast<sockaddr*>(&address), &size);
    return "http://127.0.0.1:" + std::to_string(ntohs(address.sin_port)) + path;
}

void LoopbackServer::Drain() {
    for (int client = -1; (client = accept4(descriptor_, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
        WriteAll(client, AnswerTo(ReadHead(client)));
        close(client);
    }
}

std::string LoopbackServer::AnswerTo(const std::string& request) {
    const std::size_t start = request.find(' ') + 1;
    const std::string path = request.substr(start, request.find(' ', start) - start);
    paths_.push_back(path);
    const auto page = pages_.find(path);
    if (page == pages_.end())
        return "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
    const auto& [type, body] = page->second;
    return "HTTP/1.1 200 OK\r\nContent-Type: " + type + "\r\nContent-Length: " + std::to_string(body.size()) +
           "\r\nConnection: close\r\n\r\n" + body;
}

} // namespace korvane::e2e
