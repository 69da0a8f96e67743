// The one tick that goes on whether anything is open or not.
#pragma once

namespace varnel {

// A resident dialog that wants every tick of the alarm timer, 100 ms apart.
class AlarmTickListener {
 public:
  virtual ~AlarmTickListener() = default;
  virtual void OnAlarmTick() = 0;
};

}  // namespace varnel
