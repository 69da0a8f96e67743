// The panels of tools below the strip of the notes: one is open at a time.
#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "frame/services.h"
#include "frame/text_buttons_form.h"
#include "theme/themed_label_win.h"
#include "widgets/notes/editor/note_formats_win.h"
#include "widgets/notes/panels/panel_flow.h"

namespace varnel {

// What a panel is given by the form that it stands on.
class NotePanelHost {
 public:
  virtual ~NotePanelHost() = default;
  virtual HWND PanelParent() const = 0;
  virtual int PanelDpi() const = 0;
  virtual TextButtons& PanelButtons() = 0;
  // Of captions on the panel.
  virtual TextStyle PanelText() const = 0;
  // Of fields, which look like the system's boxes beside them.
  virtual TextStyle PanelBoxStyle() const = 0;
  virtual HFONT PanelFont() = 0;  // of boxes; borrowed until the panel is placed anew
  virtual NoteEditor& Editor() = 0;
  virtual NoteFormats& Formats() = 0;
  virtual Services& PanelServices() const = 0;
  // Says something in the strip.
  virtual void Tell(const std::wstring& notice) = 0;
  // A command has changed formats: everything that shows them is brought up to date. The second
  // gives the keyboard back to the text, too.
  virtual void Formatted() = 0;
  virtual void AfterCommand() = 0;
};

class NotePanel {
 public:
  explicit NotePanel(NotePanelHost& host) : host_(host) {}
  NotePanel(const NotePanel&) = delete;
  NotePanel& operator=(const NotePanel&) = delete;
  virtual ~NotePanel() = default;

  // Makes the controls, hidden.
  virtual void Load() = 0;
  // Whether it may be open beside a plain text note.
  virtual bool ForPlainText() const { return false; }
  // The rows that it wants where it is so wide, in pixels.
  virtual int Rows(int width) const;
  // Pixels of the form; empty hides it.
  virtual void Place(const Rect& box);
  virtual void OnOpened() {}
  // The selection or its format has changed while the panel is open.
  virtual void Refresh() {}
  // Another note is shown; `path` is its name for as long as it is shown.
  virtual void OnNoteShown(const std::wstring& /*path*/) {}
  // Writes what the panel keeps beyond the form.
  virtual void SaveState() {}
  // Sees a key message for one of its controls first; true when it has been dealt with.
  virtual bool OnKey(const MSG&) { return false; }
  // True when the control is one of the panel's.
  virtual bool OnControl(int id, int code) = 0;
  // How its button stands.
  virtual ButtonCheck CheckOf(int /*id*/) const { return ButtonCheck::kOff; }
  // Paints on the panel what is no control.
  virtual void Paint(Surface&) {}
  // Draws more than glyph or word on one of its buttons.
  virtual void DrawOnButton(const ButtonPainting&) {}
  // Gives the keyboard to the first control that is shown.
  void TakeFocus() const;
  // The control belongs to the panel.
  virtual bool Has(HWND control) const;

 protected:
  static ButtonCheck Checked(std::optional<bool> on) {
    return !on ? ButtonCheck::kMixed : *on ? ButtonCheck::kOn : ButtonCheck::kOff;
  }
  NotePanelHost& host() const { return host_; }
  HWND Control(int id) const { return ::GetDlgItem(host_.PanelParent(), id); }
  // Shows the glyph, or else the word; of a cell that can be narrow the glyph only while it is.
  void AddButton(int id, const wchar_t* word, wchar_t glyph, const PanelCell& cell);
  // A drop-down list, or a box to type in with a list (CBS_DROPDOWN).
  void AddCombo(int id, DWORD style, const wchar_t* word, const PanelCell& cell);
  void AddLabel(int id, const wchar_t* text, const PanelCell& cell);
  // A control that the panel has made itself.
  void AddWindow(int id, HWND window, const PanelCell& cell);
  // Writes on a button whose word is for its tooltip alone.
  void DrawFace(const ButtonPainting& painting, const wchar_t* face);
  // In a box with a list, what is chosen or typed.
  std::wstring BoxText(int id, int code) const;
  // Chooses the entry, or shows the text; nothing for an empty one. A box in which the user is
  // typing is left alone.
  void ShowInBox(int id, const std::wstring& text) const;

 private:
  struct Part {
    int id;
    HWND handle;
    bool combo;
    wchar_t narrow_glyph;
  };

  NotePanelHost& host_;
  std::vector<Part> parts_;
  std::vector<PanelCell> cells_;
  std::vector<std::unique_ptr<ThemedLabel>> labels_;
};

}  // namespace varnel
