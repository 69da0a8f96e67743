#include "widgets/notes/rtf/rtf_mend.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "widgets/notes/rtf/rtf_tokens.h"
#include "widgets/notes/rtf/rtf_writer.h"

namespace varnel {
namespace {

struct Edit {
  std::uint32_t begin = 0;
  std::uint32_t end = 0;
  std::string text;
};

// A stretch of units, from `begin` up to `end`.
struct Stretch {
  std::size_t begin = 0;
  std::size_t end = 0;
  std::size_t length() const { return end - begin; }
};

bool IsStructure(wchar_t unit) {
  return unit == kObject || unit == kLineBreak || unit == kPageBreak;
}

bool Agree(wchar_t written, wchar_t shown) {
  // A control may show a blank for what is none.
  return written == shown || (shown == L' ' && (written == kObject || written == kLineBreak));
}

class Mender {
 public:
  Mender(const RtfReading& reading, const RtfTrace& trace, const EditorTruth& truth)
      : document_(reading.document), trace_(trace), truth_(truth) {}

  // False when the two cannot be brought together.
  bool Compare() {
    std::size_t shown = 0;
    for (std::size_t i = 0; i < document_.paragraphs.size(); ++i) {
      const bool is_last = i + 1 == document_.paragraphs.size();
      const std::size_t begin = document_.paragraphs[i].begin;
      const std::size_t end =
          is_last ? document_.text.size() : document_.paragraphs[i + 1].begin - 1;
      const std::size_t shown_end =
          std::min(truth_.text.find(kParagraphEnd, shown), truth_.text.size());
      if (is_last != (shown_end == truth_.text.size())) return false;
      if (!CompareParagraph({begin, end}, {shown, shown_end})) return false;
      CompareIndents(i, end);
      shown = shown_end + 1;
    }
    return truth_.indents.empty() || truth_.indents.size() == document_.paragraphs.size();
  }

  std::string Applied(std::string_view rtf) const {
    std::string mended;
    std::size_t done = 0;
    for (const Edit& edit : edits_) {
      mended += rtf.substr(done, edit.begin - done);
      mended += edit.text;
      done = edit.end;
    }
    return mended += rtf.substr(done);
  }

  bool empty() const { return edits_.empty(); }

 private:
  bool CompareParagraph(Stretch written, Stretch shown) {
    const std::wstring_view text = document_.text;
    if (written.length() == shown.length()) {
      for (std::size_t i = 0; i < written.length();) {
        const std::size_t from = i;
        bool agrees = true;
        do {
          agrees &= Agree(text[written.begin + i], truth_.text[shown.begin + i]);
          ++i;
        } while (i < written.length() && SharesSpan(written.begin + i));
        const Stretch differing{written.begin + from, written.begin + i};
        if (!agrees && !Rewrite(differing, {shown.begin + from, shown.begin + i})) return false;
      }
      return true;
    }
    while (written.begin < written.end && shown.begin < shown.end &&
           Agree(text[written.begin], truth_.text[shown.begin])) {
      ++written.begin;
      ++shown.begin;
    }
    while (written.begin < written.end && shown.begin < shown.end &&
           Agree(text[written.end - 1], truth_.text[shown.end - 1])) {
      --written.end;
      --shown.end;
    }
    while (SharesSpan(written.begin) && shown.begin > 0) {
      --written.begin;
      --shown.begin;
    }
    while (SharesSpan(written.end)) {
      ++written.end;
      ++shown.end;
    }
    return Rewrite(written, shown);
  }

  // Whether the unit comes from the same character in the RTF as the one before it.
  bool SharesSpan(std::size_t unit) const {
    return unit > 0 && unit < trace_.units.size() && trace_.units[unit] == trace_.units[unit - 1];
  }

  std::uint32_t BeginOf(std::size_t unit) const {
    return unit < trace_.units.size() ? trace_.units[unit].begin : trace_.end;
  }

  bool Rewrite(Stretch written, Stretch shown) {
    const std::wstring_view old =
        std::wstring_view(document_.text).substr(written.begin, written.length());
    const std::wstring_view now = truth_.text.substr(shown.begin, shown.length());
    if (std::ranges::any_of(old, IsStructure) || std::ranges::any_of(now, IsStructure))
      return false;
    const int skip =
        trace_.skips.empty() ? 1 : trace_.skips[std::min(written.begin, trace_.skips.size() - 1)];
    std::string text;
    for (const wchar_t unit : now) text += UnitRtf(unit, skip, AsciiAs::kUnicode);
    if (written.length() == 0) {
      edits_.push_back({BeginOf(written.begin), BeginOf(written.begin), text});
      return true;
    }
    // All is told at the place of the first; an empty group keeps a word before it from growing.
    for (std::size_t i = written.begin; i < written.end; ++i) {
      if (i > written.begin && SharesSpan(i)) continue;
      const bool is_first = i == written.begin;
      edits_.push_back(
          {trace_.units[i].begin, trace_.units[i].end, is_first && !text.empty() ? text : "{}"});
    }
    return true;
  }

  void CompareIndents(std::size_t paragraph, std::size_t end) {
    if (paragraph >= truth_.indents.size()) return;
    const ParagraphFormat& format =
        document_.paragraph_formats[document_.paragraphs[paragraph].format];
    const ParagraphIndents& wanted = truth_.indents[paragraph];
    const bool differs = ParagraphIndents{format.left, format.first, format.right} != wanted;
    // What is said of one paragraph holds for the next, unless that says otherwise.
    if (differs || indents_changed_) {
      edits_.push_back({BeginOf(end), BeginOf(end),
                        "\\li" + std::to_string(wanted.left) + "\\fi" +
                            std::to_string(wanted.first) + "\\ri" + std::to_string(wanted.right) +
                            " "});
    }
    indents_changed_ = differs;
  }

  const RtfDocument& document_;
  const RtfTrace& trace_;
  const EditorTruth& truth_;
  std::vector<Edit> edits_;
  bool indents_changed_ = false;
};

// Half a point is ten twips.
std::string WithRaisedInHalfPoints(std::string_view rtf) {
  std::string mended;
  std::size_t done = 0;
  RtfTokens tokens(rtf);
  for (RtfToken token = tokens.Next(); token.kind != RtfTokenKind::kEnd; token = tokens.Next()) {
    if (token.kind != RtfTokenKind::kWord || (token.text != "up" && token.text != "dn")) continue;
    mended += rtf.substr(done, token.begin - done);
    mended += "\\" + std::string(token.text) +
              std::to_string(token.value / 10 + (token.value % 10 >= 5 ? 1 : 0)) + " ";
    done = token.end;
  }
  return mended += rtf.substr(done);
}

std::vector<ParagraphIndents> IndentsOfSwapped(const RtfDocument& document) {
  std::vector<ParagraphIndents> indents;
  for (const RtfParagraph& paragraph : document.paragraphs) {
    const ParagraphFormat& written = document.paragraph_formats[paragraph.format];
    indents.push_back({written.left + written.first, -written.left, written.right});
  }
  return indents;
}

std::optional<std::string> MendLettersAndIndents(std::string rtf, EditorTruth truth,
                                                 const RtfOrigin& origin) {
  RtfTrace trace;
  const RtfReading reading = ReadRtf(rtf, origin, &trace);
  if (reading.fault != RtfFault::kNone) return std::nullopt;
  std::vector<ParagraphIndents> indents;
  if (truth.swapped_indents) truth.indents = indents = IndentsOfSwapped(reading.document);
  Mender mender(reading, trace, truth);
  if (!mender.Compare()) return std::nullopt;
  if (mender.empty()) return rtf;
  std::string mended = mender.Applied(rtf);
  RtfTrace new_trace;
  const RtfReading again = ReadRtf(mended, origin, &new_trace);
  if (again.fault != RtfFault::kNone) return std::nullopt;
  Mender check(again, new_trace, truth);
  if (!check.Compare() || !check.empty()) return std::nullopt;
  return mended;
}

}  // namespace

std::optional<std::string> MendRtf(std::string_view control_rtf, const EditorTruth& truth,
                                   const RtfOrigin& origin) {
  const auto has = [&](std::string_view word) {
    return control_rtf.find(word) != std::string_view::npos;
  };
  const bool raised = truth.raised_in_twips && (has("\\up") || has("\\dn"));
  return MendLettersAndIndents(
      raised ? WithRaisedInHalfPoints(control_rtf) : std::string(control_rtf), truth, origin);
}

}  // namespace varnel
