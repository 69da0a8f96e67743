// The panels from which a document or a picture is put into the note: drive, folder, file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/settings.h"
#include "widgets/notes/editor/note_editor_win.h"
#include "widgets/notes/panels/note_panel_win.h"
#include "win/windows/painted_window.h"

namespace varnel {

// What differs between the two.
struct InsertKind {
  int drives;
  int folders;
  int files;
  int preview;
  int insert;
  const Setting& folder;
  bool (*shown)(std::wstring_view name);  // whether a file of that name is listed
};

class InsertPanel : public NotePanel {
 public:
  InsertPanel(NotePanelHost& host, const InsertKind& kind) : NotePanel(host), kind_(kind) {}

  void Load() override;
  int Rows(int width) const override;
  void Place(const Rect& box) override;
  void OnOpened() override;
  bool OnControl(int id, int code) override;
  bool Has(HWND control) const override;

 protected:
  // Shows what the file holds, which has been read and is no larger than a note can be.
  virtual void Preview(const std::wstring& path, const std::string& bytes) = 0;
  virtual void ClearPreview() = 0;
  // Puts in the file at that path, which has been read.
  virtual void Insert(const std::wstring& path, const std::string& bytes) = 0;

 private:
  void Show(std::wstring folder);
  void Fill(int id, const std::vector<std::wstring>& entries, std::size_t chosen);
  void OnFolder(std::size_t chosen);
  std::optional<std::wstring> ChosenPath() const;
  void PreviewChosen();
  void InsertChosen();
  bool HasRoomForPreview(int width) const;
  std::size_t Chosen(int id) const;

  const InsertKind kind_;
  std::wstring folder_;                // ends in "\"
  std::vector<std::wstring> folders_;  // as listed: this one, the one above, those within
  std::vector<std::wstring> files_;
};

class TextPanel : public InsertPanel {  // pfrTEXT
 public:
  explicit TextPanel(NotePanelHost& host);
  void Load() override;

 private:
  void Preview(const std::wstring& path, const std::string& bytes) override;
  void ClearPreview() override;
  void Insert(const std::wstring& path, const std::string& bytes) override;

  NoteEditor rtbPREV_;
};

// A picture, made smaller where there is no room for it as it is.
class PicturePreview : public PaintedWindow {  // imgPREVIEW
 public:
  using PaintedWindow::PaintedWindow;
  bool Load(HWND parent, int id);
  // `picture` with straight opacity, on a ground of that colour.
  void Show(const Image& picture, Colour ground);

 private:
  void Paint(Surface& surface) override;

  Image picture_;
  Image shown_;  // in the size it was painted last
  Colour ground_ = kWhite;
};

class PicturePanel : public InsertPanel {  // pfrPICTURE
 public:
  explicit PicturePanel(NotePanelHost& host);
  void Load() override;

 private:
  void Preview(const std::wstring& path, const std::string& bytes) override;
  void ClearPreview() override;
  void Insert(const std::wstring& path, const std::string& bytes) override;

  PicturePreview imgPREVIEW_;
};

}  // namespace varnel
