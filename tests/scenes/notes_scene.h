// What the scenes of the notes share.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "base/text.h"
#include "resources/control_ids.h"
#include "tests/rig/scene.h"
#include "widgets/notes/rtf/rtf_reader.h"
#include "win/system/com.h"

namespace varnel::rig {

class NotesScene : public Scene {
 protected:
  void Start() {
    root().settings().SetText(L"frmVRNpr\\Details", L"Start-Load-Notes", L"True");
    root().settings().SetText(L"frmNOTwg\\Window", L"Width", L"9000");
    root().settings().SetText(L"frmNOTwg\\Window", L"Height", L"7000");
    ASSERT_TRUE(program().Start(L"/tray"));
    form_ = WaitForForm(program(), L"frmNOTwg");
    ASSERT_TRUE(form_);
    editor_ = Control(form_, rtbPAGEBOX);
    ASSERT_TRUE(Activate(form_));
    ASSERT_TRUE(ClickOn(editor_));
  }
  std::wstring Folder() { return root().folder() + L"\\tavrin\\"; }
  std::vector<std::wstring> Files() {
    auto files = FilesBelow(Folder());
    std::erase_if(files, [](const auto& name) {
      return name.starts_with(L".varnel") || name.ends_with(L".new");
    });
    return files;
  }
  // The one note that has been saved.
  std::wstring OnlyNote() {
    EXPECT_SOON(Files().size() == 1);
    return Files().size() == 1 ? Folder() + Files()[0] : std::wstring();
  }
  RtfDocument Saved(const std::wstring& path) {
    const RtfReading reading = ReadRtf(FileBytes(path).value_or(""));
    EXPECT_EQ(reading.fault, RtfFault::kNone);
    return reading.document;
  }
  static const CharFormat& FormatAt(const RtfDocument& document, std::wstring_view word) {
    const std::size_t at = document.text.find(word);
    EXPECT_NE(at, std::wstring::npos) << Utf8FromWide(word);
    const auto run = std::ranges::upper_bound(document.runs, at, {}, &RtfRun::begin);
    return document.char_formats[std::prev(run)->format];
  }
  static const ParagraphFormat& ParagraphAt(const RtfDocument& document, std::wstring_view word) {
    const std::size_t at = document.text.find(word);
    EXPECT_NE(at, std::wstring::npos) << Utf8FromWide(word);
    const auto paragraph =
        std::ranges::upper_bound(document.paragraphs, at, {}, &RtfParagraph::begin);
    return document.paragraph_formats[std::prev(paragraph)->format];
  }
  std::wstring Title() { return Text(Control(form_, lblNotes)); }
  std::wstring Content() { return Text(editor_); }

  ComApartment apartment_;
  HWND form_ = nullptr;
  HWND editor_ = nullptr;
};

}  // namespace varnel::rig
