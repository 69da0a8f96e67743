// The theme dialog's list of presets: their names, each with swatches of its colours.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <string_view>
#include <vector>

#include "theme/preset.h"

namespace varnel {

class PresetList {
 public:
  explicit PresetList(const SystemColours& system) : system_(system) {}

  // Takes up the dialog's list view, which has no columns yet.
  void Attach(HWND list, int dpi);
  // Shows these presets, none of them chosen.
  void Fill(std::vector<PresetSwatch> presets);
  const std::vector<PresetSwatch>& presets() const { return presets_; }

  // The place of the preset of that name (any case), -1 when it is not in the list.
  int Find(std::wstring_view name) const;
  // Chooses the preset at that place and brings it into view; -1 chooses none.
  void Choose(int place);

  // Paints the swatches. Gives what the list view is to be answered.
  LRESULT OnCustomDraw(const NMLVCUSTOMDRAW& drawing) const;

 private:
  void AddColumn(int index, const wchar_t* title, int width);

  const SystemColours& system_;
  HWND list_ = nullptr;
  int dpi_ = 0;
  std::vector<PresetSwatch> presets_;
};

}  // namespace varnel
