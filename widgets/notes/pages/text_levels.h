// The order in which characters of both directions stand on a line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace varnel {

// Whether the text has a character that is written from right to left.
bool HasRightToLeft(std::wstring_view text);

// For each unit its level: even for what runs left to right, odd for right to left, at most 2; in
// a paragraph of right to left none is 0. These are the levels of Unicode's bidirectional algorithm
// without its controls, whose embeddings count for nothing. A tab has the paragraph's level.
std::vector<std::uint8_t> LevelsOf(std::wstring_view text, bool right_to_left);

// The places of the items of a line, whose levels are given, from left to right.
std::vector<std::size_t> VisualOrder(std::span<const std::uint8_t> levels);

}  // namespace varnel
