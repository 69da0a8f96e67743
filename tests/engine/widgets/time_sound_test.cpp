#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/cases.h"
#include "widgets/time/sound_commands.h"

namespace varnel {
namespace {

class FakePlayer : public MediaPlayer {
 public:
  std::wstring Send(std::wstring_view command) override {
    sent.emplace_back(command);
    return command == L"status myfile position " ? position : L"";
  }

  std::vector<std::wstring> sent;
  std::wstring position = L"0";
};

std::vector<std::wstring> Commands(const std::wstring& open, const std::wstring& from) {
  return {L"set myfile time format ms",
          L"status myfile length ",
          L"set myfile time format ms",
          L"status myfile position ",
          L"close myfile",
          open,
          L"set myfile time format ms",
          L"status myfile position ",
          L"play myfile from " + from};
}

TEST(Sound, SendsTheCommandsInOrder) {
  const test::Cases<const wchar_t*, const wchar_t*> cases = {
      {L"C:\\My Music\\a.mp3", L"open \"C:\\My Music\\a.mp3\" type MpegVideo alias myfile"},
      {L"C:\\A.WAV", L"open \"C:\\A.WAV\" alias myfile"},
      {L"b.wav", L"open \"b.wav\" alias myfile"},
      {L"b.wave", L"open \"b.wave\" type MpegVideo alias myfile"}};
  for (const auto& [path, open] : cases) {
    FakePlayer player;
    PlayFile(player, path);
    EXPECT_EQ(player.sent, Commands(open, L"0"));
  }
}

TEST(Sound, PlaysFromTheAnsweredPosition) {
  const test::Cases<const wchar_t*, const wchar_t*> cases = {
      {L"1250", L"1250"}, {L"", L"0"}, {L"no device", L"0"}, {L" 7 ", L"7"}};
  for (const auto& [answer, from] : cases) {
    FakePlayer player;
    player.position = answer;
    PlayFile(player, L"b.wav");
    EXPECT_EQ(player.sent.back(), std::wstring(L"play myfile from ") + from);
  }
}

TEST(Sound, PathsThatNameNoFile) {
  FakePlayer player;
  PlayFile(player, L"");
  PlayFile(player, L"a\" alias other.wav");
  EXPECT_TRUE(player.sent.empty());
  const std::wstring longest = std::wstring(300, L'x') + L".mp3";
  PlayFile(player, longest);  // left to the player to refuse
  EXPECT_EQ(player.sent, Commands(L"open \"" + longest + L"\" type MpegVideo alias myfile", L"0"));
}

}  // namespace
}  // namespace varnel
