// A web server on this machine, as friendly or hostile as a scene wants it.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace varnel::rig {

// What a request gets.
enum class Manner {
  kGood,            // status 200 and the whole body
  kSilent,          // nothing at all
  kDrip,            // one byte of the body at a time, for ever
  kEndless,         // a body that never ends, as fast as it goes
  kEndlessHeaders,  // headers that never end, as fast as it goes
  kLyingLength,     // less than the promised length
  kBadChunk,        // chunks whose sizes are no numbers
  kRedirectLoop,    // to the same address again
  kRedirectToFile,  // to a file of the machine itself
  kJunk,            // what is no HTTP
  kNotFound,        // status 404, with a body
  kServerError,     // status 500, with a body
};

class HttpServer {
 public:
  // Listens on a free port of the loopback address; answers an empty body.
  HttpServer();
  HttpServer(const HttpServer&) = delete;
  HttpServer& operator=(const HttpServer&) = delete;
  ~HttpServer();

  std::wstring address() const;  // "http://127.0.0.1:PORT"

  // What requests get from now on.
  void Answer(std::string body, Manner manner = Manner::kGood);

  // Connections that neither side has closed.
  int connections() const;

  // What was asked for so far, as the request lines name it: path and query.
  std::vector<std::string> requests() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace varnel::rig
