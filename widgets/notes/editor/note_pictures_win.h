// Pictures of a note: the bytes that its file keeps, and how they look in the editor.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/pages/paged_document_win.h"
#include "widgets/notes/rtf/rtf_document.h"
#include "win/rich/rich_picture.h"

namespace varnel {

// The most bytes that the pictures of a note may have together: a file holds twice as many
// characters for them, and has to stay readable.
inline constexpr std::size_t kMostPicturesBytes = 7 * 1024 * 1024;

// The picture that a file holds, or what was copied: BMP and GIF become PNG, pixel for pixel.
// Nothing when it is none that can be read.
std::optional<RtfPicture> PictureOfFile(std::string_view bytes);
std::optional<RtfPicture> PictureOfImage(const Image& image);

// The pictures that the editor shows, or may show again by undo, known to it by numbers from 1.
class NotePictures {
 public:
  void Clear() { pictures_.clear(); }
  std::uint32_t Add(RtfPicture picture);
  // Those shown, in their order; nothing when one is not known.
  std::optional<std::vector<RtfPicture>> Of(std::span<const RichPicture> shown) const;
  // The bytes of those shown.
  std::size_t Bytes(std::span<const RichPicture> shown) const;

 private:
  std::vector<RtfPicture> pictures_;
};

struct PictureLook {
  SharedMetafile look;
  Size size;  // in hundredths of a millimetre
};
// What the editor shows of a picture, at most `most_width` hundredths of a millimetre wide. A
// picture that cannot be read is a grey sheet.
PictureLook LookOf(const RtfPicture& picture, int most_width);

// The picture for paper, cropped: all pixels that there are, and metafiles as they were drawn. Null
// for one that cannot be read.
std::shared_ptr<const PagePicture> PrintedPicture(const RtfPicture& picture);

}  // namespace varnel
