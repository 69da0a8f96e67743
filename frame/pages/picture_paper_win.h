// A picture as a document to be printed, and pictures of pixels on any page.
#pragma once

#include <memory>
#include <string>

#include "base/image.h"
#include "frame/pages/paged_document_win.h"
#include "frame/pages/picture_pages.h"

namespace varnel {

class ImagePicture : public PagePicture {
 public:
  // `part` of an image whose pixels are opaque.
  ImagePicture(std::shared_ptr<const Image> image, const Rect& part)
      : image_(std::move(image)), part_(part) {}
  void Draw(HDC dc, const Rect& area, bool colour) const override;

 private:
  std::shared_ptr<const Image> image_;
  Rect part_;
};

class PicturePaper : public PagedDocument {
 public:
  // `dpi`: how many of its pixels make an inch in actual size.
  PicturePaper(std::wstring title, std::wstring file, Image image, int dpi)
      : title_(std::move(title)),
        file_(std::move(file)),
        image_(std::make_shared<Image>(std::move(image))),
        dpi_(dpi) {}

  std::wstring title() const override { return title_; }
  std::wstring file() const override { return file_; }
  bool is_picture() const override { return true; }
  std::unique_ptr<PageSource> Pages(const PageSetup& setup, PageMeasure& measure) override;
  std::shared_ptr<const PagePicture> Picture(std::size_t index) override;

 private:
  std::wstring title_;
  std::wstring file_;
  std::shared_ptr<const Image> image_;
  int dpi_;
  std::vector<PicturePart> parts_;
};

}  // namespace varnel
