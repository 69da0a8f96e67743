#include "tools/shots/note_subjects.h"

#include "resources/control_ids.h"
#include "tests/rig/controls.h"
#include "tests/rig/files.h"
#include "tests/rig/input.h"
#include "tests/rig/menus.h"

namespace varnel::shots {

using namespace rig;

namespace {

// Writes a note: a heading, a paragraph, bullets.
void WriteNote(const Program&, HWND form) {
  HWND editor = Control(form, rtbPAGEBOX);
  // The first letters that arrive tell that the program takes keys.
  WaitUntil([editor] {
    Click(CentreOf(editor));
    Type(L".");
    return Text(editor).starts_with(L".");
  });
  Chord({VK_CONTROL, 'A'});
  PressKey(VK_DELETE);
  Chord({VK_CONTROL, VK_MENU, '1'});
  Type(L"Plum cake\n");
  Chord({VK_CONTROL, VK_MENU, '7'});
  Type(L"500 g plums, halved. 200 g flour, 120 g butter, 3 eggs, 100 g sugar and a little ");
  Chord({VK_CONTROL, 'I'});
  Type(L"cinnamon");
  Chord({VK_CONTROL, 'I'});
  Type(L".\n");
  Chord({VK_CONTROL, VK_RETURN});
  Type(L"Oven at 180 \u00B0C, 35 minutes.\nDough first, plums on top, skin side down.\n");
  Type(L"Let it cool before it is cut.");
}

}  // namespace

void WriteNotes(const Program& program, HWND form) {
  const std::wstring folder = program.root().folder() + L"\\tavrin\\";
  for (const wchar_t* name :
       {L"Recipe plum cake.rtf", L"Ideas for June.rtf", L"Meeting, Tuesday.txt", L"Notes 4.txt"}) {
    WriteBytes(folder + name, "{\\rtf1 A note}");
  }
  PressKey(VK_F5);
  WriteNote(program, form);
}

namespace {

void FindInNote(const Program& program, HWND form) {
  WriteNotes(program, form);
  Chord({VK_CONTROL, VK_HOME});
  Chord({VK_CONTROL, 'F'});
  Type(L"plum\n");
  WaitUntil([form] { return SelectedUnits(Control(form, rtbPAGEBOX)) != std::pair(0, 0); }, 3000);
}

void SpellNote(const Program& program, HWND form) {
  WriteNotes(program, form);
  Type(L"Serve it wramly.");
  Chord({VK_CONTROL, VK_HOME});
  PressKey(VK_F7);
  PressKey(VK_RETURN);
  WaitUntil([form] { return !Text(Control(form, txtSUGG)).empty(); }, 3000);
}

// The same with one of the tool strip's panels open.
Preparation NotePanel(WORD key) {
  return [key](const Program& program, HWND form) {
    WriteNotes(program, form);
    PressKey(key);
  };
}

// The properties, or the question on closing a note that is not saved.
Preparation NoteCommand(const wchar_t* command) {
  return [command](const Program& program, HWND form) {
    WriteNotes(program, form);
    Choose(form, command);
  };
}

void ShowVersions(const Program& program, HWND form) {
  WriteNotes(program, form);
  for (const wchar_t* more : {L" Serves eight.", L" Keeps for two days."}) {
    const std::wstring title = Text(Control(form, lblNotes));
    Type(more);
    Choose(form, L"mnuNOTESSAVE");
    WaitUntil([&] { return Text(Control(form, lblNotes)) != title; }, 1500);
  }
  Choose(form, L"mnuNOTESVERSIONS");
}

void OpenTextMenu(const Program& program, HWND form) {
  WriteNotes(program, form);
  Chord({VK_CONTROL, 'A'});
  PressKey(VK_APPS);
}

}  // namespace

std::vector<Subject> NoteSubjects() {
  return {
      {L"notes", kNotes, kDpis | kManyPresets, {}, WriteNotes},
      {L"notes-find", kNotes, kDpis | kFewPresets, {}, FindInNote},
      {L"notes-spelling", kNotes, kDpis | kFewPresets, {}, SpellNote},
      {L"notes-fonts", kNotes, kDpis, {}, NotePanel(VK_F2)},
      {L"notes-paragraph", kNotes, kDpis, {}, NotePanel(VK_F4)},
      {L"notes-text", kNotes, kPlain, {}, NotePanel(VK_F9)},
      {L"notes-picture", kNotes, kPlain, {}, NotePanel(VK_F11)},
      {L"notes-properties",
       kNotes,
       kDpis,
       {},
       NoteCommand(L"mnuNOTESPROPS"),
       Part::kForm,
       L"frmNOTpr"},
      {L"notes-closing", kNotes, kDpis, {}, NoteCommand(L"mnuNOTESCLOSE"), Part::kForm, L"#32770"},
      {L"notes-versions", kNotes, kDpis, {}, ShowVersions, Part::kForm, L"frmNOTvr"},
      {L"notes-text-menu", kNotes, kPlain, {}, OpenTextMenu, Part::kForm, L"#32768"},
  };
}

}  // namespace varnel::shots
