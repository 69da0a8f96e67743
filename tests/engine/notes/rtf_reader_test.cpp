#include "widgets/notes/rtf/rtf_reader.h"

#include <gtest/gtest.h>

#include "tests/support/cases.h"
#include "tests/support/rtf_compare.h"
#include "tests/support/rtf_samples.h"
#include "widgets/notes/rtf/rtf_pictures.h"
#include "widgets/notes/rtf/rtf_writer.h"

namespace varnel {
namespace {

using test::FormatOf;
using test::ParagraphOf;

RtfDocument Read(const std::string& body) {
  const RtfReading reading = ReadRtf("{\\rtf1\\ansi" + body + "}");
  EXPECT_EQ(reading.fault, RtfFault::kNone) << body;
  return reading.document;
}

TEST(RtfReader, TextIsWhatTheControlHas) {
  const test::Cases<const char*, const wchar_t*> cases = {
      {" abc", L"abc"},
      {" abc\\par", L"abc"},
      {" abc\\par\\par", L"abc\r"},
      {" a\\par\nb\r\n c\\\nd", L"a\rb c\rd"},
      {" a\\line b\\page c\\tab d\\~e\\_f", L"a\vb\fc\td\u00A0e\u2011f"},
      {"\\lquote\\rdblquote\\emdash\\bullet\\{\\}\\\\", L"\u2018\u201D\u2014\u2022{}\\"},
      {" \\'e4\\u228?\\uc2\\u228 abc{\\uc0\\u228 x}\\u228\\'61\\'62c",
       L"\u00E4\u00E4\u00E4c\u00E4x\u00E4c"},
      {" \\u-10179?\\u-8704?", L"\xD83D\xDE00"},
      {" a\\u0?\\u7?b\\u-4?c",
       L"ab\xFFFD"
       L"c"},
      {"{\\fonttbl{\\f0 A;}{\\f1\\fcharset238 B;}{\\f2\\fcharset161 C;}{\\f3\\fcharset2 D;}}"
       "\\'b9\\f1\\'b9\\f2\\'b9{\\f3 l\\'b7}\\'e1",
       L"\u00B9\u0105\u0389\xF06C\xF0B7\u03B1"},
      {"\\ansicpg1251 \\'e0\\ansicpg65001 \\'d0\\'b0\xD0\xB1\\'d0x", L"\u0430\u0430\u0431\xFFFD"},
      {"{\\fonttbl{\\f0\\fcharset128 A;}}\\f0 a\\'82\\'a0b",
       L"a\xFFFD"
       L"b"},
      {"{\\stylesheet{\\s1 Head;}}{\\info{\\title T}}{\\*\\generator G;}{\\header h}x{\\footnote "
       "f}",
       L"x"},
      {"{\\field{\\*\\fldinst{HYPERLINK \"http://x\"}}{\\fldrslt{\\ul here}}}", L"here"},
      {"{\\object{\\*\\objdata 01}{\\result shown}}{\\*\\unknown{\\b no}}{\\unknown yes}",
       L"shownyes"},
      {"\\trowd\\cellx9\\intbl a\\cell b\\par c\\cell\\cell\\row\\trowd d\\cell\\row\\pard e",
       L"a\tb\rc\t\rd\re"},
      {"{\\upr{a}{\\*\\ud{b}}}{\\shp{\\*\\shpinst{\\sp{\\sn x}{\\sv y}}{\\shptxt in}}{\\shprslt "
       "out}}",
       L"ainout"},
      {"{\\listtext\\pard{\\b\\tab one}{\\par}}{\\listtext 2.\\tab}two", L"\tone\rtwo"},
  };
  for (const auto& [body, text] : cases) EXPECT_EQ(Read(body).text, text) << body;
}

TEST(RtfReader, FormatsComeAsWritten) {
  const RtfDocument document = Read(
      "\\deff1{\\fonttbl{\\f0 A;}{\\f1\\froman\\fcharset238 B{\\*\\falt "
      "C};}}{\\colortbl;\\red1\\green2\\blue3;}"
      "\\deftab360\\qc\\li720\\fi-360\\ri9\\sb120\\sa60\\sl276\\slmult1\\tqr\\tldot\\tx2880\\tx99"
      "{\\b\\fs18\\cf1 b}{\\plain\\f0\\highlight1\\dn4\\ulwave w}{\\super s}\\par"
      "\\pard\\sl-240 p\\par\\pard\\sl300\\slmult0 q\\par\\sl480\\slmult1\\pagebb r");
  EXPECT_EQ(document.fonts, (std::vector<RtfFont>{{L"A", 0}, {L"B", 238}}));
  EXPECT_EQ(document.default_tab, 360);
  const ParagraphFormat& first = ParagraphOf(document);
  EXPECT_EQ(first.alignment, Alignment::kCentre);
  EXPECT_EQ(
      std::vector({first.left, first.first, first.right, first.space_before, first.space_after}),
      std::vector({720, -360, 9, 120, 60}));
  EXPECT_EQ(first.line_rule, LineRule::kMultiple);
  EXPECT_EQ(first.line_spacing, 23);
  EXPECT_EQ(first.tabs, (std::vector<TabStop>{{99}, {2880, TabKind::kRight, 1}}));
  EXPECT_EQ(ParagraphOf(document, 1).line_rule, LineRule::kExactly);
  EXPECT_EQ(ParagraphOf(document, 2).line_rule, LineRule::kAtLeast);
  EXPECT_EQ(ParagraphOf(document, 2).line_spacing, 300);
  EXPECT_EQ(ParagraphOf(document, 3).line_rule, LineRule::kDouble);
  EXPECT_TRUE(ParagraphOf(document, 3).page_break_before);
  const CharFormat& bold = FormatOf(document, 0);
  EXPECT_TRUE(bold.bold && bold.font == 1 && bold.half_points == 18 && bold.colour == 0x030201);
  const CharFormat& wave = FormatOf(document, 1);
  EXPECT_TRUE(!wave.bold && wave.font == 0 && wave.half_points == 24 && wave.ground == 0x030201);
  EXPECT_TRUE(wave.raised == -4 && wave.underline == Underline::kWave);
  EXPECT_EQ(FormatOf(document, 2).script, Script::kSuper);
}

TEST(RtfReader, NumberingOfEveryWriter) {
  const std::string lists =
      "{\\*\\listtable{\\list{\\listlevel\\levelnfc2\\levelstartat4{\\leveltext\\'02\\'00);}}"
      "{\\listlevel\\levelnfc23{\\leveltext\\'01\\u8226 ?;}}\\listid7}}"
      "{\\*\\listoverridetable{\\listoverride\\listid7\\ls3}}";
  const test::Cases<std::string, Numbering, int, wchar_t> cases = {
      {"{\\pntext\\'b7\\tab}{\\*\\pn\\pnlvlblt{\\pntxtb\\'b7}}x", Numbering::kBullet, 1, 0},
      {"{\\*\\pn\\pnlvlbody\\pnucrm\\pnstart5{\\pntxta )}}x", Numbering::kUpperRoman, 5, L')'},
      {lists + "\\ls3\\ilvl0{\\listtext iv)\\tab}x", Numbering::kLowerRoman, 4, L')'},
      {lists + "\\ls3\\ilvl1 x", Numbering::kBullet, 1, 0},
      {"{\\listtext\\u8226 ?\\tab}x", Numbering::kBullet, 1, 0},
      {"{\\pntext 12)\\tab}x", Numbering::kArabic, 1, L')'},
      {lists + "\\ls9 x", Numbering::kNone, 1, L'.'},
      {"{\\*\\pn\\pnlvlblt}\\pard x", Numbering::kNone, 1, L'.'},
  };
  for (const auto& [body, numbering, start, end] : cases) {
    const RtfDocument document = Read(body);
    EXPECT_EQ(document.text, L"x");
    EXPECT_EQ(ParagraphOf(document).numbering, numbering) << body;
    EXPECT_EQ(ParagraphOf(document).number_start, start) << body;
    EXPECT_EQ(ParagraphOf(document).number_end, end) << body;
  }
  const RtfDocument two = Read("{\\*\\pn\\pnlvlblt}a\\par{\\pntext *}b\\par\\pard c");
  EXPECT_EQ(ParagraphOf(two, 1).numbering, Numbering::kBullet);
  EXPECT_EQ(ParagraphOf(two, 2).numbering, Numbering::kNone);
}

TEST(RtfReader, EachPictureIsTakenOnceInItsBestForm) {
  const RtfDocument document = Read(
      " a{\\*\\shppict{\\pict{\\*\\picprop x}\\pngblip\\picw4\\picwgoal60\\picscaley50 89 5\n04}}"
      "{\\nonshppict{\\pict\\wmetafile8 01}}b{\\pict\\jpegblip\\bin3 \\{}}"
      "{\\shp{\\*\\shpinst{\\sp{\\sn pib}{\\sv{\\pict\\emfblip 02}}}}{\\shprslt{\\pict\\dibitmap0 "
      "03}}}"
      "{\\object{\\*\\objdata{\\pict\\pngblip 09}}{\\result{\\pict\\wmetafile7 04}}}"
      "{\\pict\\macpict 05}{\\pict\\pngblip}{\\header{\\pict\\pngblip 06}}");
  EXPECT_EQ(document.text,
            L"a\xFFFC"
            L"b\xFFFC\xFFFC\xFFFC");
  ASSERT_EQ(document.pictures.size(), 4u);
  EXPECT_EQ(document.pictures[0].bytes, "\x89P");
  EXPECT_EQ(document.pictures[0].width, 4);
  EXPECT_EQ(document.pictures[0].width_twips, 60);
  EXPECT_EQ(document.pictures[0].scale_y, 50);
  EXPECT_EQ(document.pictures[1].bytes, "\\{}");
  EXPECT_EQ(document.pictures[2].kind, PictureKind::kEmf);
  EXPECT_EQ(document.pictures[3].metafile_mode, 7);
  EXPECT_EQ(document.losses, (RtfLosses{.objects = true, .margins = true}));
}

TEST(RtfWriter, EveryDocumentIsReadBackAsItWas) {
  test::Chance chance(14);
  for (int i = 0; i < 300 && !HasFailure(); ++i) {
    const RtfDocument document = test::AnyDocument(chance, test::Below(chance, 300));
    const RtfReading reading = ReadRtf(WriteRtf(document));
    ASSERT_EQ(reading.fault, RtfFault::kNone);
    test::ExpectSame(reading.document, document);
  }
}

std::size_t DepthOf(const std::string& rtf) {
  std::size_t depth = 0;
  std::size_t deepest = 0;
  for (std::size_t i = 0; i < rtf.size(); ++i) {
    if (rtf[i] == '\\') {
      ++i;
    } else if (rtf[i] == '{') {
      deepest = std::max(deepest, ++depth);
    } else if (rtf[i] == '}') {
      --depth;
    }
  }
  EXPECT_EQ(depth, 0u);
  return deepest;
}

TEST(RtfScan, HostileFilesAreRefusedOrCleaned) {
  const std::vector<test::HostileFile> files = test::HostileFiles();
  EXPECT_GE(files.size(), 200u);
  for (std::size_t i = 0; i < files.size(); ++i) {
    const SafeRtfResult result = TakePicturesOut(files[i].rtf);
    EXPECT_EQ(result.fault, files[i].fault) << i << " " << files[i].rtf.substr(0, 80);
    if (result.fault != RtfFault::kNone) continue;
    const std::string& rtf = result.safe.rtf;
    EXPECT_LE(DepthOf(rtf), 3u) << i;
    for (const char* word : {"\\obj", "\\bin", "\\pict", "\\field", "\\*\\template", "\\unknown"}) {
      EXPECT_EQ(rtf.find(word), std::string::npos) << i << word;
    }
  }
  EXPECT_EQ(ReadRtf("{\\rtf1" + std::string(kMostRtf, ' ')).fault, RtfFault::kTooBig);
  EXPECT_EQ(ReadRtf("{\\rtf1" + test::Repeated(5000, "{\\pict\\pngblip 00}") + "}").fault,
            RtfFault::kTooMuch);
  std::string sizes;
  for (int i = 0; i < 20'000; ++i) sizes += "\\li" + std::to_string(i) + "\\par";
  EXPECT_EQ(ReadRtf("{\\rtf1" + sizes + "}").fault, RtfFault::kTooMuch);
}

}  // namespace
}  // namespace varnel
