// Puts an RtfDocument together, character by character.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string_view>

#include "widgets/notes/rtf/rtf_document.h"

namespace varnel {

class RtfBuilder {
 public:
  // Beyond these a document is refused: full() stays true.
  static constexpr std::size_t kMostFormats =
      16'384;  // different ones, of characters or paragraphs
  static constexpr std::size_t kMostPictures = 4'096;

  // To be called when the format of what follows may differ from that of what came before.
  void SetFormat(const CharFormat& format) {
    format_ = format;
    changed_ = true;
  }
  void Add(wchar_t unit);
  void AddAscii(std::string_view bytes);
  void AddPicture(RtfPicture picture);
  // Ends the paragraph that the text is in with a kParagraphEnd.
  void EndParagraph(const ParagraphFormat& format);
  // Gives the last paragraph its format and hands out the document. A kParagraphEnd that ends the
  // text goes, unless something was added after it: RTF ends its last paragraph like the others.
  RtfDocument Finish(const ParagraphFormat& format);

  std::size_t size() const { return document_.text.size(); }
  bool full() const { return full_; }
  RtfLosses& losses() { return document_.losses; }

 private:
  void StartRun();
  template <typename Format>
  std::uint32_t IndexOf(const Format& format, std::map<Format, std::uint32_t>& known,
                        std::vector<Format>& all);

  RtfDocument document_;
  CharFormat format_;
  bool changed_ = true;
  bool full_ = false;
  std::size_t paragraph_begin_ = 0;
  std::map<CharFormat, std::uint32_t> known_chars_;
  std::map<ParagraphFormat, std::uint32_t> known_paragraphs_;
};

}  // namespace varnel
