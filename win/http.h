// Fetches one web resource at a time without blocking, bounded in size and time.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "win/timer.h"
#include "win/window.h"

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
  // kind of address. An address that cannot be fetched at all is reported through `done` too.
  void Start(const std::wstring& address, std::function<void(const HttpResult&)> done);

  // Drops the transfer under way, if any; its `done` is not called any more. Never waits.
  void Cancel();

 private:
  struct Transfer;

  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void Finish(const HttpResult& result);

  HttpLimits limits_;
  WPARAM started_ = 0;  // transfers so far
  std::shared_ptr<Transfer> transfer_;
  std::function<void(const HttpResult&)> done_;
  Timer deadline_;
};

}  // namespace varnel
