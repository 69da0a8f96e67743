// Pictures of files and of the clipboard: bytes to pixels and back, by the platform's own codecs.
// The thread has to be in a ComApartment.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "base/image.h"
#include "win/system/handles.h"

namespace varnel {

using UniqueMetafile = UniqueHandle<HENHMETAFILE, ::DeleteEnhMetaFile>;

enum class PictureFault {
  kNone,
  kTooManyBytes,  // more than kMostPictureBytes
  kUnknownKind,   // none of the kinds that are read
  kTooLarge,      // a side over kLongestPictureSide, or no memory for the pixels
  kDamaged,       // begins like a picture, but is cut off or broken
};

inline constexpr std::size_t kMostPictureBytes = 64 * 1024 * 1024;
inline constexpr int kLongestPictureSide = 8192;

struct DecodedPicture {
  Image image;  // straight opacity; empty when there is a fault
  PictureFault fault = PictureFault::kNone;
};

// Reads BMP, JPEG, GIF (its first frame), PNG, and metafiles (EMF, placeable WMF), which are
// painted on white at their natural size at 96 dots to the inch. The kind is told from the bytes.
DecodedPicture DecodePicture(std::string_view bytes);

// A PNG file of the picture; empty for an empty picture, or when the system refuses.
std::string EncodePng(const Image& image);

// The picture laid on a ground of one colour: every pixel opaque.
Image OnGround(const Image& image, COLORREF ground);

// A metafile that paints the picture, which has to be opaque, pixel for pixel. Null for an empty
// picture.
UniqueMetafile MetafileOf(const Image& image);

// Describes an image's rows to the functions that take device-independent bitmaps.
BITMAPINFO BitmapInfoOf(const Image& image);

}  // namespace varnel
