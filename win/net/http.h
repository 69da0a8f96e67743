// Fetches one web resource at a time without blocking, bounded in size and time.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "base/web_address.h"
#include "win/net/plain_http.h"
#include "win/windows/timer.h"
#include "win/windows/window.h"

namespace varnel {

struct HttpLimits {
  std::size_t most_bytes;  // of the body
  int deadline_ms;         // for the whole transfer
};

struct HttpResult {
  bool ok = false;  // status 200 and a whole body
  std::string body;
  std::wstring reason;       // in plain words when not ok, such as "the server cannot be reached"
  bool unreachable = false;  // there was no server to send the request to
};

class HttpFetch : private Window {
 public:
  HttpFetch(Ui& ui, HttpLimits limits);
  ~HttpFetch() override;

  // Begins to fetch an http or https address; `done` is called once, later, on this thread. A
  // transfer under way is dropped without a call. At most 3 redirects are followed, none to another
  // kind of address nor from https to http. An address that cannot be fetched at all is reported
  // through `done` too.
  void Start(const std::wstring& address, std::function<void(const HttpResult&)> done);

  // Drops the transfer under way, if any; its `done` is not called any more. Never waits. A plain
  // connection is closed before this returns.
  void Cancel();

 private:
  struct Transfer;

  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void StartBySystem(const std::optional<WebAddress>& address);
  void StartPlain(const WebAddress& address);
  void OnPlain(const WebAddress& asked, PlainHttpResult result);
  void Finish(const HttpResult& result);

  HttpLimits limits_;
  PlainHttp plain_;
  int redirects_ = 0;   // followed so far
  WPARAM started_ = 0;  // transfers so far
  std::shared_ptr<Transfer> transfer_;
  std::function<void(const HttpResult&)> done_;
  Timer deadline_;
};

}  // namespace varnel
