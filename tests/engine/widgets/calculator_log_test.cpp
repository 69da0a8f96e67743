#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/cases.h"
#include "tests/support/failing_files.h"
#include "tests/support/memory_files.h"
#include "widgets/calculator/calculation_log.h"

namespace varnel {
namespace {

const std::wstring kPath = L"C:\\Varnel\\calc2.dat";
const std::wstring kOldPath = kPath + L".old";

using Lines = std::vector<std::wstring>;

struct CalculatorLog : ::testing::Test {
  test::MemoryFiles disk;
  test::FailingFiles files{disk};
  CalculationLog log{files, kPath};

  CalculatorLog() { disk.CreateFolder(L"C:\\Varnel"); }
  void Start(std::string_view content) {
    disk.files[kPath] = content;
    log.Load();
  }
  Lines Shown() const { return Shown(log); }
  static Lines Shown(const CalculationLog& log) {
    Lines lines;
    for (std::size_t i = 0; i < log.count(); ++i) lines.push_back(log.Line(i));
    return lines;
  }
  // What a start would show, without the files that it changes.
  Lines AfterRestart() const {
    test::MemoryFiles copy = disk;
    CalculationLog next(copy, kPath);
    next.Load();
    return Shown(next);
  }
};

TEST_F(CalculatorLog, BuildsAndRecallsLines) {
  EXPECT_EQ(CalculationLine(12, L'/', 5, L"2.4"), L"12 / 5 = 2.4");
  EXPECT_EQ(CalculationLine(-1e15, L'*', 0.00001, L"x"), L"-1E+15 * 1E-05 = x");
  EXPECT_EQ(RecalledText(L"7 * 3 = 21.0"), L"21.0");
  EXPECT_EQ(RecalledText(L"a = b = c"), L"b = c");
  EXPECT_EQ(RecalledText(L"a = "), L"");
  EXPECT_FALSE(RecalledText(L"7 * 3 =21.0"));
  EXPECT_FALSE(RecalledText(L""));
}

TEST_F(CalculatorLog, EveryChangeIsWrittenAtOnce) {
  log.Load();  // a missing file is an empty log
  EXPECT_EQ(log.count(), 0u);
  EXPECT_TRUE(log.Append(L"2 + 3 = 5.0"));
  EXPECT_EQ(disk.files[kPath], "\"2 + 3 = 5.0\"\r\n");
  EXPECT_TRUE(log.Append(L"5 * 4 = 20.0"));
  EXPECT_EQ(disk.files[kPath], "\"2 + 3 = 5.0\"\r\n\"5 * 4 = 20.0\"\r\n");
  log.DeleteSelected({0});
  EXPECT_EQ(disk.files[kPath], "\"5 * 4 = 20.0\"\r\n");
  log.DeleteSelected({7});
  log.DeleteSelected({static_cast<std::size_t>(-1)});
  EXPECT_EQ(Shown(), Lines{L"5 * 4 = 20.0"});
  log.Clear();
  EXPECT_EQ(disk.files[kPath], "");
  EXPECT_TRUE(log.Append(L"1 + 1 = 2.0"));
  EXPECT_EQ(AfterRestart(), Lines{L"1 + 1 = 2.0"});
  for (const char* meddled : {"", "\"1 + 1 = 2.0\"\r\n\"another\"\r\n"}) {
    disk.files[kPath] = meddled;
    log.Append(L"2 + 2 = 4.0");
    EXPECT_EQ(AfterRestart(), Shown());
  }
  disk.files.erase(kPath);
  log.Append(L"3 + 3 = 6.0");
  EXPECT_EQ(AfterRestart(), Shown());
}

TEST_F(CalculatorLog, AClashingKeyKeepsALineOut) {
  Start("\"a\"\r\n\"b\"\r\n\"c\"\r\n");
  log.DeleteSelected({1});
  const int writes = disk.writes;
  EXPECT_FALSE(log.Append(L"d"));
  EXPECT_EQ(disk.writes, writes + 1);
  EXPECT_EQ(Shown(), (Lines{L"a", L"c"}));
  EXPECT_EQ(AfterRestart(), Shown());

  log.DeleteSelected({1});  // deleting the last line frees its key
  EXPECT_TRUE(log.Append(L"e"));
  log.DeleteSelected({0});
  EXPECT_FALSE(log.Append(L"f"));
  log.Load();  // a start keys the lines afresh
  EXPECT_TRUE(log.Append(L"f"));
  EXPECT_EQ(Shown(), (Lines{L"e", L"f"}));
}

// Sums are added and deleted while the file fails, and others add to it and hold it: no sum is lost
// or comes twice, and one that was deleted stays away.
TEST_F(CalculatorLog, SeededChangesOnAFrailDiskLoseNothing) {
  std::mt19937 random(5);
  Lines model;  // in no order
  const auto sorted = [](Lines lines) {
    std::ranges::sort(lines);
    return lines;
  };
  disk.files[kPath] = "";
  log.Load();
  for (int step = 0; step < 20000; ++step) {
    const auto pick = random() % 100;
    const std::wstring text = L"line " + std::to_wstring(step);
    if (random() % 8 == 0) disk.fail_writes = !disk.fail_writes;
    if (random() % 8 == 0 && !disk.locked.erase(kPath)) disk.locked.insert(kPath);
    if (pick < 40) {
      if (log.Append(text)) model.push_back(text);
    } else if (pick < 60) {
      const std::size_t index = random() % (log.count() + 1);
      if (index < log.count()) std::erase(model, log.Line(index));
      log.DeleteSelected({index});
    } else if (pick < 62) {
      const Lines seen = Shown();
      std::erase_if(model, [&](const auto& line) { return std::ranges::count(seen, line) > 0; });
      log.Clear();
    } else if (pick < 75 && !disk.locked.contains(kPath)) {
      disk.files[kPath] += "\"" + std::string(text.begin(), text.end()) + "\"\r\n";
      model.push_back(text);
    } else if (pick < 90) {
      log.Retry();
    } else if (log.saved()) {
      log.Load();
    }
    if (disk.fail_writes || disk.locked.contains(kPath)) continue;
    log.Retry();
    ASSERT_TRUE(log.saved()) << step;
    ASSERT_EQ(sorted(AfterRestart()), sorted(model)) << step;
  }
  disk.fail_writes = false;
  disk.locked.clear();
  log.Retry();
  EXPECT_EQ(disk.files.size(), 1u) << "nothing was damaged, so nothing was set aside";
}

TEST_F(CalculatorLog, DamagedFilesLoadWhatTheyCan) {
  const std::string longest(1000, 'x');
  const test::Cases<std::string, Lines, bool> cases = {
      {"", {}, true},
      {"\r\n\r\n\"\"\r\n\"\r\n", {}, true},
      {"\"a\"\r\n\"b\"", {L"a", L"b"}, true},  // the last line end is missing
      {"\"a\"\r\n\"b", {L"a"}, false},         // cut
      {"\"a\"\r\n\"", {L"a"}, true},           // cut before anything of it
      {"\"a\"\r\nb", {L"a", L"b"}, true},
      {"\"a\r\nb\"\r\nc\r\n", {L"a", L"b", L"c"}, true},  // missing quotes
      {"\"a\"\n\"b\"\r\"c\"", {L"a", L"b", L"c"}, true},  // other line ends
      {"\xEF\xBB\xBF\"a\"\r\n", {L"a"}, true},
      {"\"say \"hi\" = 3\"\r\n", {L"say \"hi\" = 3"}, true},
      {"\"\xC3\xB6 = 1\"\r\n", {L"\u00F6 = 1"}, true},
      {"\"a\tb\"\r\n", {L"a\tb"}, true},
      {"\"" + longest + "\"\r\n", {std::wstring(1000, L'x')}, true},
      {"\"" + longest + "y\"\r\n\"b\"\r\n", {L"b"}, false},
      {std::string("\"a\"\r\n\0\1\2junk\r\n\"b\"\r\n", 19), {L"a", L"b"}, false},
      {"\"a\x1A\"", {}, false},
  };
  for (const auto& [content, lines, whole] : cases) {
    disk.files.clear();
    Start(content);
    EXPECT_EQ(Shown(), lines) << content;
    EXPECT_EQ(disk.files.at(kPath), content);  // reading writes nothing
    EXPECT_TRUE(log.Append(L"new"));
    EXPECT_EQ(disk.FileExists(kOldPath), !whole) << content;
    if (!whole) {
      EXPECT_EQ(disk.files[kOldPath], content);
    }
    EXPECT_EQ(AfterRestart(), Shown());
    EXPECT_TRUE(log.saved());
    log.Append(L"newer");  // moved aside once only
    EXPECT_EQ(disk.files.size(), whole ? 1u : 2u);
  }
}

TEST_F(CalculatorLog, ForeignBytesStayAsTheyAre) {
  const std::string content = "\"K\xF6ln = 5\"\r\n\"\xED\xA0\x80\"\r\n";
  Start(content);
  EXPECT_EQ(log.count(), 2u);
  log.Append(L"1 + 1 = 2.0");
  EXPECT_EQ(disk.files[kPath], content + "\"1 + 1 = 2.0\"\r\n");
}

TEST_F(CalculatorLog, ALockedFileIsNotDamaged) {
  disk.locked.insert(kPath);
  Start("\"a\"\r\n");
  EXPECT_EQ(log.trouble(), FileResult::kLocked);
  log.Append(L"b");
  log.Retry();
  EXPECT_EQ(Shown(), Lines{L"b"});
  EXPECT_EQ(disk.files[kPath], "\"a\"\r\n");
  disk.locked.clear();
  log.Retry();
  EXPECT_EQ(Shown(), (Lines{L"a", L"b"}));
  EXPECT_EQ(disk.files[kPath], "\"a\"\r\n\"b\"\r\n");
  EXPECT_EQ(disk.files.size(), 1u);

  disk.locked.insert(kPath);
  log.Load();
  disk.locked.clear();
  const int writes = disk.writes;
  log.Retry();
  EXPECT_EQ(Shown(), (Lines{L"a", L"b"}));
  EXPECT_EQ(disk.writes, writes) << "reading again writes nothing";
}

TEST_F(CalculatorLog, OnAReadOnlyFileTheSumsWait) {
  Start("\"a\"\r\n");
  disk.read_only.insert(kPath);
  log.Append(L"b");
  log.Append(L"c");
  log.DeleteSelected({0, 1});
  EXPECT_EQ(log.trouble(), FileResult::kReadOnly);
  EXPECT_EQ(disk.files[kPath], "\"a\"\r\n");
  EXPECT_EQ(AfterRestart(), (Lines{L"a", L"c"})) << "what was not deleted on the disk is back";
  disk.read_only.clear();
  log.Retry();
  EXPECT_EQ(disk.files[kPath], "\"c\"\r\n");
  EXPECT_EQ(disk.files.size(), 1u);
}

TEST_F(CalculatorLog, WhatOthersAddedIsTakenOver) {
  Start("\"a\"\r\n\"b\"\r\n");
  disk.Plant(kPath, "\"a\"\r\n\"b\"\r\n\"theirs\"\r\n");
  EXPECT_TRUE(log.Append(L"c"));
  EXPECT_EQ(Shown(), (Lines{L"a", L"b", L"theirs", L"c"}));
  disk.Plant(kPath, "\"first\"\r\n\"a\"\r\n\"a\"\r\n\"c\"\r\n");
  log.DeleteSelected({0});
  EXPECT_EQ(Shown(), (Lines{L"first", L"a", L"c"}));
  EXPECT_TRUE(log.Append(L"d")) << "the keys are new";
  disk.Plant(kPath, "\"x\"\r\n\"a\"\r\n");
  log.Clear();
  EXPECT_EQ(Shown(), Lines{L"x"});
  EXPECT_EQ(AfterRestart(), Shown());
}

TEST_F(CalculatorLog, WithNoNameLeftNothingIsWritten) {
  Start("\x01 precious");
  disk.files[kOldPath] = "1";
  for (int i = 2; i <= 99; ++i) disk.files[kOldPath + std::to_wstring(i)] = "1";
  log.Append(L"a");
  EXPECT_EQ(log.trouble(), FileResult::kExists);
  EXPECT_EQ(disk.files[kPath], "\x01 precious");
  disk.files.erase(kPath);  // someone cleared up
  log.DeleteSelected({5});
  EXPECT_TRUE(log.saved());
  EXPECT_EQ(disk.files[kPath], "\"a\"\r\n");
}

// At each operation, once or as for a program that was ended there.
TEST_F(CalculatorLog, FailingAtAnyOperationNothingIsLost) {
  for (const std::string content : {"\"a\"\r\n", "\"a\"\n", "\"a\"\r\n\x01\r\n"}) {
    for (const bool for_ever : {false, true}) {
      for (int operation = 0;; ++operation) {
        disk.files.clear();
        Start(content);
        files.FailAfter(operation, FileResult::kFull, for_ever);
        log.Append(L"b");
        const bool met = files.failed();
        const Lines after = AfterRestart();
        const bool aside = disk.files.contains(kOldPath) && disk.files[kOldPath] == content;
        EXPECT_TRUE(aside || (!after.empty() && after[0] == L"a")) << content << operation;
        EXPECT_EQ(Shown(), (Lines{L"a", L"b"}));
        files.Heal();
        log.Retry();
        EXPECT_TRUE(log.saved());
        EXPECT_EQ(AfterRestart(), Shown()) << content << operation;
        if (!met) break;
      }
    }
  }
}

TEST_F(CalculatorLog, FiftyMegabytesOfJunk) {
  std::string junk = "\"1 + 1 = 2.0\"\r\n";
  std::mt19937 random(3);
  while (junk.size() < 50'000'000) {
    junk.append(random() % 5000, static_cast<char>(random()));
    if (random() % 100 == 0) junk += "\n";
  }
  junk += "\r\n\"2 + 2 = 4.0\"";
  Start(junk);
  ASSERT_GE(log.count(), 2u);
  EXPECT_EQ(log.Line(0), L"1 + 1 = 2.0");
  EXPECT_EQ(log.Line(log.count() - 1), L"2 + 2 = 4.0");
  log.Append(L"3 + 3 = 6.0");
  EXPECT_EQ(disk.files[kOldPath], junk);
  EXPECT_EQ(AfterRestart(), Shown());
}

TEST_F(CalculatorLog, ANormalFileHasNoLimitInPractice) {
  std::string file;
  while (file.size() < 20 << 20) file += "\"1 + 1 = 2.0\"\r\n";
  Start(file);
  EXPECT_EQ(log.count(), file.size() / 15);
  log.Append(L"x");
  EXPECT_FALSE(disk.FileExists(kOldPath));
  file.clear();
  while (file.size() <= 64 << 20) file += std::string(999, 'x') + "\n";
  Start(file);
  EXPECT_EQ(log.count(), 0u);
  log.Append(L"x");
  EXPECT_TRUE(disk.FileExists(kOldPath));
}

}  // namespace
}  // namespace varnel
