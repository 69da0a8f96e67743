#include "tools/shots/note_subjects.h"

#include "resources/control_ids.h"
#include "tests/rig/controls.h"
#include "tests/rig/files.h"
#include "tests/rig/input.h"

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

}  // namespace

std::vector<Subject> NoteSubjects() {
  return {
      {L"notes", kNotes, kDpis | kFewPresets, {}, WriteNotes},
      {L"notes-find", kNotes, kDpis | kFewPresets, {}, FindInNote},
      {L"notes-spelling", kNotes, kDpis | kFewPresets, {}, SpellNote},
      {L"notes-fonts", kNotes, kDpis, {}, NotePanel(VK_F2)},
      {L"notes-paragraph", kNotes, kDpis, {}, NotePanel(VK_F4)},
      {L"notes-text", kNotes, kPlain, {}, NotePanel(VK_F9)},
      {L"notes-picture", kNotes, kPlain, {}, NotePanel(VK_F11)},
  };
}

}  // namespace varnel::shots
