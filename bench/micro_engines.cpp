// Timings of engines, natively and on the platform.
#include <rapidxml/rapidxml.hpp>

#include "base/halo.h"
#include "base/number_text.h"
#include "base/text.h"
#include "bench/micro.h"
#include "tests/support/fixed_system_colours.h"
#include "tests/support/memory_files.h"
#include "tests/support/plain_measure.h"
#include "tests/support/weather_samples.h"
#include "theme/colour.h"
#include "widgets/calculator/calculation_log.h"
#include "widgets/time/clock_layout.h"
#include "widgets/weather/feed_text.h"
#include "widgets/weather/places.h"
#include "widgets/weather/weather_feed.h"

namespace varnel::bench {
namespace {

// About 100 KB.
std::wstring LongFeed() {
  test::FeedSample sample;
  sample.days.resize(2000, sample.days.front());
  return test::FeedText(sample);
}

double ReadFeed() {
  const std::wstring response = LongFeed();
  WeatherData data;
  const double seconds =
      SecondsFor([&] { Keep(DataFileRead(NormaliseFeed(response), true, data)); });
  return static_cast<double>(response.size()) / seconds / 1e6;
}

// The tree that a fast reader of XML makes of the same feed.
double ReadFeedAsXml() {
  const std::string response = Utf8FromWide(LongFeed());
  const double seconds = SecondsFor([&] {
    std::string bytes = response;  // it is written into
    rapidxml::xml_document<> tree;
    tree.parse<rapidxml::parse_default>(bytes.data());
    Keep(tree.first_node()->first_node());
  });
  return static_cast<double>(response.size()) / seconds / 1e6;
}

// The last of as many places as the real list has.
double FindPlace() {
  std::wstring places;
  for (int i = 0; i < 21'000; ++i) {
    const std::wstring number = PaddedNumber(i, 5);
    places +=
        L"PLX" + number + L"|City " + number + L"|Country " + PaddedNumber(i / 100, 3) + L"\n";
  }
  return 1e6 * SecondsFor(
                   [&] { Keep(ResolvePlace(places, L"Country 209", L"City 20999, Country 209")); });
}

// Letters of about the size of the clock's digits: bars and gaps.
Mask Letters() {
  Mask letters(400, 120);
  for (int x = 20; x < 380; x += 24) letters.Fill({x, 20, x + 9, 100}, 255);
  return letters;
}

double MakeHalo() {
  const Mask letters = Letters();
  return 1e6 * SecondsFor([&] { Keep(HaloMask(letters, {1.5, 3})); });
}

double LayHalo() {
  const Mask letters = Letters();
  const Mask halo = HaloMask(letters, {1.5, 3});
  Image image(letters.width(), letters.height(), 0xFF4060A0);
  return 1e6 * SecondsFor([&] {
           CompositeText(image, {0, 0}, letters, halo, 0xFFFFFFFF, 0xFF101820);
         });
}

double BlendColours() {
  const test::FixedSystemColours system;
  Colour colour = 0x123456;
  const double seconds = SecondsFor([&] {
    colour = Blend(colour, 0xEF4F10, 133, system);
    Keep(colour);
  });
  return 1e9 * seconds;
}

double LayOutClockOnce() {
  const test::PlainMeasure measure;
  const ClockDisplay display{L"12:34", L":56", L"PM", L"Saturday, 21 November", true, true};
  return 1e6 * SecondsFor([&] { Keep(LayOutClock({394, 180}, 96, display, measure)); });
}

// A file of so many lines.
test::MemoryFiles LogOf(int lines) {
  test::MemoryFiles files;
  CalculationLog log(files, L"log");
  log.Load();
  RecordList records;
  for (int i = 0; i < lines; ++i) records.Add(CalculationLine(i, L'*', 3, NumberText(i * 3)));
  files.files[L"log"] = records.bytes();
  return files;
}

double StartLog(int lines) {
  test::MemoryFiles files = LogOf(lines);
  return 1e6 * SecondsFor([&] {
           CalculationLog log(files, L"log");
           log.Load();
           Keep(log.count());
         });
}

}  // namespace

std::vector<Probe> EngineProbes() {
  return {{"feed reader", "MB/s", ReadFeed},
          {"DOM parser, the same feed", "MB/s", ReadFeedAsXml},
          {"place found, last of 21,000", "us", FindPlace},
          {"halo of 400 x 120 px of letters", "us", MakeHalo},
          {"halo and letters laid over a ground", "us", LayHalo},
          {"blend of two colours", "ns", BlendColours},
          {"layout of the clock, measuring for nothing", "us", LayOutClockOnce},
          {"calculator log read, empty", "us", [] { return StartLog(0); }},
          {"calculator log read, 10,000 lines", "us", [] { return StartLog(10'000); }}};
}

}  // namespace varnel::bench
