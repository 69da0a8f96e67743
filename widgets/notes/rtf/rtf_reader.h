// Reads RTF of any origin into an RtfDocument.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "widgets/notes/rtf/code_pages.h"
#include "widgets/notes/rtf/rtf_document.h"

namespace varnel {

inline constexpr std::size_t kMostRtf = 16 * 1024 * 1024;  // bytes of a file
inline constexpr std::size_t kDeepestRtf = 30;             // groups within groups

enum class RtfFault : std::uint8_t {
  kNone,
  kNotRtf,      // does not begin with {\rtf
  kTooBig,      // more than RtfOrigin::most_bytes
  kTooDeep,     // more than kDeepestRtf
  kUnbalanced,  // ends within a group
  kBinaryCut,   // a \bin names more bytes than there are
  kTooMuch      // more pictures or different formats than a document may have
};

// What a file needs that stands outside of it.
struct RtfOrigin {
  int system_page = 1252;                   // of fonts with the system's charset
  const DoubleByteReader* pairs = nullptr;  // see DecodeCharacter
  std::size_t most_bytes = kMostRtf;        // below 4 GB
};

// Where something stands in the RTF, in bytes.
struct RtfSpan {
  std::uint32_t begin = 0;
  std::uint32_t end = 0;
  bool operator==(const RtfSpan&) const = default;
};

// Where in the RTF a document's parts come from.
struct RtfTrace {
  std::vector<RtfSpan> units;       // of each unit of the text, what stands for it
  std::vector<std::uint8_t> skips;  // of each unit: how many characters follow a \uN there
  std::vector<RtfSpan> pictures;    // of each picture, the whole group with its other forms
  std::uint32_t end = 0;            // where the last paragraph ends: at its \par or the last }
};

struct RtfReading {
  RtfFault fault = RtfFault::kNone;
  RtfDocument document;  // whole only without a fault
};

// Takes time in proportion to the size and at most some 100 bytes for each byte. What follows the
// last group is ignored. `trace`, when not null, is filled for a reading without fault.
//
// Tables become lines with a tab between cells. Of fields and objects, what they show is read; of
// groups of unknown kind that may be left out (\*) nothing. Characters that a text cannot hold
// (controls, a kObject without picture) are left out or become U+FFFD.
RtfReading ReadRtf(std::string_view rtf, const RtfOrigin& origin = {}, RtfTrace* trace = nullptr);

}  // namespace varnel
