// The weather widget and its properties, against servers of good and bad manners.
#include <gtest/gtest.h>

#include "base/text.h"
#include "resources/control_ids.h"
#include "tests/rig/http_server.h"
#include "tests/rig/scene.h"
#include "tests/support/cases.h"
#include "tests/support/weather_samples.h"
#include "widgets/weather/weather_glyphs.h"

namespace varnel {
namespace {

using namespace rig;
using namespace std::string_literals;

constexpr wchar_t kSection[] = L"frmWTHpr\\Details";
constexpr int kGivesUp = 25'000;  // milliseconds, longer than a fetch may take

class Weather : public Scene {
 protected:
  void AskFeed() { Set(L"Weather Feed Endpoint", server_.address()); }
  void AskLiveSource() { Set(L"Live Weather Address", server_.address()); }
  void Set(const wchar_t* name, const std::wstring& value) {
    root().settings().SetText(kSection, name, value);
  }
  std::wstring Stored(const wchar_t* name) {
    return root().settings().Text(kSection, name).value_or(L"");
  }

  void Start() { widget_ = StartIn(root(), program()); }
  static HWND StartIn(const Root& root, Program& program) {
    root.settings().SetText(L"frmVRNpr\\Details", L"Start-Load-Weather", L"True");
    EXPECT_TRUE(program.Start());
    HWND widget = WaitForForm(program, L"frmWTHwg");
    EXPECT_TRUE(widget);
    return widget;
  }

  std::wstring Label(int id) { return Text(Control(widget_, id)); }
  // Every label but the status.
  std::vector<std::wstring> Shown() {
    std::vector<std::wstring> texts;
    for (int id = lblWeatherCountry; id < lblFORETEMP + 3; ++id) texts.push_back(Label(id));
    return texts;
  }
  bool WaitForStatus(const std::wstring& part, int deadline = kPatience) {
    return WaitUntil([&] { return Label(lblUPDATED).find(part) != std::wstring::npos; }, deadline);
  }
  // The data's age and nothing else.
  bool WaitForGoodStatus() {
    return WaitUntil([&] {
      const std::wstring status = Label(lblUPDATED);
      return status.starts_with(L"Updated ") && status.size() < 20;
    });
  }
  bool WaitForRequests(std::size_t count) {
    return WaitUntil([&] { return server_.requests().size() >= count; });
  }
  std::string LastRequest() {
    const auto requests = server_.requests();
    return requests.empty() ? "" : requests.back();
  }

  HWND OpenProperties() {
    Choose(widget_, L"mnuWEATHERPROPS");
    HWND dialog = WaitForForm(program(), L"frmWTHpr");
    EXPECT_TRUE(dialog);
    return dialog;
  }
  void Leave(HWND dialog, int button) {
    ASSERT_TRUE(ClickOn(Control(dialog, button)));
    EXPECT_TRUE(WaitForNoForm(program(), L"frmWTHpr"));
  }
  void ChooseCity(const std::wstring& city) {
    HWND dialog = OpenProperties();
    SetText(Control(dialog, cboCOUNTRYAREA), city);
    Leave(dialog, IDOK);
  }

  HttpServer server_;
  HWND widget_ = nullptr;
};

std::string Feed(const std::wstring& title, const std::wstring& temperature = L"50") {
  test::FeedSample sample;
  sample.title = title;
  sample.temperature = temperature;
  return Utf8FromWide(test::FeedText(sample));
}

TEST_F(Weather, FirstStartShowsLondonFromTheLiveSource) {
  AskLiveSource();
  server_.Answer(test::LiveAnswer());
  Start();
  EXPECT_SOON_EQ(Label(lblTEMPERATURE), L"14C");
  EXPECT_EQ(Label(lblWeatherCountry), L"London, United Kingdom");
  EXPECT_EQ(Label(lblDESC), L"Partly Cloudy");
  EXPECT_EQ(Label(lblWeathersymbol), std::wstring(1, WeatherGlyph(28)));
  EXPECT_EQ(Label(lblFOREDATE + 1), L"Sun");
  EXPECT_EQ(Label(lblFOREICON + 1), std::wstring(1, WeatherGlyph(9)));
  EXPECT_EQ(Label(lblFORETEMP + 2), L"5/-20");
  EXPECT_TRUE(Label(lblUPDATED).starts_with(L"Updated "));
  EXPECT_EQ(Label(lblATTRIBUTION), L"Weather data by Open-Meteo.com");
  EXPECT_TRUE(LastRequest().starts_with("/v1/forecast?latitude=51.5"));
  EXPECT_FALSE(FileExists(root().folder() + L"\\web.txt"));

  // The other scale needs no other answer, nor does opening the widget again.
  HWND dialog = OpenProperties();
  ASSERT_TRUE(ClickOn(Control(dialog, optTEMP + 1)));
  Leave(dialog, IDOK);
  EXPECT_SOON_EQ(Label(lblTEMPERATURE), L"57F ");
  EXPECT_EQ(Label(lblFORETEMP + 2), L"41/-4");
  Choose(widget_, L"mnuDCWIDGETS", 7);
  ASSERT_TRUE(WaitForNoForm(program(), L"frmWTHwg"));
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCWIDGETS", 7));
  widget_ = WaitForForm(program(), L"frmWTHwg");
  EXPECT_SOON_EQ(Label(lblTEMPERATURE), L"57F ");
  EXPECT_EQ(server_.requests().size(), 1u);

  server_.Answer(test::With<std::string>(test::LiveAnswer(), "57.3", "60.1"));
  ASSERT_TRUE(Activate(widget_));
  PressKey(VK_F5);
  EXPECT_SOON_EQ(Label(lblTEMPERATURE), L"60F ");
  EXPECT_EQ(server_.requests().size(), 2u);
  // An answer that lacks something leaves what is shown, and its source is still named.
  server_.Answer(test::With<std::string>(test::LiveAnswer(), "\"daily\":", "\"rest\":"));
  Choose(widget_, L"mnuWEATHERREFRESH");
  EXPECT_TRUE(WaitForStatus(L"the weather answer lacks \"daily\"")) << Label(lblUPDATED);
  EXPECT_EQ(Label(lblTEMPERATURE), L"60F ");
  EXPECT_EQ(Label(lblATTRIBUTION), L"Open-Meteo.com");

  // Back at a place whose answer is still good, nothing is fetched for the other one any more.
  server_.Answer("", Manner::kSilent);
  ChooseCity(L"Leeds");
  EXPECT_TRUE(WaitForRequests(4));
  ChooseCity(L"London");
  EXPECT_TRUE(WaitForGoodStatus()) << Label(lblUPDATED);
  EXPECT_EQ(Label(lblTEMPERATURE), L"60F ");
}

TEST_F(Weather, PlaceIsChosenFromListsOrTyped) {
  AskFeed();
  server_.Answer(Feed(L"London, United Kingdom"));
  Start();
  EXPECT_SOON_EQ(Label(lblTEMPERATURE), L"10C");
  EXPECT_EQ(Label(lblATTRIBUTION), L"");
  EXPECT_EQ(LastRequest(), "/wxdata/weather/rss/local/2643743?lngCM_ven=LWO&lngCM_cat=rss");

  HWND dialog = OpenProperties();
  EXPECT_EQ(Text(Control(dialog, lblCountry)), L"&Country:");
  EXPECT_EQ(Text(Control(dialog, cboCOUNTRY)), L"United Kingdom");
  EXPECT_EQ(Text(Control(dialog, cboCOUNTRYAREA)), L"London");
  EXPECT_TRUE(IsChecked(Control(dialog, optTEMP)));
  EXPECT_TRUE(IsChecked(Control(dialog, optLOCATIONS)));
  ASSERT_TRUE(Select(Control(dialog, cboCOUNTRY), L"France"));
  EXPECT_EQ(Text(Control(dialog, cboCOUNTRYAREA)), L"");
  ASSERT_TRUE(Select(Control(dialog, cboCOUNTRYAREA), L"Lyon"));
  EXPECT_EQ(Text(Control(dialog, lblPICK)), L"Weather for Lyon, France.");
  Leave(dialog, IDCANCEL);
  EXPECT_EQ(Stored(L"Weather location-country-area"), L"");
  EXPECT_EQ(server_.requests().size(), 1u);

  // Typed without accents, with others, and only begun.
  server_.Answer(Feed(L"Zurich, Switzerland", L"33"));
  dialog = OpenProperties();
  ASSERT_TRUE(ClickOn(Control(dialog, cboCOUNTRY)));
  Chord({VK_CONTROL, 'A'});
  Type(L"SWITZ");
  EXPECT_SOON_EQ(Text(Control(dialog, cboCOUNTRY)), L"Switzerland");
  PressKey(VK_TAB);
  Type(L"z\u00FCr\n");
  EXPECT_TRUE(WaitForNoForm(program(), L"frmWTHpr"));
  EXPECT_SOON_EQ(Label(lblWeatherCountry), L"Zurich, Switzerland");
  EXPECT_EQ(Label(lblTEMPERATURE), L"1C");
  EXPECT_TRUE(LastRequest().starts_with("/wxdata/weather/rss/local/2657896?"));
  EXPECT_EQ(Stored(L"Weather location-country-area"), L"Zurich");
}

TEST_F(Weather, UnitedStatesAndFahrenheitAreChosen) {
  AskFeed();
  server_.Answer(Feed(L"Los Angeles, California", L"68"));
  Start();
  EXPECT_SOON_EQ(Label(lblTEMPERATURE), L"20C");
  HWND dialog = OpenProperties();
  ASSERT_TRUE(ClickOn(Control(dialog, optLOCATIONS + 1)));
  EXPECT_SOON_EQ(Items(Control(dialog, cboCOUNTRY)).size(), 51u);
  EXPECT_EQ(Text(Control(dialog, lblCountry)), L"&State:");
  SetText(Control(dialog, cboCOUNTRY), L"California");
  ASSERT_TRUE(ClickOn(Control(dialog, btnSEARCH)));
  EXPECT_SOON(Items(Control(dialog, cboCOUNTRYAREA)).size() > 100);
  ASSERT_TRUE(Select(Control(dialog, cboCOUNTRYAREA), L"Los Angeles"));
  ASSERT_TRUE(ClickOn(Control(dialog, optTEMP + 1)));
  Leave(dialog, IDOK);
  EXPECT_SOON_EQ(Label(lblTEMPERATURE), L"68F ");
  ASSERT_TRUE(WaitForRequests(2));
  EXPECT_TRUE(LastRequest().starts_with("/wxdata/weather/rss/local/5368361?"));
  EXPECT_EQ(Stored(L"Weather location-world") + Stored(L"Temp-Selected"), L"11");

  // A place that is not known leaves the one before.
  ChooseCity(L"Atlantis");
  EXPECT_TRUE(WaitForRequests(3));
  EXPECT_TRUE(LastRequest().starts_with("/wxdata/weather/rss/local/5368361?"));
  EXPECT_EQ(Stored(L"Weather location-country-area"), L"Atlantis");
}

TEST_F(Weather, FailingServerKeepsTheDataAndSaysWhy) {
  AskFeed();
  const std::string good = Feed(L"London, United Kingdom");
  server_.Answer(good);
  Start();
  EXPECT_SOON_EQ(Label(lblTEMPERATURE), L"10C");
  const auto shown = Shown();
  const std::size_t memory = program().Memory();
  ASSERT_GT(memory, 1'000'000u);
  const std::string junk(5'000, '\xE9');
  const test::Cases<std::string, Manner, std::wstring> kCases = {
      {good, Manner::kNotFound, L"the server answered with status 404"},
      {good, Manner::kServerError, L"the server answered with status 500"},
      {"", Manner::kEndless, L"the answer was too large"},
      {"", Manner::kEndlessHeaders, L"the answer was too large"},
      {good, Manner::kLyingLength, L"the answer was cut short"},
      {good, Manner::kBadChunk, L"the "},  // in which words is the platform's choice
      {good, Manner::kRedirectLoop, L"the server redirects to nowhere"},
      {good, Manner::kRedirectToFile, L"the server redirects to nowhere"},
      {good, Manner::kJunk, L"the server's answer makes no sense"},
      {junk, Manner::kGood, L"the answer holds no weather"},
      {"", Manner::kGood, L"the answer holds no weather"},
      {good.substr(0, good.size() / 2), Manner::kGood, L"the answer was cut short"},
  };
  for (const auto& [body, manner, reason] : kCases) {
    SCOPED_TRACE(static_cast<int>(manner));
    server_.Answer(body, manner);
    Choose(widget_, L"mnuWEATHERREFRESH");
    EXPECT_TRUE(WaitForStatus(L" \u00B7 " + reason)) << Label(lblUPDATED);
    EXPECT_EQ(Shown(), shown);
    EXPECT_TRUE(WaitUntil([&] { return server_.connections() == 0; }, 1'000));
    EXPECT_LT(program().Memory(), memory + 5'000'000);
    EXPECT_FALSE(FileExists(root().folder() + L"\\web.txt"));
    EXPECT_TRUE(FileBytes(root().folder() + L"\\debug.log")
                    .value_or("")
                    .find("weather: " + Utf8FromWide(reason)) != std::string::npos);
    server_.Answer(good);
    Choose(widget_, L"mnuWEATHERREFRESH");
    EXPECT_TRUE(WaitForGoodStatus()) << Label(lblUPDATED);
  }
}

TEST_F(Weather, NobodyAnswersAtTheFirstStart) {
  Start();
  EXPECT_TRUE(WaitForStatus(L"No connection, will try again", kGivesUp));
  EXPECT_EQ(Label(lblWeatherCountry), L"London, United Kingdom");
  EXPECT_EQ(Label(lblTEMPERATURE), L"-");
  EXPECT_EQ(Label(lblDESC), L"No weather yet");
  EXPECT_EQ(Label(lblATTRIBUTION), L"");
}

// How many of 40 messages are answered within 50 ms. One or the other may come late on a busy
// machine; a blocked program answers none.
int QuickAnswers(HWND form) {
  int count = 0;
  for (int i = 0; i < 40; ++i) {
    DWORD_PTR result = 0;
    if (::SendMessageTimeoutW(form, WM_NULL, 0, 0, SMTO_NORMAL, 50, &result)) ++count;
    ::Sleep(10);
  }
  return count;
}

TEST_F(Weather, HangingServersBlockNothing) {
  AskFeed();
  server_.Answer("", Manner::kSilent);
  HttpServer dripping;
  dripping.Answer("", Manner::kDrip);
  Root other_root;
  Program other(other_root);
  other_root.settings().SetText(kSection, L"Weather Feed Endpoint", dripping.address());
  Start();
  HWND other_widget = StartIn(other_root, other);
  ASSERT_TRUE(WaitForRequests(1));
  ASSERT_SOON(!dripping.requests().empty());
  EXPECT_GE(QuickAnswers(widget_), 30);
  EXPECT_GE(QuickAnswers(other_widget), 30);
  EXPECT_EQ(LeaveByMenu(other, 1'000), 0u) << "the exit waits for the fetch";
  EXPECT_EQ(Label(lblUPDATED), L"Updating...");
  // No second request while the first is under way.
  Choose(widget_, L"mnuWEATHERREFRESH");
  EXPECT_TRUE(WaitForStatus(L"The server took too long", kGivesUp));
  EXPECT_TRUE(WaitUntil([&] { return server_.connections() == 0; }, 1'000));
  EXPECT_EQ(server_.requests().size(), 1u);
}

}  // namespace
}  // namespace varnel
