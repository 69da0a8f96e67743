// Files that other makers' programs wrote (tests/corpus/rtf), and what their sources say of them.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "base/text.h"
#include "tests/support/rtf_compare.h"
#include "widgets/notes/text/utf16_units.h"

namespace varnel::test {

inline std::string LoadCorpus(const std::string& name) {
  std::ifstream file(VARNEL_CORPUS "/rtf/" + name, std::ios::binary);
  EXPECT_TRUE(file) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}

inline std::wstring Unescaped(const std::string& text) {
  constexpr std::wstring_view kEscapes = L"tvf\\";
  constexpr std::wstring_view kUnits = L"\t\v\f\\";
  const std::wstring units = Utf16Units(WideFromUtf8(text));
  std::wstring plain;
  for (std::size_t i = 0; i < units.size(); ++i) {
    plain += units[i] == L'\\' ? kUnits[kEscapes.find(units[++i])] : units[i];
  }
  return plain;
}

// What expected.txt says of one file.
struct RtfClaim {
  std::string kind;
  std::string value;
  std::wstring text;
};

struct RtfSample {
  std::string name;
  std::vector<std::wstring> paragraphs;
  std::vector<std::string> pictures;
  std::vector<RtfClaim> claims;
};

inline std::vector<RtfSample> RtfSamples() {
  std::vector<RtfSample> samples;
  std::istringstream lines(LoadCorpus("expected.txt"));
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with('\r')) line.pop_back();
    const std::size_t space = line.find(' ');
    const std::string kind = line.substr(0, space);
    const std::string rest = line.substr(space + 1);
    if (kind == "file") {
      samples.emplace_back().name = rest;
    } else if (kind == "text") {
      samples.back().paragraphs.push_back(Unescaped(rest));
    } else if (kind == "picture") {
      samples.back().pictures.push_back(rest);
    } else {
      const std::size_t end = rest.find(' ');
      samples.back().claims.push_back({kind, rest.substr(0, end), Unescaped(rest.substr(end + 1))});
    }
  }
  return samples;
}

inline std::vector<std::wstring> ParagraphsOf(const RtfDocument& document) {
  std::vector<std::wstring> paragraphs;
  std::wistringstream text(document.text);
  for (std::wstring paragraph; std::getline(text, paragraph, kParagraphEnd);) {
    if (!paragraph.empty()) paragraphs.push_back(paragraph);
  }
  return paragraphs;
}

template <typename Part>
std::size_t PartAt(const std::vector<Part>& parts, std::size_t at) {
  const auto after = std::ranges::upper_bound(parts, at, {}, &Part::begin);
  return static_cast<std::size_t>(after - parts.begin()) - 1;
}

inline std::int32_t ColourOf(const std::string& hex) {
  const long rgb = std::stol(hex, nullptr, 16);
  return static_cast<std::int32_t>((rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16);
}

inline bool LettersAre(const RtfClaim& claim, const RtfDocument& document,
                       const CharFormat& format) {
  if (claim.kind == "bold") return format.bold;
  if (claim.kind == "italic") return format.italic;
  if (claim.kind == "underline") return format.underline == Underline::kSingle;
  if (claim.kind == "strike") return format.struck;
  if (claim.kind == "super") return format.script == Script::kSuper;
  if (claim.kind == "sub") return format.script == Script::kSub;
  if (claim.kind == "size") return format.half_points == std::stoi(claim.value);
  if (claim.kind == "colour") return format.colour == ColourOf(claim.value);
  if (claim.kind == "ground") return format.ground == ColourOf(claim.value);
  std::wstring face = WideFromUtf8(claim.value);
  std::ranges::replace(face, L'_', L' ');
  return claim.kind == "font" && document.fonts[format.font].name == face;
}

// A line of the percentage in twentieths, as the reader has it.
inline int TwentiethsOf(const ParagraphFormat& format) {
  return format.line_rule == LineRule::kDouble ? 40 : format.line_spacing;
}

// Nothing where the claim is none about a paragraph.
inline std::optional<bool> ParagraphIs(const RtfClaim& claim, const ParagraphFormat& format) {
  const auto number = [&] { return std::stoi(claim.value); };
  if (claim.kind == "align") {
    constexpr const char* kNames[] = {"left", "right", "center", "justify"};
    return claim.value == kNames[static_cast<int>(format.alignment)];
  }
  if (claim.kind == "left") return format.left == number();
  if (claim.kind == "first") return format.first == number();
  if (claim.kind == "right") return format.right == number();
  if (claim.kind == "before") return format.space_before == number();
  if (claim.kind == "after") return format.space_after == number();
  if (claim.kind == "line") return TwentiethsOf(format) == number() / 5;
  if (claim.kind == "page") return format.page_break_before;
  if (claim.kind == "list") {
    return format.numbering ==
               (claim.value == "bullet" ? Numbering::kBullet : Numbering::kArabic) &&
           format.left > 0 && format.first < 0;
  }
  if (claim.kind != "tabs") return std::nullopt;
  std::string tabs;
  for (const TabStop& stop : format.tabs)
    tabs += (tabs.empty() ? "" : ",") + std::to_string(stop.at);
  return tabs == claim.value;
}

inline void ExpectClaim(const RtfClaim& claim, const RtfDocument& document) {
  const std::size_t begin = document.text.find(claim.text);
  ASSERT_NE(begin, std::wstring::npos) << claim.kind;
  const std::size_t end = begin + claim.text.size();
  const auto paragraph =
      ParagraphIs(claim, ParagraphOf(document, PartAt(document.paragraphs, begin)));
  if (paragraph) {
    EXPECT_TRUE(*paragraph) << claim.kind << " " << claim.value;
    return;
  }
  const auto letters_are = [&](std::size_t at) {
    return LettersAre(claim, document, FormatOf(document, PartAt(document.runs, at)));
  };
  for (std::size_t at = begin; at < end; ++at) {
    EXPECT_TRUE(letters_are(at)) << claim.kind << " " << claim.value << " " << at - begin;
  }
  if (begin > 0 && document.text[begin - 1] >= L' ') EXPECT_FALSE(letters_are(begin - 1));
  if (end < document.text.size() && document.text[end] >= L' ') EXPECT_FALSE(letters_are(end));
}

// The sample with `text` put behind the first letter, without what it says of the text there.
inline RtfSample Edited(RtfSample sample, std::wstring_view text) {
  const std::wstring first = sample.paragraphs[0];
  std::erase_if(sample.claims,
                [&](const RtfClaim& claim) { return first.starts_with(claim.text); });
  sample.paragraphs[0].insert(1, text);
  return sample;
}

inline void ExpectAsClaimed(const RtfDocument& document, const RtfSample& sample) {
  EXPECT_EQ(ParagraphsOf(document), sample.paragraphs);
  ASSERT_EQ(document.pictures.size(), sample.pictures.size());
  for (std::size_t i = 0; i < sample.pictures.size(); ++i) {
    EXPECT_EQ(document.pictures[i].bytes, LoadCorpus(sample.pictures[i]));
  }
  for (const RtfClaim& claim : sample.claims) ExpectClaim(claim, document);
}

}  // namespace varnel::test
