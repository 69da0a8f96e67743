// Keys that run commands, and who gets a key: what has the focus keeps those that it needs itself.
#pragma once

#include <cstdint>
#include <string>

namespace varnel {

// What has the focus in a widget's window.
enum class Focus {
  kPanel,   // a button, or nothing in particular
  kList,    // the list of documents or lines
  kText,    // the text that the widget is there for
  kField,   // a box to type or choose in
  kRename,  // the box in which a row of the list is renamed; it gets every key
};

// Where the focus has to be for a key to run its command.
enum class KeyPlace : std::uint8_t {
  kAnywhere,  // but in a text or a field only where that has no use for the key
  kList,
  kText,
  kControl,  // nowhere: the menu tells the key, which the control with the focus acts on itself
};

// The platform's codes of keys; letters and digits stand for themselves.
enum KeyCode : std::uint16_t {
  kKeyBackspace = 0x08,
  kKeyEnter = 0x0D,
  kKeyEscape = 0x1B,
  kKeySpace = 0x20,
  kKeyPageUp,
  kKeyPageDown,
  kKeyEnd,
  kKeyHome,
  kKeyLeft,
  kKeyUp,
  kKeyRight,
  kKeyDown,
  kKeyInsert = 0x2D,
  kKeyDelete,
  kKeyApplications = 0x5D,  // opens a menu
  kKeyF1 = 0x70,
  kKeyF24 = 0x87,
  kKeyPlus = 0xBB,  // the one with "=" on most keyboards
};

constexpr std::uint16_t FunctionKey(int number) {
  return static_cast<std::uint16_t>(kKeyF1 + number - 1);
}

// What is held with a key.
enum KeyHeld : std::uint8_t {
  kShiftHeld = 1,
  kCtrlHeld = 2,
  kAltHeld = 4,
  kTyped = 8,  // `code` is the character that the key types, a letter as a capital
};

struct CommandKey {
  std::uint16_t code = 0;  // 0: no key
  std::uint8_t held = 0;   // exactly these, as KeyHeld
  KeyPlace place = KeyPlace::kAnywhere;

  constexpr CommandKey In(KeyPlace where) const { return {code, held, where}; }
  bool operator==(const CommandKey&) const = default;
};

constexpr CommandKey Plain(std::uint16_t code) {
  return {code, 0};
}
constexpr CommandKey Shift(std::uint16_t code) {
  return {code, kShiftHeld};
}
constexpr CommandKey Ctrl(std::uint16_t code) {
  return {code, kCtrlHeld};
}
constexpr CommandKey CtrlShift(std::uint16_t code) {
  return {code, kCtrlHeld | kShiftHeld};
}
constexpr CommandKey CtrlAlt(std::uint16_t code) {
  return {code, kCtrlHeld | kAltHeld};
}
constexpr CommandKey Typed(char character) {
  return {static_cast<std::uint16_t>(character), kTyped};
}

// As it stands in menus and tooltips: "Ctrl+Shift+V", "F12", "Page Up"; empty for no key.
std::wstring KeyText(const CommandKey& key);

// True when what has the focus acts on `key` itself: what types, deletes, moves the caret, or has
// to do with clipboard and undo stays in a text or a field.
bool FocusKeeps(Focus focus, const CommandKey& key);

// Whether `key` runs its command when it is pressed there.
bool Reaches(const CommandKey& key, Focus focus);

}  // namespace varnel
