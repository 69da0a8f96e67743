#include "dialogs/preview/papers.h"

#include <algorithm>
#include <cmath>

#include "frame/pages/page_setup.h"

namespace varnel {
namespace {

constexpr int Twips(double millimetres) {
  return static_cast<int>(millimetres * kTwipsPerInch / 25.4 + 0.5);
}
constexpr Size Metric(double width, double height) {
  return {Twips(width), Twips(height)};
}
constexpr Size Imperial(double width, double height) {
  return {static_cast<int>(width * kTwipsPerInch + 0.5),
          static_cast<int>(height * kTwipsPerInch + 0.5)};
}

bool Usable(const Paper& paper) {
  const auto sane = [](int side) { return side == SanePaperSide(side); };
  return !paper.name.empty() && sane(paper.size.width) && sane(paper.size.height);
}

}  // namespace

std::span<const Paper> StandardPapers() {
  static const Paper kPapers[] = {{kPaperA4, L"A4", Metric(210, 297)},
                                  {8, L"A3", Metric(297, 420)},
                                  {11, L"A5", Metric(148, 210)},
                                  {34, L"B5", Metric(176, 250)},
                                  {kPaperLetter, L"Letter", Imperial(8.5, 11)},
                                  {5, L"Legal", Imperial(8.5, 14)},
                                  {7, L"Executive", Imperial(7.25, 10.5)},
                                  {27, L"Envelope DL", Metric(110, 220)},
                                  {31, L"Envelope C6", Metric(114, 162)},
                                  {28, L"Envelope C5", Metric(162, 229)},
                                  {20, L"Envelope #10", Imperial(4.125, 9.5)},
                                  {37, L"Envelope Monarch", Imperial(3.875, 7.5)}};
  return kPapers;
}

std::vector<Paper> OfferedPapers(std::span<const Paper> of_printer, Size own) {
  std::vector<Paper> papers;
  const auto add = [&papers](const Paper& paper) {
    const bool known = std::ranges::find(papers, paper.number, &Paper::number) != papers.end();
    if (!known && paper.number != kOwnPaper && Usable(paper)) papers.push_back(paper);
  };
  std::ranges::for_each(of_printer, add);
  if (papers.empty()) std::ranges::for_each(StandardPapers(), add);
  papers.push_back({kOwnPaper, L"Own size", own});
  return papers;
}

std::wstring PaperCaption(const Paper& paper, LengthUnit unit, wchar_t decimal) {
  const std::wstring height = LengthText(paper.size.height, unit, decimal);
  std::wstring width = LengthText(paper.size.width, unit, decimal);
  width.resize(width.size() - 3);  // without the unit, which the height has
  return paper.name + L", " + width + L" \u00d7 " + height;
}

int SanePaperSide(int twips) {
  return std::clamp(twips, kLeastPaper, kMostPaper);
}

}  // namespace varnel
