// The machine behind ReadRtf.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "widgets/notes/rtf/rtf_builder.h"
#include "widgets/notes/rtf/rtf_formats.h"
#include "widgets/notes/rtf/rtf_header_tables.h"
#include "widgets/notes/rtf/rtf_reader.h"
#include "widgets/notes/rtf/rtf_tokens.h"

namespace varnel {

class RtfGroupReader {
 public:
  RtfGroupReader(std::string_view rtf, const RtfOrigin& origin, RtfTrace* trace)
      : tokens_(rtf), origin_(origin), trace_(trace) {}

  RtfReading Read();

 private:
  // What a group inherits and its end gives back.
  struct Group {
    RtfDestination destination = RtfDestination::kText;
    CharFormat format;
    ParagraphState paragraph;
    int page = 0;                   // code page of the font; 0: the file's
    std::int32_t skip = 1;          // characters that follow each \uN
    bool in_wrapper = false;        // this group or one around it is all there is of a picture
    bool wraps_picture = false;     // this one
    std::size_t first_picture = 0;  // how many pictures there were before it
    std::size_t begin = 0;
    std::size_t after = 0;  // the end of what came before it
  };

  void Take(const RtfToken& token);
  void Open(const RtfToken& token);
  void Close(const RtfToken& token);
  void Word(const RtfToken& token);
  void Symbol(const RtfToken& token);
  void Text(const RtfToken& token);
  void SwitchTo(RtfDestination destination);
  bool HoldsParagraph() const;
  void Body(const RtfWordUse& use);
  static bool IsTable(RtfDestination destination);  // groups without text of the document
  void InTable(const RtfWordUse& use);
  void Unicode(std::int32_t value, RtfSpan from);

  // Characters: bytes of a code page, then units, then what the group makes of them.
  void Byte(unsigned char byte, std::uint32_t begin, std::uint32_t end);
  void FlushBytes();
  void Unit(wchar_t unit, RtfSpan from);
  void TextUnit(wchar_t unit, RtfSpan from);
  void FlushCell();
  void EndParagraph(RtfSpan from);
  void EndCell(RtfSpan from);
  void EndRow(RtfSpan from);
  void PictureBytes(std::string_view bytes);
  void EndPicture(RtfSpan from);
  void TracePictures(const Group& closed, std::uint32_t end);
  ParagraphFormat FormatOfParagraph();
  void Trace(RtfSpan from);
  int Page() const;
  Group& group() { return groups_.back(); }

  RtfTokens tokens_;
  RtfOrigin origin_;
  RtfTrace* trace_;
  RtfFault fault_ = RtfFault::kNone;
  std::vector<Group> groups_;
  RtfBuilder builder_;
  RtfFontTable fonts_;
  RtfColourTable colours_;
  RtfListTable lists_;
  int file_page_ = 1252;
  ParagraphFormat last_paragraph_;
  std::int32_t default_font_ = 0;
  std::int32_t default_tab_ = 720;

  std::size_t previous_end_ = 0;  // of the token before
  bool may_be_left_out_ = false;  // after \*
  std::int32_t skipping_ = 0;     // characters still to be left out after a \uN
  bool skip_is_traced_ = false;   // what is left out belongs to the last unit
  std::string bytes_;             // of a character that is not whole yet
  RtfSpan bytes_from_;
  std::optional<RtfSpan> cell_;  // ended; the tab after it is added only if another one follows
  std::wstring list_text_;       // of the paragraph, when it is numbered by text alone
  std::optional<RtfPicture> picture_;
  bool picture_known_ = false;
  int picture_nibble_ = -1;  // the first half of a byte
  bool shape_has_picture_ = false;
};

}  // namespace varnel
