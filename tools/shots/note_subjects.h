// The notes, with their panels, in pictures.
#pragma once

#include <vector>

#include "tools/shots/subjects.h"

namespace varnel::shots {

// Puts some notes into the list, and a text with formats on the page.
void WriteNotes(const rig::Program& program, HWND form);

std::vector<Subject> NoteSubjects();

}  // namespace varnel::shots
