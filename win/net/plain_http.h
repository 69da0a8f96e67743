// One plain HTTP request at a time over a socket of our own, which closes the moment it is told to.
// The system's library keeps a connection whose headers never end, where it has no limit for them.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/http_answer.h"
#include "base/web_address.h"
#include "win/windows/window.h"

namespace varnel {

struct PlainHttpResult {
  int status = 0;  // 0 without a whole answer
  std::string location;
  std::string body;
  std::wstring reason;  // in plain words, without a whole answer
  bool unreachable = false;
};

class PlainHttp : private Window {
 public:
  explicit PlainHttp(Ui& ui);
  ~PlainHttp() override;

  // Asks for an address, which must not be secure; `done` is called once, later, on this thread. A
  // request under way is dropped without a call. The body may have `most_body_bytes`.
  void Start(const WebAddress& address, std::size_t most_body_bytes,
             std::function<void(PlainHttpResult)> done);

  // Closes the connection at once; `done` is not called any more.
  void Cancel();

 private:
  struct Lookup;
  struct Connection;

  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void OnLookedUp();
  void ConnectNext();
  void OnSocket(int event, int error);
  void Send();
  bool Receive();
  void Finish(std::wstring reason, bool unreachable = false);

  WPARAM started_ = 0;  // requests so far
  std::shared_ptr<Lookup> lookup_;
  std::unique_ptr<Connection> connection_;
  std::string request_;  // what is still to be sent
  HttpAnswer answer_{0};
  std::function<void(PlainHttpResult)> done_;
};

}  // namespace varnel
