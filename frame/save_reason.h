// Why a form is told to save what it keeps.
#pragma once

namespace varnel {

enum class SaveReason {
  kClose,       // its window goes
  kSessionEnd,  // the system ends the process any moment, without asking further
};

}  // namespace varnel
