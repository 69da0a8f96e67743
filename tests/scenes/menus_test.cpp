// Every item of every menu can be chosen, and leaves a program that goes on.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <span>

#include "base/text.h"
#include "core/manager_commands.h"
#include "core/shared_menu.h"
#include "core/widget_index.h"
#include "frame/command_id.h"
#include "tests/rig/scene.h"
#include "widgets/boards/calendar_commands.h"
#include "widgets/boards/whiteboard_commands.h"
#include "widgets/calculator/calculator_commands.h"
#include "widgets/notes/notes_commands.h"
#include "widgets/time/clock_commands.h"
#include "widgets/weather/weather_commands.h"

namespace varnel {
namespace {

using namespace rig;

// Every command of the shared menu but the one that ends the program; those that open or close a
// widget stand twice.
std::vector<int> SharedCommands() {
  SharedMenuState all;
  all.available.fill(true);
  all.sizable = all.has_widget = true;
  std::vector<int> ids;
  const std::function<void(const std::vector<MenuItem>&)> gather =
      [&](const std::vector<MenuItem>& items) {
        for (const MenuItem& item : items) {
          gather(item.children);
          EXPECT_TRUE(item.enabled) << Utf8FromWide(item.caption);
          const bool toggles = ArrayCommandIndex(L"mnuDCWIDGETS", kWidgetCount, item.id) >= 0;
          if (item.id != 0) ids.insert(ids.end(), toggles ? 2 : 1, item.id);
        }
      };
  gather(BuildSharedMenu(all));
  std::erase(ids, CommandId(L"mnuDCEXIT"));
  return ids;
}

// The names of a widget's own commands, those of arrays one by one.
std::vector<std::wstring> NamesOf(std::span<const CommandRow> rows) {
  std::vector<std::wstring> names;
  for (const CommandRow& row : rows) {
    if (!row.name.empty()) names.emplace_back(row.name);
    for (std::size_t i = 0; i < row.elements.size(); ++i) {
      names.push_back(ElementName(row.array, i));
    }
  }
  return names;
}

class Menus : public Scene {
 protected:
  void SetUp() override {
    Scene::SetUp();
    // Nothing listens there.
    root().settings().SetText(L"Settings\\Details", L"Web Address", L"http://127.0.0.1:9/");
    ASSERT_TRUE(program().Start());
    ASSERT_TRUE(WaitForForm(program(), L"frmVRNwg"));
  }

  // The dialogs of the program that are shown, message boxes and the system's own among them.
  std::vector<HWND> Opened() {
    std::vector<HWND> opened = TopLevelWindows(program());
    std::erase_if(opened, [](HWND window) {
      const std::wstring name = ClassOf(window);
      const bool form = name.starts_with(L"frm") && !name.ends_with(L"wg");
      return !IsShown(window) || (name != L"#32770" && !form);
    });
    return opened;
  }

  // Answers every question with no and closes every dialog.
  void DismissAll() {
    EXPECT_TRUE(WaitUntil([&] {
      for (HWND window : Opened()) {
        if (!IsEnabled(window)) continue;  // something stands before it
        for (const int answer : {IDNO, IDCANCEL, IDOK}) PressButton(window, answer);
        if (ClassOf(window) != L"#32770") Send(window, WM_CLOSE);
        Send(window, WM_NULL);
      }
      return Opened().empty();
    }));
  }

  // Chooses the command and waits until it has been carried out or asks something, then closes what
  // it opened.
  void Run(HWND form, int id) {
    ::SendNotifyMessageW(form, WM_COMMAND, static_cast<WPARAM>(id), 0);
    Send(form, WM_NULL);
    WaitUntilStill([this] { return Opened(); }, 60);
    DismissAll();
    EXPECT_TRUE(program().running()) << "after command " << id;
  }

  HWND Open(int index) {
    if (!FindForm(program(), WidgetAt(index)->form_name)) {
      ChooseShared(program(), L"mnuDCWIDGETS", index);
    }
    HWND form = WaitForForm(program(), WidgetAt(index)->form_name);
    EXPECT_TRUE(form);
    return form;
  }

  // Every command of the widget, in the order of its menu.
  void RunAll(int index, std::initializer_list<std::span<const CommandRow>> menus) {
    HWND form = Open(index);
    for (const std::span<const CommandRow> rows : menus) {
      for (const std::wstring& name : NamesOf(rows)) {
        SCOPED_TRACE(Utf8FromWide(name));
        Run(form, CommandId(name));
        ASSERT_TRUE(IsShown(form));
      }
    }
    if (!WidgetAt(index)->top_command.empty()) {
      const bool former = IsTopmost(form);
      Run(form, CommandId(WidgetAt(index)->top_command));
      EXPECT_NE(IsTopmost(form), former);
    }
  }
};

TEST_F(Menus, EverySharedItem) {
  HWND clock = Open(0);
  for (const int id : SharedCommands()) {
    Run(clock, id);
    if (id == CommandId(L"mnuDCHIDEALL")) {
      EXPECT_FALSE(IsShown(clock));
      ASSERT_TRUE(ChooseShared(program(), L"mnuDCSHOWALL"));
    }
    if (id == ArrayCommandId(L"mnuDCWIDGETS", 0)) EXPECT_FALSE(::IsWindow(clock));
    clock = Open(0);
  }
}

TEST_F(Menus, EveryItemOfTheClockCalculatorStopwatchAndWeather) {
  RunAll(0, {kClockCommands});
  RunAll(1, {kCalculatorCommands});
  RunAll(4, {kStopwatchCommands});
  RunAll(7, {kWeatherCommands});
}

TEST_F(Menus, EveryItemOfTheBoards) {
  RunAll(2, {kCalendarCommands});
  RunAll(6, {kWhiteboardCommands});
}

TEST_F(Menus, EveryItemOfTheNotes) {
  RunAll(3, {kNotesCommands, kNoteTextCommands});
  // What was pasted and formatted is not worth saving.
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCEXIT"));
  EXPECT_SOON((DismissAll(), !program().running()));
}

TEST_F(Menus, EveryItemOfTheManager) {
  HWND manager = FindForm(program(), L"frmVRNwg");
  for (const std::wstring& name : NamesOf(kManagerCommands)) {
    HWND clock = Open(0);
    Run(manager, CommandId(name));
    EXPECT_EQ(::IsWindow(clock) != FALSE, name != L"mnuVRNCLOSEALL") << Utf8FromWide(name);
  }
}

}  // namespace
}  // namespace varnel
