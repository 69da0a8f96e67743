// Playback by command strings, given to engines so that tests can record what is sent.
#pragma once

#include <string>
#include <string_view>

namespace varnel {

class MediaPlayer {
 public:
  virtual ~MediaPlayer() = default;
  // Carries out one command and gives its answer; empty when it has none or fails.
  virtual std::wstring Send(std::wstring_view command) = 0;
};

}  // namespace varnel
