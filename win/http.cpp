#include "win/http.h"

#include <winhttp.h>

#include <array>
#include <utility>

#include "base/number_text.h"
#include "win/late_function.h"

namespace varnel {
namespace {

constexpr UINT kTransferEnded = WM_APP;
constexpr wchar_t kLibrary[] = L"winhttp.dll";
constexpr DWORD kMostRedirects = 3;
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
  decltype(&::WinHttpCrackUrl) crack = Api<decltype(::WinHttpCrackUrl)>("WinHttpCrackUrl");
  decltype(&::WinHttpCloseHandle) close = Api<decltype(::WinHttpCloseHandle)>("WinHttpCloseHandle");
};

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
      return L"the server redirects to nowhere";
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

  bool Open(const std::wstring& address, const std::shared_ptr<Transfer>& self);
  void OnStatus(DWORD status, void* information, DWORD length);
  void OnHeaders();
  void OnRead(DWORD length);
  void End(std::wstring reason);
  static void CALLBACK Callback(HINTERNET handle, DWORD_PTR context, DWORD status,
                                void* information, DWORD length);
};

bool HttpFetch::Transfer::Open(const std::wstring& address, const std::shared_ptr<Transfer>& self) {
  if (!api.close) return false;
  URL_COMPONENTS parts = {};
  parts.dwStructSize = sizeof parts;
  parts.dwSchemeLength = parts.dwHostNameLength = parts.dwUrlPathLength = MAXDWORD;
  parts.dwExtraInfoLength = parts.dwUserNameLength = MAXDWORD;
  if (!api.crack(address.c_str(), 0, 0, &parts) || parts.dwUserNameLength > 0) return false;
  const std::wstring host(parts.lpszHostName, parts.dwHostNameLength);
  const std::wstring path(parts.lpszUrlPath, parts.dwUrlPathLength + parts.dwExtraInfoLength);
  const DWORD secure = parts.nScheme == INTERNET_SCHEME_HTTPS ? WINHTTP_FLAG_SECURE : 0;

  session = api.open(L"WidgetVarnel/1.0", WINHTTP_ACCESS_TYPE_AUTOMATIC_PROXY, nullptr, nullptr,
                     WINHTTP_FLAG_ASYNC);
  if (session) connection = api.connect(session, host.c_str(), parts.nPort, 0);
  if (connection) {
    request = api.open_request(connection, L"GET", path.c_str(), nullptr, nullptr, nullptr, secure);
  }
  if (!request) return false;
  DWORD redirects = kMostRedirects;
  api.set_option(request, WINHTTP_OPTION_MAX_HTTP_AUTOMATIC_REDIRECTS, &redirects,
                 sizeof redirects);
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
    End(L"the server answered with status " + NumberText(code));
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
    : Window(ui), limits_(limits), deadline_(*this, limits.deadline_ms, [this] {
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
  transfer_ = std::make_shared<Transfer>();
  transfer_->owner = handle();
  transfer_->number = ++started_;
  transfer_->most_bytes = limits_.most_bytes;
  if (transfer_->Open(address, transfer_)) {
    deadline_.Start();
  } else {
    transfer_->End(L"the address cannot be fetched");
  }
}

void HttpFetch::Cancel() {
  deadline_.Stop();
  done_ = nullptr;
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
