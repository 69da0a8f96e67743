// Message boxes.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <string_view>

namespace varnel {

enum class MessageKind {
  kInformation,    // OK alone
  kQuestion,       // Yes and No, the latter chosen at first
  kPlainQuestion,  // Yes and No, without a picture
  kSaveQuestion,   // Yes, No and Cancel: something is not saved
};

enum class Answer { kYes, kNo, kCancel };

// The fixed texts of a message box. Where `text` has "%1" to "%9", what is inserted stands.
struct Message {
  std::wstring_view title;
  std::wstring_view text;
  MessageKind kind = MessageKind::kInformation;
};

// Shows the box above windows that are kept on top and waits for the answer: true for Yes or OK.
// Its owner is `owner`, or the active window of the program where `owner` is null or not to be
// seen; it takes no input meanwhile, counts as busy, and gets back the focus where it was. The
// owner may be gone afterwards: a box pumps messages.
bool Ask(HWND owner, const Message& message,
         std::initializer_list<std::wstring_view> inserted = {});

// The same for a box with three answers; closing it cancels. OK counts as yes.
Answer AskForAnswer(HWND owner, const Message& message,
                    std::initializer_list<std::wstring_view> inserted = {});

}  // namespace varnel
