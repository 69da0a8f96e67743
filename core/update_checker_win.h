// The check for a newer version, made at every start and when the user asks.
#pragma once

#include <functional>
#include <string>

#include "core/update_check.h"
#include "frame/web_addresses.h"
#include "win/net/http.h"

namespace varnel {

struct Ui;

class UpdateChecker {
 public:
  // Runs work later, after the message that is being handled.
  using Post = std::function<void(std::function<void()>)>;

  // Fetches by `web_data`; both it and `ui` outlive the checker.
  UpdateChecker(Ui& ui, HttpFetch& web_data, Post post);

  // The addresses asked and opened from now on.
  void SetPages(const WebAddresses& pages) { pages_ = pages; }

  // Starts the check and does not wait. `mode` 0 is the silent check: nothing is shown unless there
  // is a newer version; any other says so when there is none, or no answer. A check under way gives
  // way.
  void CheckForUpdate(int mode);

 private:
  void UpdateCheckDone(const HttpResult& page);

  Ui& ui_;
  HttpFetch& web_data_;
  Post post_;
  WebAddresses pages_;
  int mode_ = 0;
};

}  // namespace varnel
