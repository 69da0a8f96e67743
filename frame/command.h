// Menu commands as data.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/menu.h"
#include "frame/command_id.h"

namespace varnel {

// One menu command: its name, what the user reads, and the key that does the same.
struct Command {
  std::wstring_view name;
  std::wstring_view caption;
  std::wstring_view key = {};
};

// Keeps the current widget above other windows, or no longer.
inline constexpr std::wstring_view kTopCommand = L"mnuDCTOP";

MenuItem ItemOf(const Command& command, bool enabled = true, bool checked = false);

// The names of the commands in a menu array: ArrayCommandId(L"mnuDCWIDGETS", 3).
std::uint16_t ArrayCommandId(std::wstring_view name, int index);

// The element of the array `name` (with `count` elements) that `id` stands for, or -1.
int ArrayCommandIndex(std::wstring_view name, int count, int id);

}  // namespace varnel
