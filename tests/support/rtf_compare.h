// Formatted texts compared, and looked into.
#pragma once

#include <gtest/gtest.h>

#include "widgets/notes/rtf/rtf_document.h"

namespace varnel::test {

inline const ParagraphFormat& ParagraphOf(const RtfDocument& document, std::size_t index = 0) {
  return document.paragraph_formats[document.paragraphs.at(index).format];
}

inline const CharFormat& FormatOf(const RtfDocument& document, std::size_t run) {
  return document.char_formats[document.runs.at(run).format];
}

inline void ExpectSame(const RtfDocument& read, const RtfDocument& written) {
  ASSERT_EQ(read.text, written.text);
  EXPECT_EQ(read.fonts, written.fonts);
  EXPECT_EQ(read.pictures, written.pictures);
  ASSERT_EQ(read.runs.size(), written.runs.size());
  for (std::size_t i = 0; i < read.runs.size(); ++i) {
    EXPECT_EQ(read.runs[i].begin, written.runs[i].begin);
    EXPECT_TRUE(FormatOf(read, i) == FormatOf(written, i)) << i;
  }
  ASSERT_EQ(read.paragraphs.size(), written.paragraphs.size());
  for (std::size_t i = 0; i < read.paragraphs.size(); ++i) {
    EXPECT_EQ(read.paragraphs[i].begin, written.paragraphs[i].begin);
    EXPECT_TRUE(ParagraphOf(read, i) == ParagraphOf(written, i)) << i;
  }
}

}  // namespace varnel::test
