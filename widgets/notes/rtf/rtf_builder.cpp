#include "widgets/notes/rtf/rtf_builder.h"

#include <utility>

namespace varnel {

template <typename Format>
std::uint32_t RtfBuilder::IndexOf(const Format& format, std::map<Format, std::uint32_t>& known,
                                  std::vector<Format>& all) {
  if (!all.empty() && all.back() == format) return static_cast<std::uint32_t>(all.size() - 1);
  const auto found = known.find(format);
  if (found != known.end()) return found->second;
  if (all.size() >= kMostFormats) {
    full_ = true;
    return 0;
  }
  const auto index = static_cast<std::uint32_t>(all.size());
  known.emplace(format, index);
  all.push_back(format);
  return index;
}

void RtfBuilder::StartRun() {
  changed_ = false;
  const std::uint32_t index = IndexOf(format_, known_chars_, document_.char_formats);
  if (!document_.runs.empty() && document_.runs.back().format == index) return;
  document_.runs.push_back({size(), index});
}

void RtfBuilder::Add(wchar_t unit) {
  if (changed_) StartRun();
  document_.text.push_back(unit);
}

void RtfBuilder::AddAscii(std::string_view bytes) {
  if (bytes.empty()) return;
  if (changed_) StartRun();
  document_.text.append(bytes.begin(), bytes.end());
}

void RtfBuilder::AddPicture(RtfPicture picture) {
  if (document_.pictures.size() >= kMostPictures) {
    full_ = true;
    return;
  }
  picture.at = size();
  document_.pictures.push_back(std::move(picture));
  Add(kObject);
}

void RtfBuilder::EndParagraph(const ParagraphFormat& format) {
  Add(kParagraphEnd);
  document_.paragraphs.push_back(
      {paragraph_begin_, IndexOf(format, known_paragraphs_, document_.paragraph_formats)});
  paragraph_begin_ = size();
}

RtfDocument RtfBuilder::Finish(const ParagraphFormat& format) {
  if (!document_.text.empty() && paragraph_begin_ == size()) {
    document_.text.pop_back();
    if (!document_.runs.empty() && document_.runs.back().begin == size()) document_.runs.pop_back();
  } else {
    document_.paragraphs.push_back(
        {paragraph_begin_, IndexOf(format, known_paragraphs_, document_.paragraph_formats)});
  }
  return std::move(document_);
}

}  // namespace varnel
