// The editor's formats, its undo and how it looks and behaves.
#include "win/rich/rich_edit.h"

namespace varnel {
// --- formats

CharacterFormat RichEdit::FormatOf(WPARAM scope) const {
  CHARFORMAT2W format = {};
  format.cbSize = sizeof format;
  SendTo(EM_GETCHARFORMAT, scope, format);
  return FromSystem(format);
}

CharacterFormat RichEdit::SelectionFormat() const {
  return FormatOf(SCF_SELECTION);
}

CharacterFormat RichEdit::DefaultFormat() const {
  return FormatOf(SCF_DEFAULT);
}

void RichEdit::SetFormat(const CharacterFormat& format, Scope scope) {
  CHARFORMAT2W wanted = ToSystem(format);
  SendTo(EM_SETCHARFORMAT, scope == Scope::kAll ? SCF_ALL : SCF_SELECTION, wanted);
}

void RichEdit::SetDefaultFormat(const CharacterFormat& format) {
  CHARFORMAT2W wanted = ToSystem(format);
  SendTo(EM_SETCHARFORMAT, SCF_DEFAULT, wanted);
}

RichParagraph RichEdit::SelectionParagraph() const {
  PARAFORMAT2 format = {};
  format.cbSize = sizeof format;
  SendTo(EM_GETPARAFORMAT, 0, format);
  return FromSystem(format);
}

void RichEdit::SetParagraph(const RichParagraph& format) {
  PARAFORMAT2 wanted = ToSystem(format);
  SendTo(EM_SETPARAFORMAT, 0, wanted);
}

void RichEdit::UseAdvancedTypography() {
  Send(EM_SETTYPOGRAPHYOPTIONS, TO_ADVANCEDTYPOGRAPHY, TO_ADVANCEDTYPOGRAPHY);
}

// --- undo

bool RichEdit::CanUndo() const {
  return Send(EM_CANUNDO) != 0;
}

bool RichEdit::CanRedo() const {
  return Send(EM_CANREDO) != 0;
}

void RichEdit::Undo() {
  Send(EM_UNDO);
}

void RichEdit::Redo() {
  Send(EM_REDO);
}

void RichEdit::ForgetUndo() {
  Send(EM_EMPTYUNDOBUFFER);
}

void RichEdit::EndTypingStep() {
  Send(EM_STOPGROUPTYPING);
}

// --- look and behaviour

void RichEdit::SetReadOnly(bool on) {
  Send(EM_SETREADONLY, on);
}

void RichEdit::SetGround(const TextColour& colour) {
  Send(EM_SETBKGNDCOLOR, colour.automatic, static_cast<LPARAM>(colour.colour));
}

void RichEdit::WrapToWindow(bool on) {
  Send(EM_SETTARGETDEVICE, 0, on ? 0 : 1);
}

void RichEdit::SetMargins(int left, int right) {
  Send(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(left, right));
}

void RichEdit::SetZoom(int percent) {
  // One to one is told as such: "no zoom", 0 to 0, leaves letters small on some systems.
  if (percent == 100) {
    Send(EM_SETZOOM, 1, 1);
  } else {
    Send(EM_SETZOOM, static_cast<WPARAM>(percent), 100);
  }
}

int RichEdit::Zoom() const {
  int upper = 0;
  int lower = 0;
  Send(EM_GETZOOM, reinterpret_cast<WPARAM>(&upper), reinterpret_cast<LPARAM>(&lower));
  return upper > 0 && lower > 0 ? ::MulDiv(100, upper, lower) : 100;
}

void RichEdit::MarkAddresses(bool on) {
  Send(EM_AUTOURLDETECT, on);
}

// --- pictures

ComPointer<IRichEditOle> RichEdit::Ole() const {
  ComPointer<IRichEditOle> ole;
  Send(EM_GETOLEINTERFACE, 0, reinterpret_cast<LPARAM>(ole.Receive()));
  return ole;
}

bool RichEdit::InsertPicture(const SharedMetafile& look, Size size, std::uint32_t id) {
  const ComPointer<IRichEditOle> ole = Ole();
  return ole && InsertRichPicture(*ole.get(), look, size, id);
}

std::vector<RichPicture> RichEdit::Pictures() const {
  const ComPointer<IRichEditOle> ole = Ole();
  return ole ? RichPictures(*ole.get()) : std::vector<RichPicture>();
}

RichEdit::Quietly::Quietly(RichEdit& edit) : edit_(edit) {
  if (edit_.quiet_++ == 0) edit_.Send(WM_SETREDRAW, FALSE);
}

RichEdit::Quietly::~Quietly() {
  if (--edit_.quiet_ != 0) return;
  edit_.Send(WM_SETREDRAW, TRUE);
  ::InvalidateRect(edit_.handle_, nullptr, TRUE);
}

}  // namespace varnel
