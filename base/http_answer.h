// Reads the answer to one HTTP request while its bytes come in, and keeps no more of it than its
// limits allow (RFC 9112).
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace varnel {

inline constexpr int kHttpOk = 200;

// Of all header lines together, with those after a body in chunks and with the chunks' sizes.
inline constexpr std::size_t kMostHeaderBytes = std::size_t{64} * 1024;

class HttpAnswer {
 public:
  enum class State { kMore, kWhole, kFailed };

  explicit HttpAnswer(std::size_t most_body_bytes) : HttpAnswer(most_body_bytes, 0) {}

  // Reads on. Once the state is not kMore any more, further bytes are ignored. An answer of another
  // status than 200 is whole after its headers; its body is of no interest.
  State Take(std::string_view bytes);

  // The connection has ended: only a body without a promised length is whole then.
  State End();

  State state() const;
  int status() const { return status_; }                     // 0 until it is known
  const std::string& location() const { return location_; }  // of a redirect
  std::string& body() { return body_; }
  // After kFailed, in plain words, such as "the answer was cut short".
  std::wstring_view reason() const { return reason_; }

 private:
  enum class Step { kStatus, kHeaders, kBody, kChunkSize, kChunk, kChunkEnd, kTrailers, kOver };

  HttpAnswer(std::size_t most_body_bytes, std::size_t header_bytes)
      : most_body_(most_body_bytes), header_bytes_(header_bytes) {}

  void TakeLine(std::string_view line);
  void TakeStatus(std::string_view line);
  void TakeHeader(std::string_view line);
  void TakeChunkSize(std::string_view line);
  void BeginBody();
  std::size_t TakeBody(std::string_view bytes);
  void Fail(std::wstring_view reason);

  std::size_t most_body_;
  Step step_ = Step::kStatus;
  std::string line_;              // as far as it has come
  std::size_t header_bytes_ = 0;  // so far
  int status_ = 0;
  bool chunked_ = false;
  long long promised_ = -1;  // the body's length; -1 unknown
  std::size_t left_ = 0;     // bytes to come of the body, or of the chunk
  std::string location_;
  std::string body_;
  std::wstring_view reason_;
};

}  // namespace varnel
