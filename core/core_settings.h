// The settings of the program's core, each declared once for readers and writers.
#pragma once

#include <string_view>

#include "base/settings.h"
#include "frame/product.h"

namespace varnel {

inline constexpr std::wstring_view kProgramSection = L"frmVRNpr\\Details";

// Check boxes, "1" or "0".
inline constexpr Setting kProgramLaunch{kProgramSection, L"Program Launch", L"1"};
inline constexpr Setting kMinimizeOnStart{kProgramSection, L"Program Minimize on Start", L"0"};

// One flag a widget, "True" while it is open; in the order of the widget index.
inline constexpr Setting kStartLoad[] = {
    {kProgramSection, L"Start-Load-Clock", L"False"},
    {kProgramSection, L"Start-Load-Calc", L"False"},
    {kProgramSection, L"Start-Load-Calendar", L"False"},
    {kProgramSection, L"Start-Load-Notes", L"False"},
    {kProgramSection, L"Start-Load-Stopwatch", L"False"},
    {kProgramSection, L"Start-Load-Timer", L"False"},
    {kProgramSection, L"Start-Load-Whiteboard", L"False"},
    {kProgramSection, L"Start-Load-Weather", L"False"},
};

// What the open widgets do at the next start: kHiddenText starts them hidden, any other text shown.
inline constexpr std::wstring_view kShowText = L"Show";
inline constexpr std::wstring_view kHiddenText = L"Hidden";
inline constexpr Setting kShowOrHide{kProgramSection, L"Start-Show or Hide", kShowText};

}  // namespace varnel
