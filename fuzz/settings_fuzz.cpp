// Each line of the input is one stored value, in the order of kValues ("#" in front: not a text);
// the lines after them are the words of the command line. Whatever they hold, windows are
// reachable, folders and addresses are usable, and lists are sound.
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/path.h"
#include "base/setting_lists.h"
#include "base/text.h"
#include "core/command_line.h"
#include "core/core_settings.h"
#include "core/settings_store.h"
#include "core/start_options.h"
#include "core/update_check.h"
#include "core/widget_states.h"
#include "frame/placement.h"
#include "frame/sizes.h"
#include "frame/web_addresses.h"
#include "fuzz/require.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_registry.h"
#include "widgets/boards/board_folders.h"
#include "widgets/notes/notes_folder.h"

namespace varnel {
namespace {

constexpr std::pair<const wchar_t*, const wchar_t*> kValues[] = {
    {L"frmCLKwg\\Window", L"Window State"},
    {L"frmCLKwg\\Window", L"Left"},
    {L"frmCLKwg\\Window", L"Top"},
    {L"frmCLKwg\\Window", L"Width"},
    {L"frmCLKwg\\Window", L"Height"},
    {L"frmVRNpr\\Details", L"Start-Load-Clock"},
    {L"frmVRNpr\\Details", L"Start-Load-Notes"},
    {L"frmVRNpr\\Details", L"Start-Load-Weather"},
    {L"frmVRNpr\\Details", L"Start-Show or Hide"},
    {L"frmVRNpr\\Details", L"Program Launch"},
    {L"frmNOTpr\\Details", L"Notes Folder Location"},
    {L"Settings\\Details", L"Web Address"},
    {L"history\\Items Total", L"List Total"},
    {L"history\\Details", L"List 1"},
    {L"history\\Details", L"List 2"},
    {L"history\\Details", L"List 3"},
};

class PlainList : public ListControl {
 public:
  int ItemCount() const override { return static_cast<int>(items.size()); }
  std::wstring ItemText(int index) const override { return items.at(index); }
  void RemoveItem(int index) override { items.erase(items.begin() + index); }
  void AppendItem(std::wstring_view text) override { items.emplace_back(text); }
  void SetText(std::wstring_view) override {}

  std::vector<std::wstring> items;
};

class CountedWindows : public WidgetWindows {
 public:
  bool Load(int index) override {
    loaded.insert(index);
    return true;
  }
  bool MayClose(int index) override { return loaded.contains(index); }
  void Unload(int index) override { Require(loaded.erase(index) == 1); }
  void Show(int index, bool) override { Require(loaded.contains(index)); }
  void Mark(int, bool) override {}

  std::set<int> loaded;
};

void CheckPlace(const Settings& settings) {
  const Screens screens{{{{0, 0, 1280, 770}, 96}, {{-2560, -300, 0, 1140}, 144}}, 96};
  const Place place =
      FitPlace(ReadPosition(settings, L"frmCLKwg", DefaultPlace(0, screens), true), screens);
  const Rect pixels = PixelsFromPlace(place, screens);
  Require(KeepOnScreen(place, screens) == place);
  Require(pixels.width() > 0 && pixels.height() > 0);
  Require(FitPlace(place, screens) == place);
  const Size gripped = SnapSize(place, screens);
  Require(gripped.width >= kSmallestSize.width && gripped.height >= kSmallestSize.height);
}

void CheckStart(SettingsStore& store) {
  CountedWindows windows;
  WidgetStates states(store, windows);
  states.StartUp();
  Require(states.OpenCount() == static_cast<int>(windows.loaded.size()));
  for (int i = 0; i < kWidgetCount; ++i) {
    Require(states.IsOpen(i) == windows.loaded.contains(i));
    states.WidgetCheck(i);
  }
  test::MemoryFiles files;
  Require(IsAbsolutePath(PrepareFolder(store, files, kNotesFolder, L"C:\\Program")));
  const std::wstring page = ReadWebAddresses(store).update;
  Require(EqualsIgnoreCase(page.substr(0, 4), L"http"));
  UpdateAvailable(store.Read(kWebAddress), L"1.00");
  WriteRunAtLogon(store, kApplicationTitle, L"C:\\Program\\WidgetVarnel.exe");
}

void CheckList(const Settings& settings) {
  PlainList list;
  LoadList(list, L"history", settings);
  Require(list.items.size() <= 3);
  Require(std::set(list.items.begin(), list.items.end()).size() == list.items.size());
}

void CheckCommandLine(const std::vector<std::wstring>& words) {
  const CommandLine line = ParseCommandLine(words);
  Require(!line.settings_title.empty() && line.settings_title.size() <= 64);
  Require(line.settings_title.find_first_of(L"\\/.\"") == std::wstring::npos);
  Require(line.program_folder.empty() || IsAbsolutePath(line.program_folder));
}

void CheckAll(std::string_view input) {
  test::MemoryRegistry registry;
  registry.refused = {Hive::kLocalMachine};
  const std::wstring root = RegistryRoot(L"Test");
  std::vector<std::wstring> lines;
  std::istringstream stream{std::string(input)};
  for (std::string line; std::getline(stream, line);) lines.push_back(WideFromUtf8(line));
  std::size_t taken = 0;
  for (const auto& [section, name] : kValues) {
    if (taken == lines.size()) break;
    std::wstring data = lines[taken++];
    const bool is_text = !data.starts_with(L'#');
    registry.values[{Hive::kCurrentUser, root + section, name}] = {is_text, std::move(data)};
  }
  lines.erase(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(taken));

  SettingsStore store(registry, root);
  for (const auto& [section, name] : kValues) {
    Require(store.Read(section, name, L"x").size() <= kLongestSetting);
    Require(!store.Read(section, name, L"x").empty());
  }
  CheckPlace(store);
  CheckList(store);
  CheckStart(store);
  CheckCommandLine(lines);
}

}  // namespace
}  // namespace varnel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 0) varnel::CheckAll(varnel::BytesOf(data, size));
  return 0;
}
