// The pages of a document that is one picture.
#pragma once

#include <vector>

#include "frame/pages/page.h"
#include "frame/pages/page_setup.h"

namespace varnel {

// What one page shows of a picture.
struct PicturePart {
  Rect pixels;  // of the picture
  Rect area;    // twips of the sheet
  bool operator==(const PicturePart&) const = default;
};

// Fitted, the whole picture is as large as `column` lets it, in its middle across and at its top.
// In its own size, `dpi` of its pixels to the inch, it goes on beside and below on further pages
// where the column is too small. A side under 1 gives one page with nothing; there are 400 pages at
// most.
std::vector<PicturePart> PlacePicture(Size picture, int dpi, const Rect& column, bool fitted);

// Part i is the picture of number i.
class PicturePages : public PageSource {
 public:
  explicit PicturePages(std::vector<PicturePart> parts) : parts_(std::move(parts)) {}

  PageCount Count() const override { return {parts_.size(), true}; }
  PageCount Settle(std::size_t) override { return Count(); }
  Page At(std::size_t index) override;

 private:
  std::vector<PicturePart> parts_;
};

}  // namespace varnel
