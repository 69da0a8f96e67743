// How large a picture of a note is shown.
#pragma once

#include "base/geometry.h"
#include "widgets/notes/rtf/rtf_document.h"

namespace varnel {

// The whole picture's wished size in twips, before scaling and cropping: what the text says, else
// what is stored, at 96 pixels to the inch. A side that nobody names is 0.
Size WishedTwips(const RtfPicture& picture);

// What is to be seen of it, cropped and scaled, in twips: each side at least 1. A side without a
// wished size is half an inch.
Size ShownTwips(const RtfPicture& picture);

// `size` made smaller until it fits into `room`, in the same proportion; each side at least 1.
Size FittedInto(Size size, Size room);

}  // namespace varnel
