#include "tests/rig/http_server.h"

#include <winsock2.h>

#include <atomic>
#include <mutex>
#include <string_view>
#include <thread>
#include <utility>

namespace varnel::rig {
namespace {

constexpr int kPollMs = 50;
constexpr DWORD kDripMs = 300;
constexpr DWORD kSendPatienceMs = 1'000;
constexpr std::string_view kEndOfHeaders = "\r\n\r\n";

class Socket {
 public:
  explicit Socket(SOCKET socket) : socket_(socket) {}
  Socket(Socket&& other) noexcept : socket_(std::exchange(other.socket_, INVALID_SOCKET)) {}
  Socket& operator=(Socket&&) = delete;
  ~Socket() {
    if (socket_ != INVALID_SOCKET) ::closesocket(socket_);
  }
  SOCKET get() const { return socket_; }
  explicit operator bool() const { return socket_ != INVALID_SOCKET; }

  // Something can be taken from it, be it that the other side has closed it.
  bool Readable() const {
    fd_set set;
    FD_ZERO(&set);
    FD_SET(socket_, &set);
    timeval patience{0, kPollMs * 1000};
    return ::select(0, &set, nullptr, nullptr, &patience) > 0;
  }

  bool Send(std::string_view bytes) const {
    while (!bytes.empty()) {
      const int sent = ::send(socket_, bytes.data(), static_cast<int>(bytes.size()), 0);
      if (sent <= 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
  }

 private:
  SOCKET socket_;
};

// Makes sockets usable in this process.
struct Sockets {
  Sockets() {
    WSADATA data = {};
    ::WSAStartup(MAKEWORD(2, 2), &data);
  }
  ~Sockets() { ::WSACleanup(); }
};

Socket ListenOnLoopback() {
  Socket listener(::socket(AF_INET, SOCK_STREAM, 0));
  sockaddr_in name = {};
  name.sin_family = AF_INET;
  name.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
  ::bind(listener.get(), reinterpret_cast<const sockaddr*>(&name), sizeof name);
  ::listen(listener.get(), SOMAXCONN);
  return listener;
}

std::string Response(std::string_view status, std::string_view body, std::size_t promised) {
  return "HTTP/1.1 " + std::string(status) + "\r\nContent-Length: " + std::to_string(promised) +
         "\r\nConnection: close\r\n\r\n" + std::string(body);
}

std::string Redirect(const std::string& target) {
  return "HTTP/1.1 302 Found\r\nLocation: " + target +
         "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
}

}  // namespace

struct HttpServer::State {
  Sockets sockets;
  Socket listener = ListenOnLoopback();
  std::atomic<bool> closing = false;
  std::atomic<int> connections = 0;
  std::mutex lock;  // for the next three
  std::string body;
  Manner manner = Manner::kGood;
  std::vector<std::string> requests;
  std::vector<std::thread> talks;
  std::thread host;

  std::string Address() const;
  void Host();
  void Talk(const Socket& client);
  // The path and query of the next request; empty when none comes whole.
  std::string Listen(const Socket& client) const;
  void SendForEver(const Socket& client, std::string_view beginning) const;
  void Respond(const Socket& client, const std::string& path, const std::string& text, Manner how);
};

std::string HttpServer::State::Address() const {
  sockaddr_in name = {};
  int size = sizeof name;
  ::getsockname(listener.get(), reinterpret_cast<sockaddr*>(&name), &size);
  return "http://127.0.0.1:" + std::to_string(::ntohs(name.sin_port));
}

void HttpServer::State::Host() {
  while (!closing) {
    if (!listener.Readable()) continue;
    Socket client(::accept(listener.get(), nullptr, nullptr));
    if (!client) continue;
    ++connections;
    talks.emplace_back([this, taken = std::move(client)] {
      Talk(taken);
      --connections;
    });
  }
}

void HttpServer::State::Talk(const Socket& client) {
  ::setsockopt(client.get(), SOL_SOCKET, SO_SNDTIMEO,
               reinterpret_cast<const char*>(&kSendPatienceMs), sizeof kSendPatienceMs);
  const std::string path = Listen(client);
  if (path.empty()) return;
  std::unique_lock hold(lock);
  requests.push_back(path);
  const std::string text = body;
  const Manner how = manner;
  hold.unlock();
  Respond(client, path, text, how);
}

std::string HttpServer::State::Listen(const Socket& client) const {
  std::string request;
  while (request.find(kEndOfHeaders) == std::string::npos) {
    if (closing) return {};
    if (!client.Readable()) continue;
    char bytes[4096];
    const int count = ::recv(client.get(), bytes, sizeof bytes, 0);
    if (count <= 0) return {};
    request.append(bytes, static_cast<std::size_t>(count));
  }
  const std::size_t path = request.find(' ') + 1;
  return request.substr(path, request.find(' ', path) - path);
}

void HttpServer::State::SendForEver(const Socket& client, std::string_view beginning) const {
  std::string block;
  while (block.size() < 64 * 1024) block += "xxxxxxxx\r\nX-More: ";
  if (!client.Send(beginning)) return;
  while (!closing && client.Send(block)) continue;
}

void HttpServer::State::Respond(const Socket& client, const std::string& path,
                                const std::string& text, Manner how) {
  switch (how) {
    case Manner::kGood:
      client.Send(Response("200 OK", text, text.size()));
      break;
    case Manner::kSilent:
      while (!closing && !client.Readable()) continue;
      break;
    case Manner::kDrip:
      if (!client.Send(Response("200 OK", "", 100'000))) return;
      while (!closing && client.Send("x")) ::Sleep(kDripMs);
      break;
    case Manner::kEndless:
      SendForEver(client, "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n");
      break;
    case Manner::kEndlessHeaders:
      SendForEver(client, "HTTP/1.1 200 OK\r\nX: ");
      break;
    case Manner::kLyingLength:
      client.Send(Response("200 OK", text, text.size() + 1'000));
      break;
    case Manner::kBadChunk:
      client.Send("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nwxyz\r\n" + text +
                  "\r\n0\r\n\r\n");
      break;
    case Manner::kRedirectLoop:
      client.Send(Redirect(Address() + path));
      break;
    case Manner::kRedirectToFile:
      client.Send(Redirect("file:///C:/windows/win.ini"));
      break;
    case Manner::kJunk:
      client.Send(std::string("\0\1\2 this is no answer at all \xFF\xFE\r\n\r\n", 35));
      break;
    case Manner::kNotFound:
      client.Send(Response("404 Not Found", text, text.size()));
      break;
    case Manner::kServerError:
      client.Send(Response("500 Internal Server Error", text, text.size()));
      break;
  }
}

HttpServer::HttpServer() : state_(std::make_unique<State>()) {
  state_->host = std::thread([this] { state_->Host(); });
}

HttpServer::~HttpServer() {
  state_->closing = true;
  state_->host.join();
  for (std::thread& talk : state_->talks) talk.join();
}

std::wstring HttpServer::address() const {
  const std::string address = state_->Address();
  return {address.begin(), address.end()};
}

void HttpServer::Answer(std::string body, Manner manner) {
  const std::lock_guard hold(state_->lock);
  state_->body = std::move(body);
  state_->manner = manner;
}

int HttpServer::connections() const {
  return state_->connections;
}

std::vector<std::string> HttpServer::requests() const {
  const std::lock_guard hold(state_->lock);
  return state_->requests;
}

}  // namespace varnel::rig
