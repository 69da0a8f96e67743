// Any bytes as a preset file: reading them stays within bounds, completing them takes at most one
// write, and what was completed is left alone from then on.
#include <string>

#include "fuzz/require.h"
#include "tests/support/memory_files.h"
#include "theme/ini_text.h"
#include "theme/preset.h"
#include "theme/preset_file.h"

namespace varnel {
namespace {

const std::wstring kFolder = L"C:\\themes";
const std::wstring kName = L"x";

void CheckText(const std::string& bytes) {
  auto ini = IniText::FromBytes(bytes);
  if (!ini) return;
  const bool half_unit = bytes.starts_with("\xFF\xFE") && bytes.size() % 2 != 0;
  Require(ini->Bytes() == bytes.substr(0, bytes.size() - (half_unit ? 1 : 0)));
  Require(ini->Value(L"main", L"> Main-Color").size() <= IniText::kLongestValue);

  const std::wstring before = ini->Value(L"text", L"> Bar-Font");
  ini->SetValue(L"preset", L"> caption", L"\u00fc 1");
  Require(ini->Value(L"PRESET", L"> Caption") == L"\u00fc 1");
  Require(ini->Value(L"text", L"> Bar-Font") == before);
  const auto again = IniText::FromBytes(ini->Bytes());
  Require(again && again->Value(L"preset", L"> caption") == L"\u00fc 1");
}

void CheckFile(const std::string& bytes) {
  test::MemoryFiles files(kFolder);
  const std::wstring path = PresetPath(kFolder, kName);
  files.files[path] = bytes;
  ThemeRecord theme;
  LoadPreset(files, kFolder, kName, theme);
  Require(files.writes <= 1);
  for (const std::wstring* font : {&theme.strTHEMEBARFONTNAME, &theme.strTHEMEPANELFONTNAME}) {
    Require(!font->empty() && font->size() <= kLongestFontName);
  }
  const std::string completed = files.files[path];
  Require(completed.size() <= PresetFile::kLargestFile || completed == bytes);
  ThemeRecord again = theme;
  LoadPreset(files, kFolder, kName, again);
  Require(again == theme && files.files[path] == completed);
}

}  // namespace
}  // namespace varnel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(varnel::BytesOf(data, size));
  varnel::CheckText(bytes);
  varnel::CheckFile(bytes);
  return 0;
}
