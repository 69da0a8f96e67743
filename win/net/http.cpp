#include "win/net/http.h"

#include <winhttp.h>

#include <array>
#include <utility>

#include "base/number_text.h"
#include "base/text.h"
#include "win/system/late_function.h"

namespace varnel {
namespace {

constexpr UINT kTransferEnded = WM_APP;
constexpr wchar_t kLibrary[] = L"winhttp.dll";
constexpr int kMostRedirects = 3;
constexpr wchar_t kRedirectsToNowhere[] = L"the server redirects to nowhere";
constexpr wchar_t kNotFetchable[] = L"the address cannot be fetched";
constexpr DWORD kChunk = 16 * 1024;

template <class Function>
Function* Api(const char* name) {
  return LateFunction<Function>(kLibrary, name);
}

// The few functions of the system's HTTP library that are used; all null where it is missing.
struct WinHttp {
  decltype(&::WinHttpOpen) open = Api<decltype(::WinHttpOpen)>("WinHttpOpen");
  decltype(&::WinHttpConnect) connect = Api<decltype(::WinHttpConnect)>("WinHttpConnect");
  decltype(&::WinHttpOpenRequest) open_request =
      Api<decltype(::WinHttpOpenRequest)>("WinHttpOpenRequest");
  decltype(&::WinHttpSendRequest) send = Api<decltype(::WinHttpSendRequest)>("WinHttpSendRequest");
  decltype(&::WinHttpReceiveResponse) receive =
      Api<decltype(::WinHttpReceiveResponse)>("WinHttpReceiveResponse");
  decltype(&::WinHttpQueryHeaders) headers =
      Api<decltype(::WinHttpQueryHeaders)>("WinHttpQueryHeaders");
  decltype(&::WinHttpQueryDataAvailable) available =
      Api<decltype(::WinHttpQueryDataAvailable)>("WinHttpQueryDataAvailable");
  decltype(&::WinHttpReadData) read = Api<decltype(::WinHttpReadData)>("WinHttpReadData");
  decltype(&::WinHttpSetOption) set_option = Api<decltype(::WinHttpSetOption)>("WinHttpSetOption");
  decltype(&::WinHttpSetStatusCallback) set_callback =
      Api<decltype(::WinHttpSetStatusCallback)>("WinHttpSetStatusCallback");
  decltype(&::WinHttpGetIEProxyConfigForCurrentUser) proxy =
      Api<decltype(::WinHttpGetIEProxyConfigForCurrentUser)>(
          "WinHttpGetIEProxyConfigForCurrentUser");
  decltype(&::WinHttpCloseHandle) close = Api<decltype(::WinHttpCloseHandle)>("WinHttpCloseHandle");
};

std::wstring StatusReason(DWORD status) {
  return L"the server answered with status " + NumberText(status);
}

// The user has named a proxy server, or a script that does, for everything that is fetched.
bool ProxyIsSet() {
  const WinHttp api;
  WINHTTP_CURRENT_USER_IE_PROXY_CONFIG config = {};
  if (!api.proxy || !api.proxy(&config)) return false;
  const bool set = config.lpszProxy || config.lpszAutoConfigUrl;
  for (wchar_t* text : {config.lpszProxy, config.lpszProxyBypass, config.lpszAutoConfigUrl}) {
    if (text) ::GlobalFree(text);
  }
  return set;
}

std::wstring ErrorReason(DWORD error) {
  switch (error) {
    case ERROR_WINHTTP_NAME_NOT_RESOLVED:
      return L"the server's name was not found";
    case ERROR_WINHTTP_CANNOT_CONNECT:
      return L"the server cannot be reached";
    case ERROR_WINHTTP_TIMEOUT:
    case WSAETIMEDOUT:
      return L"the server took too long";
    case ERROR_WINHTTP_SECURE_FAILURE:
      return L"the server could not prove who it is";
    case ERROR_WINHTTP_REDIRECT_FAILED:
      return kRedirectsToNowhere;
    case ERROR_WINHTTP_INVALID_SERVER_RESPONSE:
      return L"the server's answer makes no sense";
    default:
      return L"the connection broke (" + NumberText(error) + L")";
  }
}

}  // namespace

// Shared by the user-interface thread, which starts and drops it, and the system's threads, which
// fill `result` and post one message when it is complete; from then on only the former touches it.
struct HttpFetch::Transfer {
  WinHttp api;
  HWND owner = nullptr;
  WPARAM number = 0;  // tells the message of this transfer from one of an earlier, dropped one
  std::size_t most_bytes = 0;
  HINTERNET session = nullptr;
  HINTERNET connection = nullptr;
  HINTERNET request = nullptr;
  HttpResult result;
  long long expected = -1;  // the length that the server promised; -1 unknown
  bool ended = false;
  std::array<char, kChunk> chunk;

  ~Transfer() {
    if (connection) api.close(connection);
    if (session) api.close(session);
  }

  bool Open(const WebAddress& address, const std::shared_ptr<Transfer>& self);
  void OnStatus(DWORD status, void* information, DWORD length);
  void OnHeaders();
  void OnRead(DWORD length);
  void End(std::wstring reason);
  static void CALLBACK Callback(HINTERNET handle, DWORD_PTR context, DWORD status,
                                void* information, DWORD length);
};

bool HttpFetch::Transfer::Open(const WebAddress& address, const std::shared_ptr<Transfer>& self) {
  if (!api.close) return false;
  session = api.open(L"WidgetVarnel/1.0", WINHTTP_ACCESS_TYPE_AUTOMATIC_PROXY, nullptr, nullptr,
                     WINHTTP_FLAG_ASYNC);
  if (session) {
    connection = api.connect(session, WideFromUtf8(address.host).c_str(),
                             static_cast<INTERNET_PORT>(address.port), 0);
  }
  if (connection) {
    request = api.open_request(
        connection, L"GET", WideFromUtf8(address.path).c_str(), nullptr, nullptr, nullptr,
        WINHTTP_FLAG_ESCAPE_DISABLE | (address.secure ? WINHTTP_FLAG_SECURE : 0));
  }
  if (!request) return false;
  DWORD redirects = kMostRedirects;
  api.set_option(request, WINHTTP_OPTION_MAX_HTTP_AUTOMATIC_REDIRECTS, &redirects,
                 sizeof redirects);
  DWORD header_bytes = kMostHeaderBytes;
  api.set_option(request, WINHTTP_OPTION_MAX_RESPONSE_HEADER_SIZE, &header_bytes,
                 sizeof header_bytes);
  // The request keeps the transfer alive until it says that it is closed for good.
  auto keep = std::make_unique<std::shared_ptr<Transfer>>(self);
  auto context = reinterpret_cast<DWORD_PTR>(keep.get());
  api.set_option(request, WINHTTP_OPTION_CONTEXT_VALUE, &context, sizeof context);
  api.set_callback(request, &Callback, WINHTTP_CALLBACK_FLAG_ALL_NOTIFICATIONS, 0);
  keep.release();
  return api.send(request, nullptr, 0, nullptr, 0, 0, context) != FALSE;
}

void CALLBACK HttpFetch::Transfer::Callback(HINTERNET, DWORD_PTR context, DWORD status,
                                            void* information, DWORD length) {
  auto* keep = reinterpret_cast<std::shared_ptr<Transfer>*>(context);
  if (!keep) return;
  if (status == WINHTTP_CALLBACK_STATUS_HANDLE_CLOSING) {
    delete keep;
    return;
  }
  if (!(*keep)->ended) (*keep)->OnStatus(status, information, length);
}

void HttpFetch::Transfer::OnStatus(DWORD status, void* information, DWORD length) {
  switch (status) {
    case WINHTTP_CALLBACK_STATUS_SENDREQUEST_COMPLETE:
      if (!api.receive(request, nullptr)) End(ErrorReason(::GetLastError()));
      break;
    case WINHTTP_CALLBACK_STATUS_HEADERS_AVAILABLE:
      OnHeaders();
      break;
    case WINHTTP_CALLBACK_STATUS_DATA_AVAILABLE: {
      const DWORD waiting = *static_cast<DWORD*>(information);
      if (waiting == 0) {
        OnRead(0);
      } else if (!api.read(request, chunk.data(), std::min(waiting, kChunk), nullptr)) {
        End(ErrorReason(::GetLastError()));
      }
      break;
    }
    case WINHTTP_CALLBACK_STATUS_READ_COMPLETE:
      OnRead(length);
      break;
    case WINHTTP_CALLBACK_STATUS_REQUEST_ERROR: {
      const DWORD error = static_cast<WINHTTP_ASYNC_RESULT*>(information)->dwError;
      result.unreachable =
          error == ERROR_WINHTTP_NAME_NOT_RESOLVED || error == ERROR_WINHTTP_CANNOT_CONNECT;
      End(ErrorReason(error));
      break;
    }
    default:
      break;
  }
}

void HttpFetch::Transfer::OnHeaders() {
  DWORD code = 0;
  DWORD size = sizeof code;
  api.headers(request, WINHTTP_QUERY_STATUS_CODE | WINHTTP_QUERY_FLAG_NUMBER, nullptr, &code, &size,
              nullptr);
  if (code != HTTP_STATUS_OK) {
    End(StatusReason(code));
    return;
  }
  DWORD promised = 0;
  size = sizeof promised;
  if (api.headers(request, WINHTTP_QUERY_CONTENT_LENGTH | WINHTTP_QUERY_FLAG_NUMBER, nullptr,
                  &promised, &size, nullptr)) {
    expected = promised;
  }
  if (!api.available(request, nullptr)) End(ErrorReason(::GetLastError()));
}

void HttpFetch::Transfer::OnRead(DWORD length) {
  if (length == 0) {
    const bool whole = expected < 0 || expected == static_cast<long long>(result.body.size());
    result.ok = whole;
    End(whole ? L"" : L"the answer was cut short");
    return;
  }
  if (result.body.size() + length > most_bytes) {
    End(L"the answer was too large");
    return;
  }
  result.body.append(chunk.data(), length);
  if (!api.available(request, nullptr)) End(ErrorReason(::GetLastError()));
}

void HttpFetch::Transfer::End(std::wstring reason) {
  ended = true;
  result.reason = std::move(reason);
  ::PostMessageW(owner, kTransferEnded, number, 0);
}

HttpFetch::HttpFetch(Ui& ui, HttpLimits limits)
    : Window(ui), limits_(limits), plain_(ui), deadline_(*this, limits.deadline_ms, [this] {
        Finish({false, {}, L"the server took too long"});
      }) {
  Creation creation;
  creation.class_name = L"VarnelHttp";
  creation.parent = HWND_MESSAGE;
  if (!Create(creation)) this->ui().log.Write(L"no window for web transfers");
}

HttpFetch::~HttpFetch() {
  Cancel();
}

void HttpFetch::Start(const std::wstring& address, std::function<void(const HttpResult&)> done) {
  Cancel();
  done_ = std::move(done);
  redirects_ = 0;
  deadline_.Start();
  const auto parsed = ParseWebAddress(address);
  if (parsed && !parsed->secure && !ProxyIsSet()) {
    StartPlain(*parsed);
  } else {
    StartBySystem(parsed);
  }
}

// Without an address the transfer ends at once.
void HttpFetch::StartBySystem(const std::optional<WebAddress>& address) {
  transfer_ = std::make_shared<Transfer>();
  transfer_->owner = handle();
  transfer_->number = ++started_;
  transfer_->most_bytes = limits_.most_bytes;
  if (!address || !transfer_->Open(*address, transfer_)) transfer_->End(kNotFetchable);
}

void HttpFetch::StartPlain(const WebAddress& address) {
  plain_.Start(address, limits_.most_bytes,
               [this, address](PlainHttpResult result) { OnPlain(address, std::move(result)); });
}

void HttpFetch::OnPlain(const WebAddress& asked, PlainHttpResult result) {
  const bool redirect = result.status >= 300 && result.status < 400 && !result.location.empty();
  if (!redirect) {
    const bool ok = result.status == kHttpOk;
    const bool other_status = !ok && result.status != 0;
    Finish({ok, std::move(result.body),
            other_status ? StatusReason(static_cast<DWORD>(result.status)) : result.reason,
            result.unreachable});
    return;
  }
  const auto target = RedirectTarget(asked, WideFromUtf8(result.location));
  if (!target || ++redirects_ > kMostRedirects) {
    Finish({false, {}, kRedirectsToNowhere});
  } else if (target->secure) {
    StartBySystem(target);
  } else {
    StartPlain(*target);
  }
}

void HttpFetch::Cancel() {
  deadline_.Stop();
  done_ = nullptr;
  plain_.Cancel();
  // Closing wakes the system's threads, which then let go of the transfer in their own time.
  if (transfer_ && transfer_->request) transfer_->api.close(transfer_->request);
  transfer_.reset();
}

LRESULT HttpFetch::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message != kTransferEnded) return Window::OnMessage(message, wparam, lparam);
  if (transfer_ && transfer_->number == wparam) {
    Finish(std::exchange(transfer_->result, {}));
  }
  return 0;
}

void HttpFetch::Finish(const HttpResult& result) {
  const auto done = std::exchange(done_, nullptr);
  Cancel();
  if (done) done(result);
}

}  // namespace varnel
