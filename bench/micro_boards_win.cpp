// Timings of boards against what the platform does by itself, by turns in one run.
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <span>

#include "base/bmp.h"
#include "base/document_folder.h"
#include "base/number_text.h"
#include "bench/micro.h"
#include "bench/strokes.h"
#include "win/files/disk_files.h"
#include "win/files/system_recycle_bin.h"
#include "win/graphics/surface.h"

namespace varnel::bench {
namespace {

constexpr int kTurns = 60;

// The first against the second, by turns.
template <class First, class Second>
double Ratio(First first, Second second, int turns = kTurns) {
  std::vector<double> firsts, seconds;
  for (int i = 0; i < turns; ++i) {
    firsts.push_back(TimeOf(first));
    seconds.push_back(TimeOf(second));
  }
  return Median(firsts) / Median(seconds);
}

double SegmentAgainstGdi(int width) {
  const std::vector<PointF> points = StrokePoints();
  Canvas canvas(Canvas::kWhiteBoard);
  canvas.Grow(kStrokeBoard);
  Surface surface(kStrokeBoard);
  const UniquePen pen(::CreatePen(PS_SOLID, width, RGB(0, 119, 255)));
  const SelectedObject selected(surface.dc(), pen.get());
  // Turns so short that they are seldom interrupted by other programs.
  constexpr std::size_t kPoints = 40;
  std::size_t turn = 0;
  std::span<const PointF> part;
  const auto smooth = [&] {
    part = std::span(points).subspan(turn++ % 49 * kPoints, kPoints);
    DrawStroke(canvas, part, width);
  };
  const auto plain = [&] {
    for (std::size_t i = 1; i < part.size(); ++i) {
      ::MoveToEx(surface.dc(), static_cast<int>(part[i - 1].x), static_cast<int>(part[i - 1].y),
                 nullptr);
      ::LineTo(surface.dc(), static_cast<int>(part[i].x), static_cast<int>(part[i].y));
    }
    ::GdiFlush();
  };
  return Ratio(smooth, plain, 2000);
}

std::wstring TemporaryPath(std::wstring_view name) {
  return std::filesystem::temp_directory_path().wstring() + std::wstring(name);
}

// Writes over a file, and where it is wished waits until the disk has it.
void WritePlainly(const std::wstring& path, const std::string& bytes, bool flushed) {
  const UniqueFile file(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
  DWORD written = 0;
  ::WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  if (flushed) ::FlushFileBuffers(file.get());
}

// With all that saving does, the picture made and the old file kept until the new one is on the
// disk, against writing the same bytes over a file.
double SaveAgainstPlainWrite(bool flushed) {
  Image board(kStrokeBoard.width, kStrokeBoard.height, Canvas::kWhiteBoard);
  const std::wstring path = TemporaryPath(L"varnel bench board.bmp");
  const std::wstring plain = TemporaryPath(L"varnel bench plain.bmp");
  DiskFiles files;
  const std::string bytes = WriteBmp(board, BmpDepth::k24Bits);
  const double ratio = Ratio([&] { files.Replace(path, WriteBmp(board, BmpDepth::k24Bits)); },
                             [&] { WritePlainly(plain, bytes, flushed); });
  files.Remove(path);
  files.Remove(plain);
  return ratio;
}

// Listed and sorted, against asking for every name.
double ListAgainstFindFile() {
  constexpr int kBoards = 10'000;
  const std::wstring folder = TemporaryPath(L"varnel bench boards");
  std::filesystem::create_directory(folder);
  for (int i = 0; i < kBoards; ++i) {
    std::ofstream(
        std::filesystem::path(folder + L"\\pic_" + NumberText(i * 7919 % kBoards) + L".bmp"));
  }
  DiskFiles files;
  SystemRecycleBin bin;
  DocumentFolder boards(files, bin, {L".bmp"});
  boards.Adopt(folder);
  const auto find = [&] {
    WIN32_FIND_DATAW found = {};
    HANDLE search = ::FindFirstFileW((folder + L"\\*.bmp").c_str(), &found);
    int count = 1;
    while (::FindNextFileW(search, &found)) ++count;
    ::FindClose(search);
    Keep(count);
  };
  const double ratio = Ratio([&] { Keep(boards.Refresh().any()); }, find, 9);
  std::filesystem::remove_all(folder);
  return ratio;
}

}  // namespace

std::vector<Probe> BoardPlatformProbes() {
  return {{"stroke segment against GDI, 2 px", "x", [] { return SegmentAgainstGdi(2); }},
          {"stroke segment against GDI, 3 px", "x", [] { return SegmentAgainstGdi(3); }},
          {"stroke segment against GDI, 6 px", "x", [] { return SegmentAgainstGdi(6); }},
          {"stroke segment against GDI, 20 px", "x", [] { return SegmentAgainstGdi(20); }},
          {"full-HD board saved, against a plain write", "x",
           [] { return SaveAgainstPlainWrite(false); }},
          {"full-HD board saved, against a plain write that is flushed too", "x",
           [] { return SaveAgainstPlainWrite(true); }},
          {"10,000 boards listed and sorted, against FindFirstFile", "x", ListAgainstFindFile}};
}

}  // namespace varnel::bench
