// A month for pictures of the calendar.
#pragma once

#include <string>

namespace varnel::shots {

// Writes this month, drawn on, and some holidays into the calendar's folder below the program's.
void PlantMonth(const std::wstring& program_folder);

}  // namespace varnel::shots
