// The print preview's pictures.
#pragma once

#include "tools/shots/subjects.h"

namespace varnel::shots {

std::vector<Subject> PreviewSubjects();

}  // namespace varnel::shots
