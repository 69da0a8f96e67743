#include "widgets/notes/pages/note_paper_win.h"

#include <utility>

#include "widgets/notes/editor/note_pictures_win.h"
#include "widgets/notes/pages/note_pages.h"

namespace varnel {

NotePaper::NotePaper(std::wstring title, std::wstring file, RtfDocument document,
                     wchar_t decimal_point)
    : title_(std::move(title)),
      file_(std::move(file)),
      document_(std::move(document)),
      decimal_point_(decimal_point),
      pictures_(document_.pictures.size()) {}

std::unique_ptr<PageSource> NotePaper::Pages(const PageSetup& setup, PageMeasure& measure) {
  return std::make_unique<NotePages>(document_, ColumnOf(setup), measure, decimal_point_);
}

std::shared_ptr<const PagePicture> NotePaper::Picture(std::size_t index) {
  if (index >= pictures_.size()) return nullptr;
  std::shared_ptr<const PagePicture> picture = pictures_[index].lock();
  if (!picture) pictures_[index] = picture = PrintedPicture(document_.pictures[index]);
  return picture;
}

}  // namespace varnel
