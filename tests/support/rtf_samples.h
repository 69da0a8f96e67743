// RTF and documents made by chance, and files made to do harm.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "widgets/notes/rtf/rtf_document.h"
#include "widgets/notes/rtf/rtf_reader.h"

namespace varnel::test {

using Chance = std::mt19937;

inline int Below(Chance& chance, int end) {
  return static_cast<int>(chance() % static_cast<unsigned>(end));
}

inline CharFormat AnyCharFormat(Chance& chance, int fonts) {
  CharFormat format;
  format.font = static_cast<std::uint16_t>(Below(chance, fonts));
  format.half_points = static_cast<std::uint16_t>(14 + Below(chance, 60));
  format.raised = static_cast<std::int16_t>(Below(chance, 4) == 0 ? Below(chance, 21) - 10 : 0);
  bool* const toggles[] = {&format.bold,         &format.italic,   &format.struck,
                           &format.hidden,       &format.capitals, &format.small_capitals,
                           &format.right_to_left};
  for (bool* toggle : toggles) *toggle = Below(chance, 4) == 0;
  format.underline = static_cast<Underline>(Below(chance, 8));
  format.script = static_cast<Script>(Below(chance, 3));
  if (Below(chance, 2) == 0) format.colour = Below(chance, 5) * 0x123456;
  if (Below(chance, 3) == 0) format.ground = Below(chance, 5) * 0x102030;
  return format;
}

inline ParagraphFormat AnyParagraphFormat(Chance& chance) {
  ParagraphFormat format;
  format.alignment = static_cast<Alignment>(Below(chance, 4));
  format.right_to_left = Below(chance, 8) == 0;
  format.page_break_before = Below(chance, 8) == 0;
  format.keep_together = Below(chance, 8) == 0;
  format.keep_with_next = Below(chance, 8) == 0;
  for (std::int32_t* length : {&format.left, &format.first, &format.right}) {
    *length = Below(chance, 2880) - 720;
  }
  format.space_before = Below(chance, 400);
  format.space_after = Below(chance, 400);
  constexpr LineRule kRules[] = {LineRule::kSingle, LineRule::kDouble, LineRule::kAtLeast,
                                 LineRule::kExactly, LineRule::kMultiple};
  format.line_rule = kRules[Below(chance, 5)];
  if (format.line_rule >= LineRule::kAtLeast) format.line_spacing = 21 + Below(chance, 18);
  format.numbering = static_cast<Numbering>(Below(chance, 7));
  if (format.numbering == Numbering::kBullet) format.number_end = 0;
  if (format.numbering > Numbering::kBullet) {
    format.number_start = Below(chance, 20);
    format.number_end = L".)"[Below(chance, 2)];
    format.number_gap = Below(chance, 400);
  }
  for (int at = 100; Below(chance, 3) != 0; at += 1 + Below(chance, 900)) {
    format.tabs.push_back(
        {at, static_cast<TabKind>(Below(chance, 5)), static_cast<std::uint8_t>(Below(chance, 6))});
  }
  return format;
}

inline RtfPicture AnyPicture(Chance& chance, std::size_t at) {
  RtfPicture picture;
  picture.at = at;
  picture.kind = static_cast<PictureKind>(Below(chance, 6));
  for (int i = 1 + Below(chance, 200); i > 0; --i) {
    picture.bytes += static_cast<char>(Below(chance, 256));
  }
  picture.width = Below(chance, 500);
  picture.height_twips = Below(chance, 5000);
  picture.scale_x = 1 + Below(chance, 300);
  picture.crop_top = Below(chance, 100) - 50;
  return picture;
}

// Letters of many scripts, everything that RTF writes in its own way, pictures.
inline RtfDocument AnyDocument(Chance& chance, int length) {
  constexpr wchar_t kUnits[] = {L'a',   L'b',   L' ',   L'\\',  L'{',   L'}',   L';',   L'?',
                                L'\t',  L'\v',  L'\f',  L'\r',  0xA0,   0xAD,   0x105,  0x11F,
                                0x3B1,  0x2014, 0x20AC, 0x4F60, 0xD83D, 0xDE00, 0xE001, 0xF0B7,
                                0x2011, 0x301,  0x5D0,  0x627,  L'1',   L'-',   L'\'',  L'z'};
  RtfDocument document;
  document.fonts = {{L"Tahoma", 0}, {L"Arial CE", 238}, {L"Wingdings", kSymbolCharset}};
  document.paragraphs.push_back({0, 0});
  for (int i = 0; i < 5; ++i) {
    document.char_formats.push_back(AnyCharFormat(chance, 3));
    document.paragraph_formats.push_back(AnyParagraphFormat(chance));
  }
  document.paragraphs[0].format = static_cast<std::uint32_t>(Below(chance, 5));
  for (int i = 0; i < length; ++i) {
    const std::size_t at = document.text.size();
    if (at == 0 || Below(chance, 8) == 0) {
      const auto format = static_cast<std::uint32_t>(Below(chance, 5));
      if (at == 0 || document.runs.back().format != format) document.runs.push_back({at, format});
    }
    if (Below(chance, 40) == 0) {
      document.pictures.push_back(AnyPicture(chance, at));
      document.text += kObject;
      continue;
    }
    document.text += kUnits[Below(chance, static_cast<int>(std::size(kUnits)))];
    if (document.text.back() == kParagraphEnd) {
      document.paragraphs.push_back({at + 1, static_cast<std::uint32_t>(Below(chance, 5))});
    }
  }
  return document;
}

inline std::string Repeated(int times, const std::string& text) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

struct HostileFile {
  std::string rtf;
  RtfFault fault = RtfFault::kNone;
};

// 200 of them.
inline std::vector<HostileFile> HostileFiles() {
  const std::string head = "{\\rtf1\\ansi ";
  std::vector<HostileFile> files;
  for (const int depth : {31, 32, 33, 40, 50, 64, 100, 1000, 10'000, 100'000}) {
    files.push_back(
        {head + Repeated(depth, "{") + "x" + Repeated(depth, "}") + "}", RtfFault::kTooDeep});
    files.push_back({head + Repeated(depth, "{\\b "), RtfFault::kTooDeep});
  }
  for (int depth = 0; depth < 30; ++depth) {
    files.push_back(
        {head + Repeated(depth, "{\\i ") + "x" + Repeated(depth, "}"), RtfFault::kUnbalanced});
    files.push_back({head + Repeated(depth, "{") + Repeated(depth, "}") + "}"});
  }
  for (const char* number : {"9", "4096", "2147483647", "99999999999999999999"}) {
    for (const char* place : {"", "{\\pict\\pngblip", "{\\object{\\*\\objdata", "{\\*\\unknown"}) {
      files.push_back({head + place + "\\bin" + number + " 12}", RtfFault::kBinaryCut});
    }
  }
  for (const char* not_rtf :
       {"", "{", "{\\rt", "rtf", "\\rtf1", " {\\rtf1}", "{\\html1}", "{{\\rtf1}}"}) {
    files.push_back({not_rtf, RtfFault::kNotRtf});
  }
  const std::string parts[] = {
      "{\\object\\objemb{\\*\\objclass Package}{\\*\\objdata 0105000002}{\\result r}}",
      "{\\object\\objautlink\\objupdate{\\*\\objdata 41}{\\*\\unknown{\\result no}}}",
      "{\\field{\\*\\fldinst DDEAUTO cmd /c calc}{\\fldrslt r}}",
      "{\\field{\\*\\fldinst INCLUDEPICTURE http://example.invalid/}{\\fldrslt r}}",
      "{\\*\\template http://example.invalid/t.dot}",
      "{\\fonttbl" + Repeated(20'000, "{\\f9 A;}") + "}",
      "{\\fonttbl{\\f-1 " + std::string(100'000, 'n') + ";}{\\f2147483647 M;}}\\f2147483647 r",
      "{\\colortbl" + Repeated(100'000, ";") + "}\\cf99999\\cf-1 r",
      "{\\pict\\pngblip " + std::string(500'000, 'f') + "}",
      "{\\pict\\wmetafile8\\picw-2147483648\\pich2147483647\\picscalex-5 00}",
      "{\\pict{\\pict{\\pict\\pngblip 00}}}",
      Repeated(40, "\\tx1\\tx-999999999\\tqr") + "r",
      "\\li2147483647\\fi-2147483648\\sl-2147483648\\slmult1\\fs99999999\\up-2147483648 r",
      "\\uc255\\u65535\\uc-1\\u-32768\\u0\\u10\\u65532\\u65529 r",
      "\\ls2147483647\\ilvl-5 r",
      "{\\*\\listtable{\\list" + Repeated(50, "{\\listlevel\\levelnfc-1}") + "}}",
      "\\trowd" + Repeated(1000, "\\cellx1\\cell") + "\\row",
      "\\'",
      "\\'4",
      "\\'zz\\u\\bin\\bin0 \\bin-3 ",
      std::string("\0\1\2\x7F", 4),
      std::string(200'000, 'x'),
      Repeated(5000, "\\par"),
      Repeated(3000, "{\\b x}\\i0"),
  };
  for (const std::string& part : parts) {
    files.push_back({head + part + "}"});
    files.push_back({head + part + "\\par}trailing {{{"});
    files.push_back({head + "{\\*\\unknown " + part + "}{\\header " + part + "}}"});
    files.push_back({head + part, RtfFault::kUnbalanced});
  }
  return files;
}

}  // namespace varnel::test
