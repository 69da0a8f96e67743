// The settings of the notes.
#pragma once

#include <string_view>

#include "base/settings.h"

namespace varnel {

inline constexpr std::wstring_view kNotesSection = L"frmNOTpr\\Details";
inline constexpr Setting kNoteFontName{kNotesSection, L"Font Name", L"Tahoma"};
inline constexpr Setting kNoteFontSize{kNotesSection, L"Font Size", L"12"};
// Clearing the formats falls back to another face than a new note does.
inline constexpr Setting kClearedFontName{kNotesSection, L"Font Name", L"Times New Roman"};
// The system's colour of text.
inline constexpr Setting kNoteFontColour{kNotesSection, L"Font Color", L"-2147483640"};
inline constexpr Setting kDocumentType{kNotesSection, L"Document Type", L"0"};

inline constexpr std::wstring_view kNotesWidgetSection = L"frmNOTwg\\Details";
inline constexpr Setting kTextFolder{kNotesWidgetSection, L"Text-Folder-Loc", L""};
inline constexpr Setting kPictureFolder{kNotesWidgetSection, L"Picture-Folder-Loc", L""};
// Where the note lies that is open, when it is not among the notes: its draft lies there too.
inline constexpr Setting kOpenNoteFolder{kNotesWidgetSection, L"Open-Note-Folder", L""};

}  // namespace varnel
