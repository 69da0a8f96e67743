#include "widgets/notes/rtf/rtf_writer.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace varnel {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

void Put(std::string& rtf, std::string_view word, long value) {
  rtf += '\\';
  rtf += word;
  rtf += std::to_string(value);
}

void PutIf(std::string& rtf, std::string_view word, long value) {
  if (value != 0) Put(rtf, word, value);
}

void PutWord(std::string& rtf, std::string_view word, bool wanted = true) {
  if (!wanted) return;
  rtf += '\\';
  rtf += word;
}

using ColourNumbers = std::map<std::int32_t, int>;

int NumberOf(const ColourNumbers& colours, std::int32_t colour) {
  const auto found = colours.find(colour);
  return found == colours.end() ? 0 : found->second;
}

ColourNumbers ColoursOf(const RtfDocument& document) {
  ColourNumbers colours;
  for (const CharFormat& format : document.char_formats) {
    for (const std::int32_t colour : {format.colour, format.ground}) {
      if (colour != kAutomaticColour) {
        colours.emplace(colour, static_cast<int>(colours.size()) + 1);
      }
    }
  }
  return colours;
}

void PutHeader(std::string& rtf, const RtfDocument& document, const ColourNumbers& colours) {
  rtf += "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0";
  Put(rtf, "deftab", document.default_tab);
  rtf += "{\\fonttbl";
  for (std::size_t i = 0; i < document.fonts.size(); ++i) {
    rtf += '{';
    Put(rtf, "f", static_cast<long>(i));
    rtf += "\\fnil";
    Put(rtf, "fcharset", document.fonts[i].charset);
    rtf += ' ';
    for (const wchar_t unit : document.fonts[i].name) rtf += UnitRtf(unit, 1, AsciiAs::kItself);
    rtf += ";}";
  }
  rtf += "}";
  std::vector<std::int32_t> numbered(colours.size());
  for (const auto& [colour, number] : colours)
    numbered[static_cast<std::size_t>(number) - 1] = colour;
  rtf += "{\\colortbl ;";
  for (const std::int32_t colour : numbered) {
    Put(rtf, "red", colour & 0xFF);
    Put(rtf, "green", colour >> 8 & 0xFF);
    Put(rtf, "blue", colour >> 16 & 0xFF);
    rtf += ';';
  }
  rtf += "}";
  rtf += kLineEnd;
}

void PutToggle(std::string& rtf, std::string_view word, bool before, bool now) {
  if (before == now) return;
  PutWord(rtf, word);
  if (!now) rtf += '0';
}

std::string_view UnderlineWord(Underline underline) {
  constexpr std::string_view kWords[] = {"ulnone", "ul",     "ulw",  "uldb",
                                         "uld",    "uldash", "ulth", "ulwave"};
  return kWords[static_cast<std::size_t>(underline)];
}

// The words that turn the format of the text before into `now`.
void PutChange(std::string& rtf, const CharFormat& before, const CharFormat& now,
               const ColourNumbers& colours) {
  const std::size_t old_size = rtf.size();
  if (before.right_to_left != now.right_to_left)
    PutWord(rtf, now.right_to_left ? "rtlch" : "ltrch");
  if (before.font != now.font) Put(rtf, "f", now.font);
  if (before.half_points != now.half_points) Put(rtf, "fs", now.half_points);
  PutToggle(rtf, "b", before.bold, now.bold);
  PutToggle(rtf, "i", before.italic, now.italic);
  PutToggle(rtf, "strike", before.struck, now.struck);
  PutToggle(rtf, "v", before.hidden, now.hidden);
  PutToggle(rtf, "caps", before.capitals, now.capitals);
  PutToggle(rtf, "scaps", before.small_capitals, now.small_capitals);
  PutWord(rtf, UnderlineWord(now.underline), before.underline != now.underline);
  if (before.script != now.script) {
    constexpr std::string_view kWords[] = {"nosupersub", "super", "sub"};
    PutWord(rtf, kWords[static_cast<std::size_t>(now.script)]);
  }
  if (before.raised != now.raised) Put(rtf, now.raised < 0 ? "dn" : "up", std::abs(now.raised));
  if (before.colour != now.colour) Put(rtf, "cf", NumberOf(colours, now.colour));
  if (before.ground != now.ground) Put(rtf, "highlight", NumberOf(colours, now.ground));
  if (rtf.size() > old_size) rtf += ' ';
}

void PutNumbering(std::string& rtf, const ParagraphFormat& format) {
  constexpr std::string_view kWords[] = {"",        "pnlvlblt", "pndec", "pnlcltr",
                                         "pnucltr", "pnlcrm",   "pnucrm"};
  if (format.numbering == Numbering::kNone) return;
  const bool bullet = format.numbering == Numbering::kBullet;
  rtf += "{\\*\\pn";
  PutWord(rtf, "pnlvlbody", !bullet);
  PutWord(rtf, kWords[static_cast<std::size_t>(format.numbering)]);
  if (!bullet) Put(rtf, "pnstart", format.number_start);
  Put(rtf, "pnindent", format.number_gap);
  if (bullet) rtf += "{\\pntxtb\\'B7}";
  if (format.number_end != 0) {
    rtf += "{\\pntxta ";
    rtf += static_cast<char>(format.number_end);
    rtf += '}';
  }
  rtf += '}';
}

void PutLineSpacing(std::string& rtf, const ParagraphFormat& format) {
  switch (format.line_rule) {
    case LineRule::kSingle:
      return;
    case LineRule::kOneAndHalf:
      rtf += "\\sl360\\slmult1";
      return;
    case LineRule::kDouble:
      rtf += "\\sl480\\slmult1";
      return;
    case LineRule::kAtLeast:
      Put(rtf, "sl", format.line_spacing);
      break;
    case LineRule::kExactly:
      Put(rtf, "sl", -format.line_spacing);
      break;
    case LineRule::kMultiple:
      Put(rtf, "sl", format.line_spacing * 12L);
      break;
  }
  // Some readers take any \slmult for a multiple.
  if (format.line_rule == LineRule::kMultiple) rtf += "\\slmult1";
}

void PutTabs(std::string& rtf, const std::vector<TabStop>& tabs) {
  constexpr std::string_view kKinds[] = {"", "tqc", "tqr", "tqdec", ""};
  constexpr std::string_view kLeaders[] = {"", "tldot", "tlhyph", "tlul", "tlth", "tleq"};
  for (const TabStop& stop : tabs) {
    const auto kind = static_cast<std::size_t>(stop.kind);
    PutWord(rtf, kKinds[kind], !kKinds[kind].empty());
    PutWord(rtf, kLeaders[stop.leader], stop.leader != 0);
    Put(rtf, stop.kind == TabKind::kBar ? "tb" : "tx", stop.at);
  }
}

void PutParagraph(std::string& rtf, const ParagraphFormat& format) {
  constexpr std::string_view kAlignments[] = {"ql", "qr", "qc", "qj"};
  rtf += "\\pard";
  PutNumbering(rtf, format);
  PutWord(rtf, "rtlpar", format.right_to_left);
  PutWord(rtf, "pagebb", format.page_break_before);
  PutWord(rtf, "keep", format.keep_together);
  PutWord(rtf, "keepn", format.keep_with_next);
  PutWord(rtf, kAlignments[static_cast<std::size_t>(format.alignment)],
          format.alignment != Alignment::kLeft);
  PutIf(rtf, "fi", format.first);
  PutIf(rtf, "li", format.left);
  PutIf(rtf, "ri", format.right);
  PutIf(rtf, "sb", format.space_before);
  PutIf(rtf, "sa", format.space_after);
  PutLineSpacing(rtf, format);
  PutTabs(rtf, format.tabs);
  if (rtf.back() != '}') rtf += ' ';
}

std::string_view PictureWord(PictureKind kind) {
  constexpr std::string_view kWords[] = {"pngblip",   "jpegblip", "emfblip",
                                         "wmetafile", "dibitmap", "wbitmap"};
  return kWords[static_cast<std::size_t>(kind)];
}

}  // namespace

std::string UnitRtf(wchar_t unit, int skip, AsciiAs ascii) {
  switch (unit) {
    case L'\t':
      return "\\tab ";
    case kLineBreak:
      return "\\line ";
    case kPageBreak:
      return "\\page ";
    case kParagraphEnd:
      return "\\par" + std::string(kLineEnd);
    default:
      break;
  }
  std::string rtf;
  if (unit >= L' ' && unit <= L'~' && ascii == AsciiAs::kItself) {
    if (unit == L'\\' || unit == L'{' || unit == L'}') rtf += '\\';
    return rtf += static_cast<char>(unit);
  }
  const long code = static_cast<std::int16_t>(static_cast<std::uint16_t>(unit));
  Put(rtf, "u", code);
  if (skip <= 0) return rtf += ' ';
  // Question marks, in the form after which no reader drops the letters that follow.
  for (int i = 0; i < skip; ++i) rtf += "\\'3f";
  return rtf;
}

std::string PictureRtf(const RtfPicture& picture) {
  std::string rtf = "{\\pict";
  PutWord(rtf, PictureWord(picture.kind));
  const bool is_wmf = picture.kind == PictureKind::kWmf;
  const bool has_number = picture.kind == PictureKind::kDib || picture.kind == PictureKind::kBitmap;
  if (is_wmf) rtf += std::to_string(picture.metafile_mode);
  if (has_number) rtf += '0';
  PutIf(rtf, "picw", picture.width);
  PutIf(rtf, "pich", picture.height);
  PutIf(rtf, "picwgoal", picture.width_twips);
  PutIf(rtf, "pichgoal", picture.height_twips);
  if (picture.scale_x != 100) Put(rtf, "picscalex", picture.scale_x);
  if (picture.scale_y != 100) Put(rtf, "picscaley", picture.scale_y);
  PutIf(rtf, "piccropl", picture.crop_left);
  PutIf(rtf, "piccropt", picture.crop_top);
  PutIf(rtf, "piccropr", picture.crop_right);
  PutIf(rtf, "piccropb", picture.crop_bottom);
  rtf += kLineEnd;
  constexpr std::string_view kDigits = "0123456789abcdef";
  constexpr std::size_t kBytesPerLine = 64;
  rtf.reserve(rtf.size() + picture.bytes.size() * 2 + picture.bytes.size() / 32 + 8);
  for (std::size_t i = 0; i < picture.bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(picture.bytes[i]);
    rtf += kDigits[byte >> 4];
    rtf += kDigits[byte & 0xF];
    if (i % kBytesPerLine == kBytesPerLine - 1) rtf += kLineEnd;
  }
  return rtf += '}';
}

std::string WriteRtf(const RtfDocument& document, wchar_t placeholder) {
  const ColourNumbers colours = ColoursOf(document);
  std::string rtf;
  rtf.reserve(document.text.size() * 2 + 1024);
  PutHeader(rtf, document, colours);
  CharFormat format;
  format.font = 0xFFFF;  // so that the first run names its font and size
  format.half_points = 0;
  rtf += "\\plain";
  std::size_t run = 0;
  std::size_t paragraph = 0;
  std::size_t picture = 0;
  std::uint32_t shown = UINT32_MAX;
  AsciiAs ascii = AsciiAs::kItself;
  for (std::size_t i = 0; i < document.text.size(); ++i) {
    if (paragraph < document.paragraphs.size() && document.paragraphs[paragraph].begin == i) {
      const std::uint32_t wanted = document.paragraphs[paragraph++].format;
      if (wanted != shown) PutParagraph(rtf, document.paragraph_formats[wanted]);
      shown = wanted;
    }
    if (run < document.runs.size() && document.runs[run].begin == i) {
      const CharFormat& next = document.char_formats[document.runs[run++].format];
      PutChange(rtf, format, next, colours);
      format = next;
      ascii = document.fonts[format.font].charset == kSymbolCharset ? AsciiAs::kUnicode
                                                                    : AsciiAs::kItself;
    }
    const bool is_object = document.text[i] == kObject && picture < document.pictures.size();
    if (is_object && placeholder == 0) {
      rtf += PictureRtf(document.pictures[picture++]);
    } else {
      rtf += UnitRtf(is_object ? placeholder : document.text[i], 1, ascii);
    }
  }
  if (paragraph < document.paragraphs.size()) {
    const std::uint32_t wanted = document.paragraphs[paragraph].format;
    if (wanted != shown) PutParagraph(rtf, document.paragraph_formats[wanted]);
  }
  return rtf += "\\par" + std::string(kLineEnd) + "}" + std::string(kLineEnd);
}

}  // namespace varnel
