// What the preview keeps for the user: paper, margins, texts in the margins, and how it is looked
// at.
#pragma once

#include "base/length_text.h"
#include "base/settings.h"
#include "dialogs/preview/sheet_zoom.h"
#include "frame/pages/page_setup.h"

namespace varnel {

struct PrintSettings {
  int paper = 0;  // the platform's number
  Size size;      // upright, in twips; of whatever paper it is
  bool landscape = false;
  PageMargins margins;  // as the user wished them: the paper may be too small for them
  PageTexts texts;
  bool colour = true;
  bool fitted = true;
  SheetZoom zoom;
  int columns = 1;  // sheets side by side: 1, 2 or 4
  bool thumbs = true;
  bool operator==(const PrintSettings&) const = default;
};

// What the user has who never chose anything: A4 and 20 mm of margin, or Letter and 3/4 inch.
PrintSettings DefaultPrintSettings(LengthUnit unit);

// Every value that is missing or nonsense is the default's.
PrintSettings ReadPrintSettings(const Settings& settings, LengthUnit unit);
void WritePrintSettings(Settings& settings, const PrintSettings& kept);

// The setup of a page: the paper as it lies, and margins that leave a column.
PageSetup SetupOf(const PrintSettings& kept);

}  // namespace varnel
