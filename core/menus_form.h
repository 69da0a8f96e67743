// The hidden form that commands, system broadcasts and the program's own posted work arrive at.
#pragma once

#include <functional>
#include <vector>

#include "frame/program.h"
#include "win/net/http.h"
#include "win/windows/timer.h"
#include "win/windows/window.h"

namespace varnel {

class MenusForm : public Window {  // frmSTRmn
 public:
  MenusForm(Ui& ui, Program& program, std::function<void()> on_session_end);

  // `title` tells this program's form from that of another settings root.
  void Load(const std::wstring& title);
  void Unload();

  // Runs `work` later on this thread, after the message that is being handled.
  void Post(std::function<void()> work);

  // Called on every tick of tmrALARM, 100 ms apart, for as long as the form is loaded.
  void OnAlarmTick(std::function<void()> handler) { alarm_tick_ = std::move(handler); }

  // Called with the widget's index, or -1 for the manager, when a second start asks for it.
  void OnShow(std::function<void(int widget)> handler) { show_ = std::move(handler); }

  HttpFetch& webDATA() { return web_data_; }

  // The message by which a second start asks the first to show a widget, its index + 1 as the
  // first parameter, or with 0 the manager.
  static UINT ShowMessage();

 private:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void RunPosted();

  Program& program_;
  std::function<void()> on_session_end_;
  std::vector<std::function<void()>> posted_;
  std::function<void()> alarm_tick_;
  std::function<void(int widget)> show_;
  Timer tmrALARM_;
  HttpFetch web_data_;
};

}  // namespace varnel
