// Boards for pictures of the whiteboard.
#pragma once

#include <string>

namespace varnel::shots {

// Writes some boards into the folder of boards below the program's folder.
void PlantBoards(const std::wstring& program_folder);

}  // namespace varnel::shots
