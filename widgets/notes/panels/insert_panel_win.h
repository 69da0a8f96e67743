// The panels from which a document or a picture is put into the note: drive, folder, file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/settings.h"
#include "widgets/notes/panels/note_panel_win.h"

namespace varnel {

// What differs between the two.
struct InsertKind {
  const wchar_t* name;
  int drives;
  int folders;
  int files;
  int insert;
  const Setting& folder;
  bool (*shown)(std::wstring_view name);  // whether a file of that name is listed
};

class InsertPanel : public NotePanel {
 public:
  InsertPanel(NotePanelHost& host, const InsertKind& kind) : NotePanel(host), kind_(kind) {}

  void Load() override;
  const wchar_t* name() const override { return kind_.name; }
  void OnOpened() override;
  bool OnControl(int id, int code) override;

 protected:
  // Puts in the file at that path, which has been read.
  virtual void Insert(const std::wstring& path, const std::string& bytes) = 0;

 private:
  void Show(std::wstring folder);
  void Fill(int id, const std::vector<std::wstring>& entries, std::size_t chosen);
  void OnFolder(std::size_t chosen);
  void InsertChosen();
  std::size_t Chosen(int id) const;

  const InsertKind kind_;
  std::wstring folder_;                // ends in "\"
  std::vector<std::wstring> folders_;  // as listed: this one, the one above, those within
  std::vector<std::wstring> files_;
};

class TextPanel : public InsertPanel {  // pfrTEXT
 public:
  explicit TextPanel(NotePanelHost& host);

 private:
  void Insert(const std::wstring& path, const std::string& bytes) override;
};

class PicturePanel : public InsertPanel {  // pfrPICTURE
 public:
  explicit PicturePanel(NotePanelHost& host);

 private:
  void Insert(const std::wstring& path, const std::string& bytes) override;
};

}  // namespace varnel
