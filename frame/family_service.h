// What a family of widgets keeps for as long as the program lives, whether a window is open or not.
#pragma once

namespace varnel {

// Made at start-up, before any form. The family's forms and dialogs are given it by the catalogue:
// they show and change it, they never are it.
class FamilyService {
 public:
  virtual ~FamilyService() = default;

  // Every tick of the alarm timer, 100 ms apart.
  virtual void OnAlarmTick() {}
};

}  // namespace varnel
