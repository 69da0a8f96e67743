// The part of the notes' form that narrows the list to what is searched for.
#include <algorithm>

#include "widgets/notes/notes_form.h"

namespace varnel {
namespace {

constexpr ULONGLONG kMostMsAtOnce = 20;

}  // namespace

std::size_t NotesForm::RowCount() const {
  return search_.active() ? search_.found().size() : desk_.notes().count();
}

std::optional<std::size_t> NotesForm::NoteOfRow(std::size_t row) const {
  if (row >= RowCount()) return std::nullopt;
  const std::size_t note = search_.active() ? search_.found()[row] : row;
  return note < desk_.notes().count() ? std::optional(note) : std::nullopt;
}

std::optional<std::size_t> NotesForm::RowOfNote(std::size_t note) const {
  if (!search_.active()) return note;
  const auto& found = search_.found();
  const auto row = std::ranges::lower_bound(found, note);
  if (row == found.end() || *row != note) return std::nullopt;
  return static_cast<std::size_t>(row - found.begin());
}

std::optional<std::size_t> NotesForm::SelectedNote() const {
  const auto rows = lvwFILES_.Selected();
  return rows.empty() ? std::nullopt : NoteOfRow(rows.front());
}

std::wstring NotesForm::RowText(std::size_t row) const {
  const auto note = NoteOfRow(row);
  return note ? desk_.notes().Title(*note) : std::wstring();
}

std::wstring NotesForm::EmptyText() const {
  if (!search_.active()) return L"No notes yet";
  return search_.done(desk_.notes()) ? L"Nothing found" : L"Searching...";
}

void NotesForm::StartSearch() {
  search_.Start(search_field_.text(), desk_.notes());
  search_timer_.Stop();
  if (!search_.done(desk_.notes())) {
    GoOnSearching();
    if (!search_.done(desk_.notes())) search_timer_.Start();
  } else {
    ShowList();
  }
}

// A little at a time, so that typing goes on.
void NotesForm::GoOnSearching() {
  const std::size_t former = search_.found().size();
  const ULONGLONG end = ::GetTickCount64() + kMostMsAtOnce;
  while (search_.Step(desk_.notes()) && ::GetTickCount64() < end) {
  }
  const bool done = search_.done(desk_.notes());
  if (done) search_timer_.Stop();
  if (done || search_.found().size() != former || former == 0) ShowList();
}

}  // namespace varnel
