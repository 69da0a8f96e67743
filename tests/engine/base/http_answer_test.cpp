#include "base/http_answer.h"

#include <gtest/gtest.h>

#include "tests/support/cases.h"

namespace varnel {
namespace {

using State = HttpAnswer::State;

constexpr std::size_t kMostBody = 1'000;

struct Outcome {
  State state;
  int status;
  std::string body;
  std::wstring reason;
  bool operator==(const Outcome&) const = default;
};

// What an answer leads to that comes in pieces of that size, after which the server closes.
Outcome Read(const std::string& answer, std::size_t piece) {
  HttpAnswer reader(kMostBody);
  for (std::size_t at = 0; at < answer.size(); at += piece) reader.Take(answer.substr(at, piece));
  if (reader.state() == State::kMore) reader.End();
  return {reader.state(), reader.status(), reader.body(), std::wstring(reader.reason())};
}

TEST(HttpAnswer, ComesInPiecesOfAnySize) {
  const std::string ok = "HTTP/1.1 200 OK\r\n";
  const std::string chunked = ok + "Transfer-Encoding: Chunked\r\n\r\n";
  const std::wstring nonsense = L"the server's answer makes no sense";
  const std::wstring large = L"the answer was too large";
  const std::wstring cut = L"the answer was cut short";
  const auto whole = [](const char* body) { return Outcome{State::kWhole, 200, body, L""}; };
  const auto failed = [](int status, const char* body, const std::wstring& reason) {
    return Outcome{State::kFailed, status, body, reason};
  };
  const test::Cases<std::string, Outcome> cases = {
      {ok + "Content-Length: 5\r\n\r\nweather and more", whole("weath")},
      {"HTTP/1.0 200\nX:y\n\nto the end", whole("to the end")},
      {ok + "content-length:\t0 \r\n\r\n", whole("")},
      {ok + "Content-Length: 9\r\n\r\nweath", failed(200, "weath", cut)},
      {ok + "Content-Length: 1\r\nContent-Length: 2\r\n\r\nab", failed(200, "", nonsense)},
      {ok + "Content-Length: -1\r\n\r\nab", failed(200, "", nonsense)},
      {ok + "Content-Length: 99999999999\r\n\r\nab", failed(200, "", nonsense)},
      {ok + "X: a\r\n  folded\r\n\r\nb", whole("b")},
      {ok + "no header\r\n\r\nb", failed(200, "", nonsense)},
      {ok + "X: never en", failed(200, "", cut)},
      {chunked + "3\r\nabc\r\nA;x=y\r\n0123456789\r\n0\r\nLate: 1\r\n\r\n", whole("abc0123456789")},
      {chunked + "3\r\nabc\r\n", failed(200, "abc", cut)},
      {chunked + "3\r\nabcd\r\n0\r\n\r\n", failed(200, "abc", nonsense)},
      {chunked + "wxyz\r\n", failed(200, "", nonsense)},
      {chunked + "FFFFFFFFFF\r\n", failed(200, "", nonsense)},
      {"HTTP/1.1 100 Continue\r\nA: b\r\n\r\n" + ok + "\r\nbody", whole("body")},
      {"HTTP/1.1 404 Not Found\r\n\r\ngone", Outcome{State::kWhole, 404, "", L""}},
      {"\0\1 no answer\r\n\r\n", failed(0, "", nonsense)},
      {"HTTP/1.1 2000 OK\r\n\r\n", failed(0, "", nonsense)},
      {"HTTP/1.1 20x OK\r\n\r\n", failed(0, "", nonsense)},
      {"", failed(0, "", nonsense)},
      {ok + "\r\n" + std::string(kMostBody, 'x'), whole(std::string(kMostBody, 'x').c_str())},
  };
  for (const auto& [answer, outcome] : cases) {
    for (const std::size_t piece : {1u, 2u, 7u, 100'000u}) {
      EXPECT_EQ(Read(answer, piece), outcome) << answer << " in pieces of " << piece;
    }
  }
  EXPECT_EQ(Read(ok + "\r\n" + std::string(kMostBody + 1, 'x'), 100).reason, large);
  EXPECT_EQ(Read(chunked + "3E9\r\n" + std::string(kMostBody + 1, 'x'), 100).reason, large);
}

TEST(HttpAnswer, WhatNeverEndsIsLeft) {
  for (const char* begun :
       {"", "HTTP/1.1 200 OK\r\n", "HTTP/1.1 200 OK\r\nX-", "HTTP/1.1 100 C\r\n",
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n"}) {
    for (const char* endless : {"x", "X: a\r\n", "X: a\r\n\r\nHTTP/1.1 100 C\r\n"}) {
      HttpAnswer reader(kMostBody);
      reader.Take(begun);
      std::size_t taken = 0;
      while (reader.state() == State::kMore && taken < 2 * kMostHeaderBytes) {
        reader.Take(endless);
        taken += std::string_view(endless).size();
      }
      EXPECT_NE(reader.state(), State::kMore) << begun << endless;
      EXPECT_LE(taken, kMostHeaderBytes + 100) << begun << endless;
    }
  }
}

TEST(HttpAnswer, RedirectsNameTheirTarget) {
  HttpAnswer reader(kMostBody);
  EXPECT_EQ(reader.Take("HTTP/1.1 302 Found\r\nlocation:  /there \r\n\r\n"), State::kWhole);
  EXPECT_EQ(reader.status(), 302);
  EXPECT_EQ(reader.location(), "/there");
}

}  // namespace
}  // namespace varnel
