#include "widgets/notes/rtf/rtf_edits.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "widgets/notes/find/find_text.h"
#include "widgets/notes/rtf/rtf_reader.h"
#include "widgets/notes/rtf/rtf_writer.h"

namespace varnel {
namespace {

// What each unit of a document looks like, one after the other.
struct Unit {
  wchar_t unit;
  std::uint32_t format;
  std::uint32_t paragraph;
  bool operator==(const Unit&) const = default;
};

std::vector<Unit> UnitsOf(const RtfDocument& document) {
  std::vector<Unit> units;
  std::size_t run = 0;
  std::size_t paragraph = 0;
  for (std::size_t at = 0; at < document.text.size(); ++at) {
    while (run + 1 < document.runs.size() && document.runs[run + 1].begin <= at) ++run;
    while (paragraph + 1 < document.paragraphs.size() &&
           document.paragraphs[paragraph + 1].begin <= at) {
      ++paragraph;
    }
    units.push_back(
        {document.text[at], document.runs[run].format, document.paragraphs[paragraph].format});
  }
  return units;
}

TEST(RtfEdits, ReplaceAlsoWhereFormattingCutsAHit) {
  const std::string rtf =
      R"({\rtf1\ansi{\fonttbl{\f0 Arial;}}\pard A {\b ca}t and \i c{\ul at}\i0 , cat\par\pard\qc cat\par})";
  RtfDocument document = ReadRtf(rtf).document;
  ASSERT_EQ(document.text.substr(0, 18), L"A cat and cat, cat");
  const std::vector<Unit> before = UnitsOf(document);
  const Replacements all = ReplaceAll(document.text, TextFinder(L"Cat", 0), L"mouse", 0);
  EXPECT_EQ(all.count, 4u);
  ApplyEdits(document, all.edits);
  EXPECT_EQ(document.text.substr(0, 30), L"A mouse and mouse, mouse\rmouse");
  const auto format = [&document](std::size_t at) {
    return document.char_formats[UnitsOf(document)[at].format];
  };
  EXPECT_TRUE(format(2).bold && format(6).bold && !format(7).bold);
  EXPECT_TRUE(format(12).italic && format(16).italic);
  EXPECT_EQ(format(16).underline, Underline::kNone);
  EXPECT_FALSE(format(17).italic);
  EXPECT_EQ(document.paragraph_formats[document.paragraphs[1].format].alignment,
            Alignment::kCentre);
  EXPECT_EQ(document.paragraphs[1].begin, 25u);
  const RtfDocument again = ReadRtf(WriteRtf(document)).document;
  EXPECT_EQ(again.text, document.text);
  EXPECT_EQ(UnitsOf(again).size(), UnitsOf(document).size());
}

RtfDocument SomeDocument(std::mt19937& random) {
  RtfDocument document;
  document.char_formats.resize(3);
  document.paragraph_formats.resize(3);
  document.paragraphs.push_back({0, 0});
  for (std::size_t i = 0, length = random() % 30; i < length; ++i) {
    document.text += L"ab\r\xFFFC c"[random() % 6];
    if (i == 0 || random() % 3 == 0) {
      const auto format = static_cast<std::uint32_t>(random() % 3);
      if (i == 0 || format != document.runs.back().format) document.runs.push_back({i, format});
    }
    if (document.text[i] == kObject) {
      document.pictures.emplace_back().at = i;
    } else if (document.text[i] == kParagraphEnd) {
      document.paragraphs.push_back({i + 1, static_cast<std::uint32_t>(random() % 3)});
    }
  }
  return document;
}

// The edits, unit by unit; pictures by where they stood.
std::vector<Unit> PlainlyEdited(const RtfDocument& document, const std::vector<TextEdit>& edits,
                                std::vector<std::size_t>& pictures) {
  const std::vector<Unit> units = UnitsOf(document);
  std::vector<Unit> edited;
  std::size_t at = 0;
  const auto keep_to = [&](std::size_t end) {
    for (; at < end; ++at) {
      if (units[at].unit == kObject) pictures.push_back(edited.size());
      edited.push_back(units[at]);
    }
  };
  for (const TextEdit& edit : edits) {
    keep_to(edit.position);
    for (const wchar_t unit : edit.text) {
      edited.push_back({unit == kObject ? wchar_t(0xFFFD) : unit, units[at].format, 0});
    }
    at += edit.length;
  }
  keep_to(units.size());
  return edited;
}

TEST(RtfEdits, KeepEveryOtherCharactersFormatPicturesAndParagraphs) {
  std::mt19937 random(9);
  for (int round = 0; round < 5000; ++round) {
    RtfDocument document = SomeDocument(random);
    std::vector<TextEdit> edits;
    for (std::size_t at = random() % 5; at < document.text.size(); at += random() % 6) {
      const std::size_t length = std::min<std::size_t>(1 + random() % 4, document.text.size() - at);
      edits.push_back({at, length, std::wstring(random() % 4, L"xy\r\xFFFC"[random() % 4])});
      at += length;
    }
    std::vector<std::size_t> pictures;
    std::vector<Unit> expected = PlainlyEdited(document, edits, pictures);
    ApplyEdits(document, edits);
    std::vector<Unit> units = UnitsOf(document);
    for (auto* list : {&expected, &units}) {
      for (Unit& unit : *list) unit.paragraph = 0;
    }
    ASSERT_EQ(units, expected) << round;
    ASSERT_EQ(document.runs.empty(), document.text.empty());
    ASSERT_EQ(document.pictures.size(), pictures.size());
    for (std::size_t i = 0; i < pictures.size(); ++i)
      ASSERT_EQ(document.pictures[i].at, pictures[i]);
    std::vector<std::size_t> begins = {0};
    for (std::size_t at = 0; at < document.text.size(); ++at) {
      if (document.text[at] == kParagraphEnd) begins.push_back(at + 1);
    }
    ASSERT_EQ(document.paragraphs.size(), begins.size()) << round;
    for (std::size_t i = 0; i < begins.size(); ++i)
      ASSERT_EQ(document.paragraphs[i].begin, begins[i]);
  }
}

}  // namespace
}  // namespace varnel
