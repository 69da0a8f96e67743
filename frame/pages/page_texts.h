// Headers and footers: texts with fields, and where they stand in the margins.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "frame/pages/page.h"
#include "frame/pages/page_setup.h"

namespace varnel {

// What the fields of a header or footer stand for.
struct PageFields {
  int page = 1;  // counted from 1
  int pages = 1;
  std::wstring title{};
  std::wstring file{};
  std::wstring date{};
  std::wstring time{};
};

// One field as the user writes it and knows it.
struct PageField {
  wchar_t letter;  // after an ampersand, either case
  std::wstring_view name;
};
inline constexpr std::array<PageField, 6> kPageFields = {{{L'P', L"Page number"},
                                                          {L'N', L"Number of pages"},
                                                          {L'T', L"Title"},
                                                          {L'F', L"File name"},
                                                          {L'D', L"Date"},
                                                          {L'H', L"Time"}}};

// The text with its fields filled in. "&&" is an ampersand; one before anything else stands as it
// is written.
std::wstring FilledIn(std::wstring_view text, const PageFields& fields);

// Nothing of a page's header or footer that is not to be there.
PageLine HeaderOf(const PageTexts& texts, const PageFields& fields);
PageLine FooterOf(const PageTexts& texts, const PageFields& fields);

// Where the three texts of a line stand, from `widths` that they would take (0: none), within
// `room` from 0 on. None overlaps another: what is too wide gets less than it wants. Left and
// width.
struct TextSpan {
  int left = 0;
  int width = 0;
  bool operator==(const TextSpan&) const = default;
};
std::array<TextSpan, 3> PlaceTexts(const std::array<int, 3>& widths, int room);

// The band of a margin in which the line stands in the middle: the header's above the column, the
// footer's below it.
Rect HeaderBand(const PageSetup& setup);
Rect FooterBand(const PageSetup& setup);

// Adds the header and the footer to a page that was laid out for the setup's column.
void AddPageTexts(Page& page, const PageSetup& setup, const PageFields& fields,
                  PageMeasure& measure);

}  // namespace varnel
