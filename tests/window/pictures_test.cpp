// Pictures: every kind that is read, damage to each, and the clipboard.
#include "win/graphics/pictures.h"

#include <shlobj.h>
#include <wincodec.h>

#include <random>

#include "base/metafile.h"
#include "tests/window/window_aid.h"
#include "win/system/clipboard.h"

namespace varnel {
namespace {

constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kBlue = 0xFF0000FF;

// Red on the left, blue on the right, some of it see-through where asked for.
Image Sample(std::uint32_t left = kRed) {
  Image image(40, 30, kBlue);
  image.Fill(Rect{0, 0, 20, 30}, left);
  return image;
}

// The picture as a file of another kind, written by the platform.
std::string Encoded(const GUID& kind, const Image& image) {
  ComPointer<IWICImagingFactory> factory;
  ::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                     factory.ReceiveAny());
  ComPointer<IStream> stream;
  ::CreateStreamOnHGlobal(nullptr, TRUE, stream.Receive());
  ComPointer<IWICBitmapEncoder> encoder;
  ComPointer<IWICBitmapFrameEncode> frame;
  ComPointer<IWICBitmap> bitmap;
  const auto width = static_cast<UINT>(image.width());
  const auto height = static_cast<UINT>(image.height());
  auto* pixels = reinterpret_cast<BYTE*>(const_cast<std::uint32_t*>(image.All().data()));
  EXPECT_EQ(factory->CreateEncoder(kind, nullptr, encoder.Receive()), S_OK);
  EXPECT_EQ(encoder->Initialize(stream.get(), WICBitmapEncoderNoCache), S_OK);
  EXPECT_EQ(encoder->CreateNewFrame(frame.Receive(), nullptr), S_OK);
  EXPECT_EQ(frame->Initialize(nullptr), S_OK);
  EXPECT_EQ(factory->CreateBitmapFromMemory(width, height, GUID_WICPixelFormat32bppBGRA, width * 4,
                                            width * height * 4, pixels, bitmap.Receive()),
            S_OK);
  EXPECT_EQ(frame->WriteSource(bitmap.get(), nullptr), S_OK);
  EXPECT_EQ(frame->Commit(), S_OK);
  EXPECT_EQ(encoder->Commit(), S_OK);
  HGLOBAL memory = nullptr;
  STATSTG state = {};
  ::GetHGlobalFromStream(stream.get(), &memory);
  stream->Stat(&state, STATFLAG_NONAME);
  const std::string bytes(static_cast<const char*>(::GlobalLock(memory)),
                          static_cast<std::size_t>(state.cbSize.QuadPart));
  ::GlobalUnlock(memory);
  return bytes;
}

std::string EnhancedBytes(const Image& image) {
  const UniqueMetafile metafile = MetafileOf(image);
  std::string bytes(::GetEnhMetaFileBits(metafile.get(), 0, nullptr), '\0');
  ::GetEnhMetaFileBits(metafile.get(), static_cast<UINT>(bytes.size()),
                       reinterpret_cast<BYTE*>(bytes.data()));
  return bytes;
}

// One inch wide, half an inch high, painted red.
std::string PlaceableBytes() {
  HDC dc = ::CreateMetaFileW(nullptr);
  ::SetMapMode(dc, MM_ANISOTROPIC);
  ::SetWindowExtEx(dc, 96, 48, nullptr);
  const UniqueBrush red(::CreateSolidBrush(RGB(255, 0, 0)));
  ::SelectObject(dc, red.get());
  ::PatBlt(dc, 0, 0, 96, 48, PATCOPY);
  HMETAFILE metafile = ::CloseMetaFile(dc);
  std::string body(::GetMetaFileBitsEx(metafile, 0, nullptr), '\0');
  ::GetMetaFileBitsEx(metafile, static_cast<UINT>(body.size()), body.data());
  ::DeleteMetaFile(metafile);
  const unsigned char header[kPlaceableHeaderBytes] = {0xD7, 0xCD, 0xC6, 0x9A, 0,  0, 0, 0,
                                                       0,    0,    96,   0,    48, 0, 96};
  return std::string(reinterpret_cast<const char*>(header), sizeof header) + body;
}

class Pictures : public test::Hosted {};

TEST_F(Pictures, EveryKindIsReadAsItWasWritten) {
  const Image image = Sample();
  const struct {
    const char* name;
    std::string bytes;
    int tolerance;
  } cases[] = {{"png", EncodePng(image), 0},
               {"bmp", Encoded(GUID_ContainerFormatBmp, image), 0},
               {"gif", Encoded(GUID_ContainerFormatGif, image), 8},
               {"jpeg", Encoded(GUID_ContainerFormatJpeg, image), 8}};
  for (const auto& [name, bytes, tolerance] : cases) {
    SCOPED_TRACE(name);
    const DecodedPicture picture = DecodePicture(bytes);
    ASSERT_EQ(picture.fault, PictureFault::kNone);
    ASSERT_EQ(picture.image.width(), 40);
    ASSERT_EQ(picture.image.height(), 30);
    for (int shift = 0; shift < 32; shift += 8) {
      for (const int x : {4, 35}) {
        EXPECT_NEAR(static_cast<int>(picture.image.At(x, 15) >> shift & 0xFF),
                    static_cast<int>(image.At(x, 15) >> shift & 0xFF), tolerance);
      }
    }
  }
  const Image clear = Sample(0x80FF0000);
  EXPECT_EQ(DecodePicture(EncodePng(clear)).image, clear);
  EXPECT_EQ(OnGround(clear, RGB(255, 255, 255)).At(0, 0), 0xFFFF7F7F);
}

TEST_F(Pictures, MetafilesAreReadAtTheirNaturalSize) {
  const DecodedPicture placeable = DecodePicture(PlaceableBytes());
  EXPECT_EQ(placeable.image, Image(96, 48, kRed));
  const DecodedPicture enhanced = DecodePicture(EnhancedBytes(Sample()));
  ASSERT_EQ(enhanced.fault, PictureFault::kNone);
  const Image& image = enhanced.image;
  EXPECT_EQ(image.At(image.width() / 4, image.height() / 2), kRed);
  EXPECT_EQ(image.At(image.width() * 3 / 4, image.height() / 2), kBlue);
}

TEST_F(Pictures, DamageIsSaidAndNothingElseHappens) {
  std::minstd_rand random(7);
  for (const std::string& whole :
       {EncodePng(Sample()), Encoded(GUID_ContainerFormatBmp, Sample()),
        Encoded(GUID_ContainerFormatGif, Sample()), Encoded(GUID_ContainerFormatJpeg, Sample()),
        EnhancedBytes(Sample()), PlaceableBytes()}) {
    for (int i = 0; i < 60; ++i) {
      std::string bytes = whole.substr(0, random() % whole.size());
      if (i % 2 == 0) bytes = whole;
      for (int flips = i % 4; flips > 0 && !bytes.empty(); --flips) {
        bytes[random() % bytes.size()] = static_cast<char>(random());
      }
      const DecodedPicture picture = DecodePicture(bytes);
      EXPECT_EQ(picture.image.empty(), picture.fault != PictureFault::kNone);
    }
  }
  const std::string png = EncodePng(Sample());
  EXPECT_EQ(DecodePicture(png.substr(0, png.size() / 2)).fault, PictureFault::kDamaged);
  EXPECT_EQ(DecodePicture("").fault, PictureFault::kUnknownKind);
  EXPECT_EQ(DecodePicture("{\\rtf1 }").fault, PictureFault::kUnknownKind);
  EXPECT_EQ(DecodePicture(std::string(kMostPictureBytes + 1, 'B')).fault,
            PictureFault::kTooManyBytes);
  const Image longest(kLongestPictureSide, 2, kRed);
  EXPECT_EQ(DecodePicture(EncodePng(longest)).image, longest);
  EXPECT_EQ(DecodePicture(EncodePng(Image(kLongestPictureSide + 1, 2))).fault,
            PictureFault::kTooLarge);
  EXPECT_EQ(EncodePng({}), "");
}

class Clipboard : public Pictures {};

TEST_F(Clipboard, GivesBackWhatItWasGiven) {
  HWND owner = host_.handle();
  ASSERT_TRUE(CopyText(owner, L"03:27.48"));
  EXPECT_EQ(PastedText(owner, 100), L"03:27.48");
  EXPECT_EQ(PastedText(owner, 2), L"03");
  EXPECT_TRUE(PastedPicture(owner).empty());

  const std::string rtf = "{\\rtf1\\b bold}";
  const Image clear = Sample(0x40FF0000);
  ASSERT_TRUE(CopyContent(owner, {L"bold", rtf, clear}));
  EXPECT_EQ(PastedText(owner, 100), L"bold");
  EXPECT_EQ(PastedRtf(owner, 100), rtf);
  EXPECT_EQ(PastedRtf(owner, 10), "") << "more than is wanted";
  EXPECT_EQ(PastedPicture(owner), clear) << "opacity and all";
  const ClipboardOffer offer = OfferOfClipboard();
  EXPECT_TRUE(offer.text && offer.rtf && offer.picture);
  EXPECT_FALSE(offer.files);
}

TEST_F(Clipboard, ReadsPicturesAndFilesOfOtherPrograms) {
  HWND owner = host_.handle();
  const auto put = [owner](UINT format, HANDLE data) {
    ASSERT_TRUE(::OpenClipboard(owner));
    ::EmptyClipboard();
    EXPECT_NE(::SetClipboardData(format, data), nullptr);
    ::CloseClipboard();
  };
  const Image image = Sample();
  const BITMAPINFO info = BitmapInfoOf(image);
  HDC screen = ::GetDC(nullptr);
  put(CF_BITMAP, ::CreateDIBitmap(screen, &info.bmiHeader, CBM_INIT, image.All().data(), &info,
                                  DIB_RGB_COLORS));
  ::ReleaseDC(nullptr, screen);
  EXPECT_EQ(PastedPicture(owner), image);
  put(CF_ENHMETAFILE, MetafileOf(image).release());
  EXPECT_FALSE(PastedPicture(owner).empty());

  const std::wstring paths = std::wstring(L"C:\\one.txt\0C:\\zw\x00f6lf.rtf\0\0", 25);
  HGLOBAL memory = ::GlobalAlloc(GHND, sizeof(DROPFILES) + paths.size() * sizeof(wchar_t));
  auto* files = static_cast<DROPFILES*>(::GlobalLock(memory));
  files->pFiles = sizeof *files;
  files->fWide = TRUE;
  std::ranges::copy(paths, reinterpret_cast<wchar_t*>(files + 1));
  ::GlobalUnlock(memory);
  put(CF_HDROP, memory);
  EXPECT_EQ(PastedFiles(owner), (std::vector<std::wstring>{L"C:\\one.txt", L"C:\\zw\x00f6lf.rtf"}));
  EXPECT_TRUE(OfferOfClipboard().files);
}

}  // namespace
}  // namespace varnel
