// How wide text comes out on paper, as the platform's fonts have it.
#pragma once

#include <windows.h>

#include <array>
#include <map>
#include <memory>
#include <tuple>

#include "frame/pages/page.h"
#include "win/system/handles.h"

namespace varnel {

// Widths are the fonts' own ones, in proportion to their size: as they are at a printer's
// resolution, and the same on every screen and every printer.
class SystemPageMeasure : public PageMeasure {
 public:
  SystemPageMeasure();
  ~SystemPageMeasure() override;

  FontExtent Extent(const PageFont& font) override;
  void Measure(const PageFont& font, std::wstring_view text, std::span<int> ends) override;

 private:
  // What a font is beside its size.
  using FaceKey = std::tuple<std::wstring, int, bool, bool>;
  struct Face;
  Face& FaceOf(const PageFont& font);
  bool MeasureSimple(Face& face, std::wstring_view text, int em, std::span<int> ends);
  void MeasureWhole(Face& face, std::wstring_view text, int em, std::span<int> ends);

  std::map<FaceKey, std::unique_ptr<Face>> faces_;
  Face* last_ = nullptr;
  PageFont last_font_;
  UniqueDc dc_;  // destroyed before the fonts
};

// The font's description for the platform, `height` pixels to the em.
LOGFONTW DescriptionOf(const PageFont& font, int height);

}  // namespace varnel
