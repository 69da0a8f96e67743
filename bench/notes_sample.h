// A formatted note for the timings.
#pragma once

#include <iterator>
#include <random>
#include <string>

namespace varnel::bench {

inline constexpr std::size_t kMegabyte = 1 << 20;

// Formatted text as people have it: a change of format every few words, letters beyond ASCII in
// one word of five.
inline std::string MadeUpRtf() {
  constexpr const char* kFormats[] = {"\\b ",    "\\b0 ",   "\\i ",   "\\i0 ",
                                      "\\fs28 ", "\\fs24 ", "\\cf1 ", "\\cf0 "};
  std::mt19937 random(13);
  std::string rtf =
      "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0{\\fonttbl{\\f0\\fcharset0 Tahoma;}}"
      "{\\colortbl ;\\red200\\green0\\blue0;}\\pard\\plain\\fs24 ";
  while (rtf.size() < kMegabyte) {
    if (random() % 6 == 0) rtf += kFormats[random() % std::size(kFormats)];
    rtf += random() % 5 == 0 ? "caf\\'e9 \\u380?\\u243?\\u322?w " : "of plain words ";
    if (random() % 12 == 0) rtf += "\\par\r\n";
  }
  return rtf + "\\par}";
}

}  // namespace varnel::bench
