#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/cases.h"
#include "tests/support/memory_files.h"
#include "widgets/calculator/calculation_log.h"

namespace varnel {
namespace {

const std::wstring kPath = L"C:\\Varnel\\calc2.dat";
const std::wstring kOldPath = kPath + L".old";

using Lines = std::vector<std::wstring>;

// A disk that can refuse reads, and that does nothing any more once its last operations are used
// up, as for a program that was ended; what is added to a file is then cut.
class FrailFiles : public test::MemoryFiles {
 public:
  std::optional<std::string> Read(const std::wstring& path, std::size_t limit) const override {
    return unreadable ? std::nullopt : MemoryFiles::Read(path, limit);
  }
  bool Replace(const std::wstring& path, std::string_view bytes) override {
    return operations_left-- > 0 && MemoryFiles::Replace(path, bytes);
  }
  bool Append(const std::wstring& path, std::size_t size, std::string_view bytes) override {
    if (operations_left-- > 0) return MemoryFiles::Append(path, size, bytes);
    MemoryFiles::Append(path, size, bytes.substr(0, bytes.size() / 2));
    return false;
  }
  bool Rename(const std::wstring& old_path, const std::wstring& new_path) override {
    return operations_left-- > 0 && MemoryFiles::Rename(old_path, new_path);
  }

  bool unreadable = false;
  int operations_left = 1'000'000;
};

struct CalculatorLog : ::testing::Test {
  FrailFiles files;
  CalculationLog log{files, kPath};

  void Start(std::string_view content) {
    files.files[kPath] = content;
    log.Load();
  }
  Lines Shown() const { return Shown(log); }
  static Lines Shown(const CalculationLog& log) {
    Lines lines;
    for (std::size_t i = 0; i < log.count(); ++i) lines.push_back(log.Line(i));
    return lines;
  }
  Lines AfterRestart() {
    CalculationLog next(files, kPath);
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
  EXPECT_EQ(files.files[kPath], "\"2 + 3 = 5.0\"\r\n");
  EXPECT_TRUE(log.Append(L"5 * 4 = 20.0"));
  EXPECT_EQ(files.files[kPath], "\"2 + 3 = 5.0\"\r\n\"5 * 4 = 20.0\"\r\n");
  log.DeleteSelected({0});
  EXPECT_EQ(files.files[kPath], "\"5 * 4 = 20.0\"\r\n");
  log.DeleteSelected({7});
  log.DeleteSelected({static_cast<std::size_t>(-1)});
  EXPECT_EQ(Shown(), Lines{L"5 * 4 = 20.0"});
  log.Clear();
  EXPECT_EQ(files.files[kPath], "");
  EXPECT_TRUE(log.Append(L"1 + 1 = 2.0"));
  EXPECT_EQ(AfterRestart(), Lines{L"1 + 1 = 2.0"});
  for (const char* meddled : {"", "\"1 + 1 = 2.0\"\r\n\"another\"\r\n"}) {
    files.files[kPath] = meddled;
    log.Append(L"2 + 2 = 4.0");
    EXPECT_EQ(AfterRestart(), Shown());
  }
  files.files.erase(kPath);
  log.Append(L"3 + 3 = 6.0");
  EXPECT_EQ(AfterRestart(), Shown());
}

TEST_F(CalculatorLog, AClashingKeyKeepsALineOut) {
  Start("\"a\"\r\n\"b\"\r\n\"c\"\r\n");
  log.DeleteSelected({1});
  const int writes = files.writes;
  EXPECT_FALSE(log.Append(L"d"));
  EXPECT_EQ(files.writes, writes + 1);
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

TEST_F(CalculatorLog, SeededChangesOnAFrailDiskFollowTheRules) {
  std::mt19937 random(5);
  std::vector<std::pair<std::wstring, std::wstring>> model;  // key and text
  Lines saved;
  log.Load();
  for (int step = 0; step < 20000; ++step) {
    const auto pick = random() % 100;
    files.operations_left = random() % 8 > 0 ? 1'000'000 : static_cast<int>(random() % 2);
    if (pick < 55) {
      const std::wstring key = std::to_wstring(model.size()) + L"m";
      const std::wstring text = L"line " + std::to_wstring(step);
      const bool clash =
          std::ranges::count(model, key, &std::pair<std::wstring, std::wstring>::first) > 0;
      if (!clash) model.emplace_back(key, text);
      ASSERT_EQ(log.Append(text), !clash) << step;
    } else if (pick < 98) {
      const std::size_t index = random() % (model.size() + 1);
      if (index < model.size()) model.erase(model.begin() + static_cast<std::ptrdiff_t>(index));
      log.DeleteSelected({index});
    } else if (log.saved()) {
      for (std::size_t i = 0; i < model.size(); ++i) model[i].first = std::to_wstring(i) + L"m";
      log.Load();
    }
    std::string file;
    ASSERT_EQ(log.count(), model.size());
    for (std::size_t i = 0; i < model.size(); ++i) {
      ASSERT_EQ(log.Line(i), model[i].second);
      file += "\"" + std::string(model[i].second.begin(), model[i].second.end()) + "\"\r\n";
    }
    if (log.saved()) {
      saved = Shown();
      ASSERT_EQ(files.files[kPath], file) << step;
    }
    ASSERT_EQ(AfterRestart(), saved) << step;
  }
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
    files.files.clear();
    Start(content);
    EXPECT_EQ(Shown(), lines) << content;
    EXPECT_EQ(files.files.at(kPath), content);  // reading writes nothing
    EXPECT_TRUE(log.Append(L"new"));
    EXPECT_EQ(files.FileExists(kOldPath), !whole) << content;
    if (!whole) {
      EXPECT_EQ(files.files[kOldPath], content);
    }
    EXPECT_EQ(AfterRestart(), Shown());
    EXPECT_TRUE(log.saved());
    log.Append(L"newer");  // moved aside once only
    EXPECT_EQ(files.files.size(), whole ? 1u : 2u);
  }
}

TEST_F(CalculatorLog, ForeignBytesStayAsTheyAre) {
  const std::string content = "\"K\xF6ln = 5\"\r\n\"\xED\xA0\x80\"\r\n";
  Start(content);
  EXPECT_EQ(log.count(), 2u);
  log.Append(L"1 + 1 = 2.0");
  EXPECT_EQ(files.files[kPath], content + "\"1 + 1 = 2.0\"\r\n");
}

TEST_F(CalculatorLog, AFileThatCannotBeReadIsNeverOverwritten) {
  files.unreadable = true;
  Start("\"precious = 1\"\r\n");
  EXPECT_EQ(log.count(), 0u);
  files.files[kOldPath] = "older";
  files.fail_writes = true;
  log.Append(L"a");
  EXPECT_FALSE(log.saved());
  EXPECT_EQ(files.files[kPath], "\"precious = 1\"\r\n");
  files.fail_writes = false;
  log.Append(L"b");
  EXPECT_TRUE(log.saved());
  EXPECT_EQ(files.files[kPath], "\"a\"\r\n\"b\"\r\n");
  EXPECT_EQ(files.files[kOldPath], "older");
  EXPECT_EQ(files.files[kOldPath + L"2"], "\"precious = 1\"\r\n");
}

TEST_F(CalculatorLog, WithNoNameLeftNothingIsWritten) {
  files.unreadable = true;
  Start("precious");
  files.files[kOldPath] = "1";
  for (int i = 2; i <= 99; ++i) files.files[kOldPath + std::to_wstring(i)] = "1";
  log.Append(L"a");
  EXPECT_FALSE(log.saved());
  EXPECT_EQ(files.files[kPath], "precious");
  files.files.erase(kPath);  // someone cleared up
  log.DeleteSelected({5});
  EXPECT_TRUE(log.saved());
  EXPECT_EQ(files.files[kPath], "\"a\"\r\n");
}

TEST_F(CalculatorLog, LinesThatCouldNotBeWrittenComeWithTheNextChange) {
  Start("\"a\"\r\n");
  files.fail_writes = true;
  EXPECT_TRUE(log.Append(L"b"));
  EXPECT_FALSE(log.saved());
  EXPECT_EQ(AfterRestart(), Lines{L"a"});
  files.fail_writes = false;
  log.Append(L"c");
  EXPECT_TRUE(log.saved());
  EXPECT_EQ(AfterRestart(), (Lines{L"a", L"b", L"c"}));
}

TEST_F(CalculatorLog, EndedAtAnyOperationNothingIsLost) {
  for (const std::string content : {"\"a\"\r\n", "\"a\"\n", "\"a\"\r\n\x01\r\n"}) {
    for (int operations = 0; operations <= 3; ++operations) {
      files.files.clear();
      Start(content);
      files.operations_left = operations;
      log.Append(L"b");
      files.operations_left = 1'000'000;
      const Lines after = AfterRestart();
      const bool kept = after == Lines{L"a"} || after == Lines{L"a", L"b"};
      const bool aside = files.FileExists(kOldPath) && files.files[kOldPath] == content;
      EXPECT_TRUE(kept || aside) << content << operations;
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
  EXPECT_EQ(files.files[kOldPath], junk);
  EXPECT_EQ(AfterRestart(), Shown());
}

TEST_F(CalculatorLog, ANormalFileHasNoLimitInPractice) {
  std::string file;
  while (file.size() < 20 << 20) file += "\"1 + 1 = 2.0\"\r\n";
  Start(file);
  EXPECT_EQ(log.count(), file.size() / 15);
  log.Append(L"x");
  EXPECT_FALSE(files.FileExists(kOldPath));
  file.clear();
  while (file.size() <= 64 << 20) file += std::string(999, 'x') + "\n";
  Start(file);
  EXPECT_EQ(log.count(), 0u);
  log.Append(L"x");
  EXPECT_TRUE(files.FileExists(kOldPath));
}

}  // namespace
}  // namespace varnel
