// Timings of the notes' pages: a formatted text of a megabyte laid out for paper.
#include <random>

#include "bench/micro.h"
#include "tests/support/page_aid.h"
#include "widgets/notes/pages/note_pages.h"
#include "widgets/notes/pages/plain_document.h"

namespace varnel::bench {
namespace {

constexpr std::size_t kMegabyte = 1 << 20;
constexpr Rect kColumn{1417, 1417, 10'489, 15'421};  // of A4 with margins of 25 mm

// A change of format every few words, a paragraph every few lines, justified ones among them.
RtfDocument MadeUpDocument() {
  constexpr std::wstring_view kWords[] = {L"of ",     L"plain ", L"words, ", L"cafe ",
                                          L"letter ", L"in ",    L"a ",      L"paragraph. "};
  std::mt19937 random(14);
  RtfDocument document = PlainDocument(L"", {L"Tahoma", 0}, {});
  document.char_formats.resize(2);
  document.char_formats[1].bold = true;
  document.paragraph_formats.resize(2);
  document.paragraph_formats[1].alignment = Alignment::kJustified;
  document.runs = {{0, 0}};
  while (document.text.size() < kMegabyte) {
    document.text += kWords[random() % std::size(kWords)];
    const std::size_t at = document.text.size();
    if (random() % 6 == 0) document.runs.push_back({at, document.runs.back().format ^ 1});
    if (random() % 60 != 0) continue;
    document.text += kParagraphEnd;
    document.paragraphs.push_back({at + 1, static_cast<std::uint32_t>(random() % 2)});
  }
  document.text += L'.';
  return document;
}

double LayOut(std::size_t pages) {
  const RtfDocument document = MadeUpDocument();
  return 1e3 * SecondsFor([&] {
           test::PlainPageMeasure measure;
           NotePages laid_out(document, kColumn, measure);
           Keep(laid_out.Settle(pages).pages);
           Keep(laid_out.At(0).texts.size());
         });
}

// A page far into the text that was laid out before, as turning to it takes.
double TurnToPage() {
  const RtfDocument document = MadeUpDocument();
  test::PlainPageMeasure measure;
  NotePages pages(document, kColumn, measure);
  std::size_t page = pages.Settle(document.text.size()).pages / 2;
  return 1e3 * SecondsFor([&] { Keep(pages.At(page ^= 1).texts.size()); });
}

}  // namespace

std::vector<Probe> PageProbes() {
  return {{"first page of 1 MB laid out", "ms", [] { return LayOut(1); }},
          {"all pages of 1 MB laid out", "ms", [] { return LayOut(kMegabyte); }},
          {"a page of 1 MB turned to", "ms", TurnToPage}};
}

}  // namespace varnel::bench
