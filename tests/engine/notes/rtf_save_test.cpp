// What the control wrote, on its way to the file: pictures put back, letters and indents mended.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/rtf_samples.h"
#include "widgets/notes/rtf/rtf_mend.h"
#include "widgets/notes/rtf/rtf_pictures.h"
#include "widgets/notes/rtf/rtf_writer.h"

namespace varnel {
namespace {

std::vector<ParagraphIndents> IndentsOf(const RtfDocument& document) {
  std::vector<ParagraphIndents> indents;
  for (const RtfParagraph& paragraph : document.paragraphs) {
    const ParagraphFormat& format = document.paragraph_formats[paragraph.format];
    indents.push_back({format.left, format.first, format.right});
  }
  return indents;
}

TEST(RtfPictures, PlaceholdersStandWhereThePicturesWere) {
  test::Chance chance(1);
  for (int i = 0; i < 100; ++i) {
    const RtfDocument document = test::AnyDocument(chance, 200);
    const SafeRtf safe = TakePicturesOut(WriteRtf(document)).safe;
    std::wstring expected = document.text;
    std::ranges::replace(expected, kObject, safe.placeholder);
    EXPECT_EQ(ReadRtf(safe.rtf).document.text, expected);
    EXPECT_EQ(document.text.find(safe.placeholder), std::wstring::npos);
    EXPECT_EQ(safe.document.pictures, document.pictures);
  }
}

TEST(RtfPictures, EachFormOfAnObjectGivesWayToThePicture) {
  test::Chance chance(2);
  const std::vector<RtfPicture> pictures = {
      test::AnyPicture(chance, 1), test::AnyPicture(chance, 3), test::AnyPicture(chance, 5)};
  const std::string control =
      "{\\rtf1 a{\\*\\shppict{\\pict\\emfblip 01}}\n{\\nonshppict{\\pict\\wmetafile8 02}}b"
      "{\\object\\objemb{\\*\\objdata 03}{\\result{\\pict\\wmetafile8 04}}}c{\\b{\\pict\\emfblip "
      "05}}d\\par}";
  const auto back = PutPicturesBack(control, pictures);
  ASSERT_TRUE(back);
  const RtfReading reading = ReadRtf(*back);
  EXPECT_EQ(reading.document.text,
            L"a\xFFFC"
            L"b\xFFFC"
            L"c\xFFFC"
            L"d");
  EXPECT_EQ(reading.document.pictures, pictures);
  for (const char* old : {"emfblip 0", "nonshppict", "objdata"}) {
    EXPECT_EQ(back->find(old), std::string::npos) << old;
  }
  EXPECT_FALSE(PutPicturesBack(control, std::span(pictures).first(2)));
  EXPECT_FALSE(PutPicturesBack("{\\rtf1 {", {}));
  EXPECT_FALSE(PutPicturesBack("{\\rtf1{text\\pict\\emfblip 01}}", std::span(pictures).first(1)));
  EXPECT_FALSE(
      PutPicturesBack("{\\rtf1{\\object{\\result{\\pict\\emfblip 01}{\\pict\\emfblip 02}}}}",
                      std::span(pictures).first(2)));
}

// As a rich edit control wrote it whose writer knows the font's code page only, and mixes up
// indents.
constexpr char kSpoiled[] =
    "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0{\\fonttbl{\\f0\\fcharset0 Tahoma;}{\\f1\\fcharset2 "
    "Symbol;}}\n"
    "{\\*\\generator Some control;}\n"
    "\\pard{\\pntext\\f1 "
    "\\'b7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'b7}}\\li360\\fi360 "
    "\\b\\up27\\f0 acelnszz\\'80\\u-10179?\\u-8704?\\par\n"
    "\\pard\\sl-240\\slmult1 g\\b0 si-\\'df\\line{\\pict\\emfblip 01}x\\par\n}\n";

TEST(RtfMend, LettersAndIndentsAreToldRight) {
  const std::wstring text =
      L"\u0105\u0107\u0119\u0142\u0144\u015B\u017A\u017C\u20AC\xD83D\xDE00\r\u011F\u015F\u0131"
      L"\u2011\u03B2  x";
  const std::vector<ParagraphIndents> indents = {{720, -360, 0}, {0, 0, 5}};
  const auto mended = MendRtf(kSpoiled, {text, indents, true});
  ASSERT_TRUE(mended);
  const RtfDocument document = ReadRtf(*mended).document;
  EXPECT_EQ(document.text, text.substr(0, 17) + L"\v\xFFFCx");
  EXPECT_EQ(IndentsOf(document), indents);
  EXPECT_EQ(document.pictures.size(), 1u);
  EXPECT_EQ(document.char_formats[document.runs[0].format].raised, 3);
  EXPECT_EQ(document.paragraph_formats[document.paragraphs[0].format].numbering,
            Numbering::kBullet);
  EXPECT_EQ(MendRtf(*mended, {text, indents}), *mended);
  const auto swapped = MendRtf(kSpoiled, {text, {}, true, true});
  ASSERT_TRUE(swapped);
  const std::vector<ParagraphIndents> meant = {{720, -360, 0}, {0, 0, 0}};
  EXPECT_EQ(IndentsOf(ReadRtf(*swapped).document), meant);
}

TEST(RtfMend, OtherStructuresAreRefused) {
  const std::string rtf = "{\\rtf1 one\\par two{\\pict\\emfblip 01}\\par}";
  EXPECT_TRUE(MendRtf(rtf, {L"one\rtwo ", {}}));
  const std::vector<ParagraphIndents> one(1);
  EXPECT_FALSE(MendRtf(rtf, {L"one\rtwo ", one}));
  for (const wchar_t* text : {L"", L"one", L"one\rtwo \r", L"one\r\rtwo ", L"one\rtwox",
                              L"one\rtwo", L"on\xFFFC\rtwo ", L"one\vx\rtwo "}) {
    EXPECT_FALSE(MendRtf(rtf, {text, {}})) << text;
  }
  EXPECT_FALSE(MendRtf("{\\rtf1 x", {L"x", {}}));
}

// A document whose letters and indents were changed after it was written is mended to them.
TEST(RtfMend, AnyLettersInAnyPlaces) {
  test::Chance chance(3);
  for (int round = 0; round < 300 && !HasFailure(); ++round) {
    const RtfDocument document = test::AnyDocument(chance, 1 + test::Below(chance, 150));
    std::wstring shown;
    for (const wchar_t unit : document.text) {
      const bool fixed =
          unit == kParagraphEnd || unit == kObject || unit == kLineBreak || unit == kPageBreak;
      const int what = fixed ? 9 : test::Below(chance, 10);
      if (what == 0) {
        shown += static_cast<wchar_t>(0x100 + test::Below(chance, 300));
      } else {
        shown += unit;
      }
    }
    // One letter more or fewer where a paragraph can take it.
    if (round % 3 == 0) shown.insert(0, 1, L'\u0107');
    if (round % 3 == 1 && shown[0] >= L' ' && shown[0] != kObject) shown.erase(0, 1);
    std::vector<ParagraphIndents> indents = IndentsOf(document);
    for (ParagraphIndents& indent : indents) {
      if (test::Below(chance, 3) == 0) indent.left = test::Below(chance, 1000);
    }
    const auto mended = MendRtf(WriteRtf(document), {shown, indents});
    if (!mended) {
      // Only where a break or picture shares its paragraph with a change of length.
      EXPECT_NE(shown.size(), document.text.size());
      continue;
    }
    const RtfDocument read = ReadRtf(*mended).document;
    EXPECT_EQ(read.text, shown);
    EXPECT_EQ(IndentsOf(read), indents);
    EXPECT_EQ(read.pictures.size(), document.pictures.size());
  }
}

}  // namespace
}  // namespace varnel
