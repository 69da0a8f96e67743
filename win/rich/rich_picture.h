// Pictures in a rich edit control: objects of our own, as the control itself drops most kinds of
// picture, and draws or saves others not at all.
#pragma once

#include <windows.h>

#include <richole.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "base/geometry.h"
#include "win/graphics/pictures.h"
#include "win/system/com.h"

namespace varnel {

// How a picture looks; any number of places in the text may show the same.
using SharedMetafile = std::shared_ptr<const UniqueMetafile>;

struct RichPicture {
  int position = 0;      // in the text, where it counts as one unit
  std::uint32_t id = 0;  // as given when it was inserted; 0 for what is not of our making
  Size size;             // in hundredths of a millimetre
};

// Puts a picture in place of what is selected; the control can undo it. `size` in hundredths of a
// millimetre. False when the control refuses.
bool InsertRichPicture(IRichEditOle& control, const SharedMetafile& look, Size size,
                       std::uint32_t id);

// An empty place in memory, as the control wants one with each object. Null without memory.
ComPointer<IStorage> MakeObjectStorage();

// Every object in the text, by position.
std::vector<RichPicture> RichPictures(IRichEditOle& control);

}  // namespace varnel
