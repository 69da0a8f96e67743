#include "dialogs/preview/print_settings.h"

#include <array>

#include "base/number_text.h"
#include "dialogs/preview/papers.h"

namespace varnel {
namespace {

constexpr std::wstring_view kSection = L"frmNOTpp\\Details";
constexpr long long kMostNumber = 1'000'000;  // of a paper, and of twips

struct SideSetting {
  std::wstring_view name;
  int PageMargins::*member;
};
constexpr SideSetting kMargins[] = {{L"Margin-Left", &PageMargins::left},
                                    {L"Margin-Top", &PageMargins::top},
                                    {L"Margin-Right", &PageMargins::right},
                                    {L"Margin-Bottom", &PageMargins::bottom}};
constexpr std::array<std::wstring_view, 3> kHeaders = {L"Header-Left", L"Header-Centre",
                                                       L"Header-Right"};
constexpr std::array<std::wstring_view, 3> kFooters = {L"Footer-Left", L"Footer-Centre",
                                                       L"Footer-Right"};

constexpr Setting kLandscape{kSection, L"Landscape", L"0"};
constexpr Setting kColour{kSection, L"Colour", L"1"};
constexpr Setting kFitted{kSection, L"Fitted", L"1"};
constexpr Setting kFromSecond{kSection, L"Texts-From-Second-Page", L"0"};
constexpr Setting kThumbs{kSection, L"Thumbs", L"1"};
constexpr Setting kZoom{kSection, L"Zoom", L"Whole page"};
constexpr Setting kColumns{kSection, L"Sheets-Side-By-Side", L"1"};

// A check box that takes only "0" and "1".
bool ReadSwitch(const Settings& settings, const Setting& setting) {
  return ReadNumber(settings, setting, 0, 1) != 0;
}

int ReadLengthOr(const Settings& settings, std::wstring_view name, int low, int fallback) {
  const std::wstring text = NumberText(fallback);
  return static_cast<int>(ReadNumber(settings, {kSection, name, text}, low, kMostPaper));
}

// An empty text is kept as two quotation marks: an empty value would read as the default.
constexpr wchar_t kNoText[] = L"\"\"";

void ReadLine(const Settings& settings, const std::array<std::wstring_view, 3>& names,
              PageLine& line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    const std::wstring text = settings.Read(kSection, names[i], line[i]);
    line[i] = text == kNoText ? std::wstring() : text;
  }
}

void WriteLine(Settings& settings, const std::array<std::wstring_view, 3>& names,
               const PageLine& line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    settings.Write(kSection, names[i], line[i].empty() ? kNoText : line[i]);
  }
}

}  // namespace

PrintSettings DefaultPrintSettings(LengthUnit unit) {
  const bool metric = unit == LengthUnit::kMillimetres;
  PrintSettings defaults;
  defaults.paper = metric ? kPaperA4 : kPaperLetter;
  for (const Paper& paper : StandardPapers()) {
    if (paper.number == defaults.paper) defaults.size = paper.size;
  }
  const int margin = metric ? 1134 : 1080;
  defaults.margins = {margin, margin, margin, margin};
  defaults.texts.header = {L"&T", L"", L"&D"};
  defaults.texts.footer = {L"", L"&P / &N", L""};
  return defaults;
}

PrintSettings ReadPrintSettings(const Settings& settings, LengthUnit unit) {
  PrintSettings kept = DefaultPrintSettings(unit);
  const std::wstring paper = NumberText(kept.paper);
  const auto number =
      static_cast<int>(ReadNumber(settings, {kSection, L"Paper", paper}, 1, kMostNumber));
  const Size size{ReadLengthOr(settings, L"Paper-Width", kLeastPaper, 0),
                  ReadLengthOr(settings, L"Paper-Height", kLeastPaper, 0)};
  // A paper is taken whole or not at all: a number alone does not tell its size.
  if (size.width > 0 && size.height > 0) {
    kept.paper = number;
    kept.size = size;
  }
  for (const SideSetting& side : kMargins) {
    int& margin = kept.margins.*side.member;
    margin = ReadLengthOr(settings, side.name, 0, margin);
  }
  ReadLine(settings, kHeaders, kept.texts.header);
  ReadLine(settings, kFooters, kept.texts.footer);
  kept.landscape = ReadSwitch(settings, kLandscape);
  kept.colour = ReadSwitch(settings, kColour);
  kept.fitted = ReadSwitch(settings, kFitted);
  kept.texts.from_second_page = ReadSwitch(settings, kFromSecond);
  kept.thumbs = ReadSwitch(settings, kThumbs);
  kept.zoom = ReadZoom(settings.Read(kZoom)).value_or(SheetZoom{});
  kept.columns = static_cast<int>(ReadNumber(settings, kColumns, 1, 4));
  if (kept.columns == 3) kept.columns = 1;
  return kept;
}

void WritePrintSettings(Settings& settings, const PrintSettings& kept) {
  const auto number = [&settings](std::wstring_view name, int value) {
    settings.Write(kSection, name, NumberText(value));
  };
  number(L"Paper", kept.paper);
  number(L"Paper-Width", kept.size.width);
  number(L"Paper-Height", kept.size.height);
  for (const SideSetting& side : kMargins) number(side.name, kept.margins.*side.member);
  WriteLine(settings, kHeaders, kept.texts.header);
  WriteLine(settings, kFooters, kept.texts.footer);
  WriteCheck(settings, kLandscape, kept.landscape);
  WriteCheck(settings, kColour, kept.colour);
  WriteCheck(settings, kFitted, kept.fitted);
  WriteCheck(settings, kFromSecond, kept.texts.from_second_page);
  WriteCheck(settings, kThumbs, kept.thumbs);
  settings.Write(kZoom, ZoomText(kept.zoom));
  number(kColumns.name, kept.columns);
}

PageSetup SetupOf(const PrintSettings& kept) {
  PageSetup setup;
  setup.paper = kept.landscape ? Size{kept.size.height, kept.size.width} : kept.size;
  setup.margins = FittedMargins(setup.paper, kept.margins);
  setup.texts = kept.texts;
  setup.colour = kept.colour;
  setup.fitted = kept.fitted;
  return setup;
}

}  // namespace varnel
