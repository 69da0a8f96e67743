#include "win/net/plain_http.h"

#include <winsock2.h>
#include <ws2tcpip.h>

#include <utility>

#include "base/number_text.h"
#include "base/text.h"
#include "win/system/late_function.h"

namespace varnel {
namespace {

constexpr UINT kLookedUp = WM_APP;         // wparam: the number of the request
constexpr UINT kSocketEvent = WM_APP + 1;  // wparam: the socket
constexpr wchar_t kLibrary[] = L"ws2_32.dll";
constexpr WORD kVersion = MAKEWORD(2, 2);
constexpr int kChunk = 16 * 1024;

template <class Function>
Function* Api(const char* name) {
  return LateFunction<Function>(kLibrary, name);
}

// The few functions of the system's socket library that are used, and its use as long as this
// lives.
struct WinSock {
  decltype(&::WSAStartup) start = Api<decltype(::WSAStartup)>("WSAStartup");
  decltype(&::WSACleanup) clean = Api<decltype(::WSACleanup)>("WSACleanup");
  decltype(&::WSAGetLastError) error = Api<decltype(::WSAGetLastError)>("WSAGetLastError");
  decltype(&::WSAAsyncSelect) select = Api<decltype(::WSAAsyncSelect)>("WSAAsyncSelect");
  decltype(&::GetAddrInfoExW) look_up = Api<decltype(::GetAddrInfoExW)>("GetAddrInfoExW");
  decltype(&::FreeAddrInfoExW) free = Api<decltype(::FreeAddrInfoExW)>("FreeAddrInfoExW");
  decltype(&::socket) socket = Api<decltype(::socket)>("socket");
  decltype(&::connect) connect = Api<decltype(::connect)>("connect");
  decltype(&::send) send = Api<decltype(::send)>("send");
  decltype(&::recv) receive = Api<decltype(::recv)>("recv");
  decltype(&::closesocket) close = Api<decltype(::closesocket)>("closesocket");
  bool ready = false;

  WinSock() {
    WSADATA data = {};
    ready = close && look_up && free && start(kVersion, &data) == 0;
  }
  WinSock(const WinSock&) = delete;
  WinSock& operator=(const WinSock&) = delete;
  ~WinSock() {
    if (ready) clean();
  }
};

const ADDRINFOEXW* After(const ADDRINFOEXW& address) {
  // MinGW's header names a type for it that there is not.
  return reinterpret_cast<const ADDRINFOEXW*>(address.ai_next);
}

std::wstring Broken(int error) {
  return L"the connection broke (" + NumberText(error) + L")";
}

}  // namespace

// The search for a host's addresses, which the system makes on a thread of its own. It keeps the
// search alive until it is over; from then on only the user-interface thread touches it.
struct PlainHttp::Lookup {
  OVERLAPPED overlapped = {};  // the first member, by which the system names the search
  WinSock api;
  HWND owner = nullptr;
  WPARAM number = 0;  // of the request
  std::wstring host;
  std::wstring port;
  ADDRINFOEXW* addresses = nullptr;
  const ADDRINFOEXW* next = nullptr;  // the one to try
  std::shared_ptr<Lookup> kept;       // itself, while the system searches

  ~Lookup() {
    if (addresses) api.free(addresses);
  }

  void Start(const std::shared_ptr<Lookup>& self) {
    kept = self;
    ADDRINFOEXW hints = {};
    hints.ai_socktype = SOCK_STREAM;
    const int state = api.look_up(host.c_str(), port.c_str(), NS_DNS, nullptr, &hints, &addresses,
                                  nullptr, &overlapped, reinterpret_cast<void*>(&OnOver), nullptr);
    if (state != WSA_IO_PENDING) OnOver(0, 0, &overlapped);
  }

  static void CALLBACK OnOver(DWORD, DWORD, OVERLAPPED* overlapped) {
    auto* lookup = reinterpret_cast<Lookup*>(overlapped);
    const std::shared_ptr<Lookup> self = std::move(lookup->kept);
    ::PostMessageW(self->owner, kLookedUp, self->number, 0);
  }
};

struct PlainHttp::Connection {
  const WinSock& api;
  SOCKET socket = INVALID_SOCKET;

  ~Connection() { api.close(socket); }
};

PlainHttp::PlainHttp(Ui& ui) : Window(ui) {}

PlainHttp::~PlainHttp() {
  Cancel();
}

void PlainHttp::Start(const WebAddress& address, std::size_t most_body_bytes,
                      std::function<void(PlainHttpResult)> done) {
  Cancel();
  Creation creation;
  creation.class_name = L"VarnelPlainHttp";
  creation.parent = HWND_MESSAGE;
  if (!handle() && !Create(creation)) this->ui().log.Write(L"no window for web transfers");
  done_ = std::move(done);
  answer_ = HttpAnswer(most_body_bytes);
  request_ = "GET " + address.path + " HTTP/1.1\r\nHost: " + HostField(address) +
             "\r\nUser-Agent: WidgetVarnel/1.0\r\nAccept: */*\r\n"
             "Accept-Encoding: identity\r\nConnection: close\r\n\r\n";
  lookup_ = std::make_shared<Lookup>();
  lookup_->owner = handle();
  lookup_->number = ++started_;
  std::string host = address.host;
  if (host.front() == '[') host = host.substr(1, host.size() - 2);
  lookup_->host = WideFromUtf8(host);
  lookup_->port = NumberText(address.port);
  if (lookup_->api.ready) {
    lookup_->Start(lookup_);
  } else {
    ::PostMessageW(handle(), kLookedUp, started_, 0);
  }
}

void PlainHttp::Cancel() {
  done_ = nullptr;
  connection_.reset();
  lookup_.reset();
}

LRESULT PlainHttp::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == kLookedUp) {
    if (lookup_ && wparam == lookup_->number) OnLookedUp();
    return 0;
  }
  if (message == kSocketEvent) {
    // A message of a socket that is closed may still be under way.
    if (connection_ && wparam == connection_->socket) {
      OnSocket(WSAGETSELECTEVENT(lparam), WSAGETSELECTERROR(lparam));
    }
    return 0;
  }
  return Window::OnMessage(message, wparam, lparam);
}

void PlainHttp::OnLookedUp() {
  lookup_->next = lookup_->addresses;
  if (lookup_->next) {
    ConnectNext();
  } else {
    Finish(L"the server's name was not found", true);
  }
}

// Tries the host's next address that a connection can be asked of.
void PlainHttp::ConnectNext() {
  const WinSock& api = lookup_->api;
  for (; lookup_->next; lookup_->next = After(*lookup_->next)) {
    const ADDRINFOEXW& address = *lookup_->next;
    if (address.ai_family != AF_INET && address.ai_family != AF_INET6) continue;
    const SOCKET socket = api.socket(address.ai_family, SOCK_STREAM, IPPROTO_TCP);
    if (socket == INVALID_SOCKET) continue;
    connection_.reset(new Connection{api, socket});
    api.select(socket, handle(), kSocketEvent, FD_CONNECT | FD_READ | FD_WRITE | FD_CLOSE);
    const int length = static_cast<int>(address.ai_addrlen);
    if (api.connect(socket, address.ai_addr, length) == 0 || api.error() == WSAEWOULDBLOCK) {
      lookup_->next = After(address);
      return;
    }
  }
  Finish(L"the server cannot be reached", true);
}

void PlainHttp::OnSocket(int event, int error) {
  if (event == FD_CONNECT && error != 0) {
    ConnectNext();
  } else if (event == FD_CLOSE) {
    while (Receive()) continue;  // what came before the end
    if (connection_ && error != 0) Finish(Broken(error));
  } else if (error != 0) {
    Finish(Broken(error));
  } else if (event == FD_READ) {
    Receive();
  } else {
    Send();
  }
}

void PlainHttp::Send() {
  const WinSock& api = connection_->api;
  while (!request_.empty()) {
    const int length = static_cast<int>(request_.size());
    const int sent = api.send(connection_->socket, request_.data(), length, 0);
    if (sent > 0) {
      request_.erase(0, static_cast<std::size_t>(sent));
      continue;
    }
    if (api.error() != WSAEWOULDBLOCK) Finish(Broken(api.error()));
    return;
  }
}

// Takes one piece of the answer. False when there is nothing more at the moment, or at all.
bool PlainHttp::Receive() {
  const WinSock& api = connection_->api;
  char piece[kChunk];
  const int count = api.receive(connection_->socket, piece, kChunk, 0);
  if (count < 0) {
    if (api.error() != WSAEWOULDBLOCK) Finish(Broken(api.error()));
    return false;
  }
  const auto state =
      count == 0 ? answer_.End() : answer_.Take({piece, static_cast<std::size_t>(count)});
  if (state == HttpAnswer::State::kMore) return true;
  Finish(std::wstring(answer_.reason()));
  return false;
}

void PlainHttp::Finish(std::wstring reason, bool unreachable) {
  PlainHttpResult result;
  result.unreachable = unreachable;
  if (answer_.state() == HttpAnswer::State::kWhole) {
    result.status = answer_.status();
    result.location = answer_.location();
    result.body = std::move(answer_.body());
  } else {
    result.reason = std::move(reason);
  }
  const auto done = std::exchange(done_, nullptr);
  Cancel();
  if (done) done(std::move(result));
}

}  // namespace varnel
