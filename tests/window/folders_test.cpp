// Folders and files as the user meets them: the watch, the recycle bin, the system's dialogs.
#include <functional>
#include <utility>
#include <vector>

#include "tests/rig/dialogs.h"
#include "tests/rig/files.h"
#include "tests/window/window_aid.h"
#include "win/files/folder_watch.h"
#include "win/files/recycle_bin.h"
#include "win/windows/file_dialogs.h"

namespace varnel {
namespace {

class InFolder : public test::Hosted {
 protected:
  InFolder() {
    rig::RemoveAll(folder_);
    rig::WriteBytes(folder_ + L"\\a.txt", "one");
  }
  ~InFolder() override { rig::RemoveAll(folder_); }

  const std::wstring folder_ = test::TemporaryFolder();
};

class Watched : public InFolder {
 protected:
  // One report more comes, and only one.
  bool ReportedOnce() {
    const int before = reports_;
    const bool came = test::RunMessagesUntil([&] { return reports_ > before; });
    test::RunMessagesFor(400);
    return came && reports_ == before + 1;
  }

  int reports_ = 0;
  FolderWatch watch_{ui_, [this] { ++reports_; }};
};

TEST_F(Watched, ChangesOfAnyKindAreReportedOnceEach) {
  watch_.Watch(folder_);
  test::RunMessagesFor(300);
  EXPECT_EQ(reports_, 0);
  const std::pair<const char*, std::function<void()>> changes[] = {
      {"a hundred files",
       [&] {
         for (int i = 0; i < 100; ++i) {
           rig::WriteBytes(folder_ + L"\\" + std::to_wstring(i) + L".rtf", "x");
         }
       }},
      {"rewritten", [&] { rig::WriteBytes(folder_ + L"\\a.txt", "longer"); }},
      {"renamed",
       [&] { ::MoveFileW((folder_ + L"\\a.txt").c_str(), (folder_ + L"\\b.txt").c_str()); }},
      {"replaced",
       [&] {
         rig::WriteBytes(folder_ + L"\\c.new", "x");
         ::MoveFileExW((folder_ + L"\\c.new").c_str(), (folder_ + L"\\b.txt").c_str(),
                       MOVEFILE_REPLACE_EXISTING);
       }},
      {"deleted", [&] { rig::RemoveAll(folder_ + L"\\b.txt"); }}};
  for (const auto& [name, change] : changes) {
    change();
    EXPECT_TRUE(ReportedOnce()) << name;
  }
  watch_.Watch(L"");
  rig::WriteBytes(folder_ + L"\\d.txt", "x");
  test::RunMessagesFor(400);
  EXPECT_EQ(reports_, 5);
}

TEST_F(Watched, AFolderMayVanishAndComeBack) {
  watch_.Watch(folder_);
  rig::RemoveAll(folder_);
  EXPECT_TRUE(ReportedOnce());
  EXPECT_FALSE(rig::FolderExists(folder_)) << "the watch still holds it";
  rig::WriteBytes(folder_ + L"\\e.txt", "x");
  EXPECT_TRUE(ReportedOnce());
  rig::WriteBytes(folder_ + L"\\f.txt", "x");
  EXPECT_TRUE(ReportedOnce());
}

TEST_F(InFolder, AThousandWatchesEndWithoutLeavingAnything) {
  for (int i = 0; i < 1000; ++i) {
    FolderWatch watch(ui_, [] { ADD_FAILURE() << "reported after its end"; });
    watch.Watch(folder_);
    if (i % 10 == 0) rig::WriteBytes(folder_ + L"\\a.txt", "two");
  }
  test::RunMessagesFor(300);
  EXPECT_TRUE(rig::RemoveAll(folder_)) << "nobody holds it";
}

TEST_F(InFolder, DeletedFilesGoAlsoWhenReadOnlyButOnlyIfAsked) {
  const std::wstring path = folder_ + L"\\a.txt";
  ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_FALSE(RecycleFile(path));
  EXPECT_TRUE(rig::FileExists(path));
  EXPECT_TRUE(RecycleFile(path, ReadOnlyFile::kGoes));
  EXPECT_FALSE(rig::FileExists(path));
  EXPECT_TRUE(RecycleFile(path)) << "it is gone already";
  EXPECT_FALSE(RecycleFile(folder_)) << "folders are not files";
  EXPECT_TRUE(rig::FolderExists(folder_));
}

class Dialogs : public InFolder {
 protected:
  Dialogs() {
    rig::WriteBytes(folder_ + L"\\b.txt", "two");
    watch_.Start();
  }

  std::wstring Path(const wchar_t* name) const { return folder_ + L"\\" + name; }
  FileRequest Request() const { return {L"Test", L"Texts (*.txt)|*.txt|Plain", 1, folder_}; }

  // What is done to the dialogs that come up, one after the other.
  std::vector<std::function<void(HWND)>> answers_;

 private:
  // The topmost dialog is the one that is open; each is answered once.
  void AnswerNext() {
    HWND dialog = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM found) -> BOOL {
          const bool shown = rig::ClassOf(window) == L"#32770" && rig::IsShown(window);
          if (shown) *reinterpret_cast<HWND*>(found) = window;
          return !shown;
        },
        reinterpret_cast<LPARAM>(&dialog));
    if (!dialog || dialog == answered_ || answers_.empty()) return;
    answered_ = dialog;
    const auto answer = answers_.front();
    answers_.erase(answers_.begin());
    answer(dialog);
  }

  HWND answered_ = nullptr;
  Timer watch_{host_, 50, [this] { AnswerNext(); }};
};

TEST_F(Dialogs, FilesToOpenComeWithTheirFolder) {
  const auto type = [](const wchar_t* text) {
    return [text](HWND dialog) { EXPECT_TRUE(rig::AnswerFileDialog(dialog, text)); };
  };
  const auto cancel = [](HWND dialog) { rig::PressButton(dialog, IDCANCEL); };
  answers_ = {type(L"\"a.txt\" \"b.txt\""), type(L"b.txt"), cancel,
              type(L"\"a.txt\" \"b.txt\""), type(L"a.txt"), cancel};
  EXPECT_EQ(BrowseForFiles(host_.handle(), Request(), 2048).paths,
            (std::vector<std::wstring>{Path(L"a.txt"), Path(L"b.txt")}));
  EXPECT_EQ(BrowseForFiles(host_.handle(), Request(), 2048).paths,
            std::vector<std::wstring>{Path(L"b.txt")});
  EXPECT_FALSE(BrowseForFiles(host_.handle(), Request(), 2048).too_many) << "only cancelled";
  const FilesChosen many = BrowseForFiles(host_.handle(), Request(), 50);
  EXPECT_TRUE(many.too_many && many.paths.empty());
  EXPECT_EQ(BrowseForFile(host_.handle(), Request()), Path(L"a.txt"));
  EXPECT_EQ(BrowseForFile(host_.handle(), Request()), L"");
  EXPECT_TRUE(answers_.empty());
}

TEST_F(Dialogs, AFileToSaveIsAskedForTwiceWhereItExists) {
  answers_ = {
      [](HWND dialog) { EXPECT_TRUE(rig::AnswerFileDialog(dialog, L"new", 1)); },
      [](HWND dialog) { EXPECT_TRUE(rig::AnswerFileDialog(dialog, L"a.txt")); },
      [](HWND question) { rig::PressButton(question, IDYES); },
  };
  auto chosen = BrowseForFileToSave(host_.handle(), Request());
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->path, Path(L"new"));
  EXPECT_EQ(chosen->filter_index, 2) << "a filter without a pattern";
  chosen = BrowseForFileToSave(host_.handle(), Request());
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->path, Path(L"a.txt"));
  EXPECT_EQ(chosen->filter_index, 1);
  EXPECT_TRUE(answers_.empty()) << "the question before overwriting did not come";
}

TEST_F(Dialogs, AFolderIsPicked) {
  answers_ = {[this](HWND dialog) { EXPECT_TRUE(rig::AnswerFolderDialog(dialog, folder_)); },
              [](HWND dialog) { rig::PressButton(dialog, IDOK); },
              [](HWND dialog) { rig::PressButton(dialog, IDCANCEL); }};
  EXPECT_EQ(BrowseForFolder(host_.handle(), L"Choose"), folder_);
  EXPECT_EQ(BrowseForFolder(host_.handle(), L"Choose", folder_), folder_) << "chosen at first";
  EXPECT_EQ(BrowseForFolder(host_.handle(), L"Choose"), L"");
}

}  // namespace
}  // namespace varnel
