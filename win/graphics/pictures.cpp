#include "win/graphics/pictures.h"

#include <wincodec.h>

#include <algorithm>
#include <optional>

#include "base/metafile.h"
#include "base/pixel_mix.h"
#include "win/graphics/surface.h"
#include "win/graphics/system_rect.h"
#include "win/system/com.h"

namespace varnel {
namespace {

struct Codec {
  std::string_view signature;
  const CLSID& decoder;
};

// Only the codecs that come with the system: any other that is installed on a machine is none of
// the program's business.
std::optional<CLSID> DecoderFor(std::string_view bytes) {
  static const Codec kCodecs[] = {{"BM", CLSID_WICBmpDecoder},
                                  {"\xFF\xD8\xFF", CLSID_WICJpegDecoder},
                                  {"GIF8", CLSID_WICGifDecoder},
                                  {"\x89PNG\r\n\x1A\n", CLSID_WICPngDecoder}};
  const auto* found = std::ranges::find_if(
      kCodecs, [bytes](const Codec& codec) { return bytes.starts_with(codec.signature); });
  if (found == std::end(kCodecs)) return std::nullopt;
  return found->decoder;
}

ComPointer<IWICImagingFactory> MakeFactory() {
  ComPointer<IWICImagingFactory> factory;
  ::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                     factory.ReceiveAny());
  return factory;
}

bool FitsBounds(UINT width, UINT height) {
  return width >= 1 && height >= 1 && width <= kLongestPictureSide && height <= kLongestPictureSide;
}

// The codecs ask for no more bytes than one call can name.
bool CopyRows(IWICBitmapSource& source, Image& image) {
  const auto stride = static_cast<UINT>(image.width()) * 4;
  for (int y = 0; y < image.height(); ++y) {
    const WICRect row = {0, y, image.width(), 1};
    if (FAILED(source.CopyPixels(&row, stride, stride,
                                 reinterpret_cast<BYTE*>(image.Row(y).data())))) {
      return false;
    }
  }
  return true;
}

DecodedPicture DecodeFrame(IWICImagingFactory& factory, IWICBitmapFrameDecode& frame) {
  UINT width = 0;
  UINT height = 0;
  if (FAILED(frame.GetSize(&width, &height))) return {{}, PictureFault::kDamaged};
  if (!FitsBounds(width, height)) return {{}, PictureFault::kTooLarge};
  ComPointer<IWICFormatConverter> converter;
  if (FAILED(factory.CreateFormatConverter(converter.Receive())) ||
      FAILED(converter->Initialize(&frame, GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone,
                                   nullptr, 0, WICBitmapPaletteTypeCustom))) {
    return {{}, PictureFault::kDamaged};
  }
  DecodedPicture picture = {Image(static_cast<int>(width), static_cast<int>(height))};
  if (!CopyRows(*converter.get(), picture.image)) return {{}, PictureFault::kDamaged};
  return picture;
}

DecodedPicture DecodeBitmap(const CLSID& decoder_class, std::string_view bytes) {
  const ComPointer<IWICImagingFactory> factory = MakeFactory();
  ComPointer<IWICStream> stream;
  ComPointer<IWICBitmapDecoder> decoder;
  ComPointer<IWICBitmapFrameDecode> frame;
  // The stream is only read from.
  auto* data = reinterpret_cast<BYTE*>(const_cast<char*>(bytes.data()));
  if (!factory || FAILED(factory->CreateStream(stream.Receive())) ||
      FAILED(stream->InitializeFromMemory(data, static_cast<DWORD>(bytes.size()))) ||
      FAILED(::CoCreateInstance(decoder_class, nullptr, CLSCTX_INPROC_SERVER, IID_IWICBitmapDecoder,
                                decoder.ReceiveAny())) ||
      FAILED(decoder->Initialize(stream.get(), WICDecodeMetadataCacheOnDemand)) ||
      FAILED(decoder->GetFrame(0, frame.Receive()))) {
    return {{}, PictureFault::kDamaged};
  }
  return DecodeFrame(*factory.get(), *frame.get());
}

UniqueMetafile MakeMetafile(MetafileFrame frame, std::string_view bytes) {
  if (frame.kind == MetafileKind::kPlaceable) bytes.remove_prefix(kPlaceableHeaderBytes);
  const auto* data = reinterpret_cast<const BYTE*>(bytes.data());
  const auto size = static_cast<UINT>(bytes.size());
  if (frame.kind == MetafileKind::kEnhanced) {
    return UniqueMetafile(::SetEnhMetaFileBits(size, data));
  }
  // In hundredths of a millimetre.
  METAFILEPICT extent = {MM_ANISOTROPIC, ::MulDiv(frame.size.width, 2540, kDefaultDpi),
                         ::MulDiv(frame.size.height, 2540, kDefaultDpi), nullptr};
  return UniqueMetafile(::SetWinMetaFileBits(size, data, nullptr, &extent));
}

DecodedPicture PaintMetafile(MetafileFrame frame, std::string_view bytes) {
  const Size size = frame.size;
  if (!FitsBounds(static_cast<UINT>(size.width), static_cast<UINT>(size.height))) {
    return {{}, PictureFault::kTooLarge};
  }
  Surface surface(size);
  DecodedPicture picture = {Image(size.width, size.height)};
  if (!surface.dc()) return {{}, PictureFault::kTooLarge};
  const UniqueMetafile metafile = MakeMetafile(frame, bytes);
  const RECT place = {0, 0, size.width, size.height};
  FillRectangle(surface.dc(), FromSystem(place), RGB(255, 255, 255));
  if (!metafile || !::PlayEnhMetaFile(surface.dc(), metafile.get(), &place)) {
    return {{}, PictureFault::kDamaged};
  }
  std::ranges::transform(surface.pixels(), picture.image.All().begin(),
                         [](std::uint32_t pixel) { return pixel | 0xFF000000U; });
  return picture;
}

bool WriteFrame(IWICImagingFactory& factory, IStream& stream, const Image& image) {
  ComPointer<IWICBitmapEncoder> encoder;
  ComPointer<IWICBitmapFrameEncode> frame;
  WICPixelFormatGUID format = GUID_WICPixelFormat32bppBGRA;
  const auto width = static_cast<UINT>(image.width());
  const auto height = static_cast<UINT>(image.height());
  auto* pixels =
      reinterpret_cast<BYTE*>(const_cast<std::uint32_t*>(image.All().data()));  // only read
  return SUCCEEDED(factory.CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.Receive())) &&
         SUCCEEDED(encoder->Initialize(&stream, WICBitmapEncoderNoCache)) &&
         SUCCEEDED(encoder->CreateNewFrame(frame.Receive(), nullptr)) &&
         SUCCEEDED(frame->Initialize(nullptr)) && SUCCEEDED(frame->SetSize(width, height)) &&
         SUCCEEDED(frame->SetPixelFormat(&format)) &&
         ::IsEqualGUID(format, GUID_WICPixelFormat32bppBGRA) &&
         SUCCEEDED(frame->WritePixels(height, width * 4, width * 4 * height, pixels)) &&
         SUCCEEDED(frame->Commit()) && SUCCEEDED(encoder->Commit());
}

std::string ContentOf(IStream& stream) {
  HGLOBAL memory = nullptr;
  STATSTG state = {};
  if (FAILED(::GetHGlobalFromStream(&stream, &memory)) ||
      FAILED(stream.Stat(&state, STATFLAG_NONAME))) {
    return {};
  }
  std::string bytes;
  if (const void* data = ::GlobalLock(memory)) {
    bytes.assign(static_cast<const char*>(data), static_cast<std::size_t>(state.cbSize.QuadPart));
    ::GlobalUnlock(memory);
  }
  return bytes;
}

}  // namespace

DecodedPicture DecodePicture(std::string_view bytes) {
  if (bytes.size() > kMostPictureBytes) return {{}, PictureFault::kTooManyBytes};
  if (const auto decoder = DecoderFor(bytes)) return DecodeBitmap(*decoder, bytes);
  const MetafileFrame frame = ReadMetafileFrame(bytes);
  if (frame.kind == MetafileKind::kNone) return {{}, PictureFault::kUnknownKind};
  return PaintMetafile(frame, bytes);
}

std::string EncodePng(const Image& image) {
  const ComPointer<IWICImagingFactory> factory = MakeFactory();
  ComPointer<IStream> stream;
  const bool written = !image.empty() && factory &&
                       SUCCEEDED(::CreateStreamOnHGlobal(nullptr, TRUE, stream.Receive())) &&
                       WriteFrame(*factory.get(), *stream.get(), image);
  return written ? ContentOf(*stream.get()) : std::string();
}

Image OnGround(const Image& image, COLORREF ground) {
  Image flat = image;
  const std::uint32_t below = OpaquePixel(static_cast<std::int32_t>(ground));
  for (std::uint32_t& pixel : flat.All()) {
    pixel = MixPixels(below, pixel | 0xFF000000U, pixel >> 24);
  }
  return flat;
}

BITMAPINFO BitmapInfoOf(const Image& image) {
  BITMAPINFO info = {};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = image.width();
  info.bmiHeader.biHeight = -image.height();  // rows from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  return info;
}

UniqueMetafile MetafileOf(const Image& image) {
  if (image.empty()) return {};
  HDC dc = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
  if (!dc) return {};
  const BITMAPINFO info = BitmapInfoOf(image);
  ::SetStretchBltMode(dc, HALFTONE);
  ::StretchDIBits(dc, 0, 0, image.width(), image.height(), 0, 0, image.width(), image.height(),
                  image.All().data(), &info, DIB_RGB_COLORS, SRCCOPY);
  return UniqueMetafile(::CloseEnhMetaFile(dc));
}

}  // namespace varnel
