// Where a started program keeps everything: settings and folders of its own, gone afterwards.
#pragma once

#include <string>

#include "tests/rig/registry.h"

namespace varnel::rig {

// One program run in it at a time, or several, one after the other: what a restart finds is what
// the run before left.
class Root {
 public:
  // Empty, and known to nobody else, but for the settings that keep a program from asking anything
  // beyond this machine; a scene that wants an answer sets an address of its own.
  Root();
  Root(const Root&) = delete;
  Root& operator=(const Root&) = delete;
  // Removes settings, folder, and what was registered under the root's name to run at logon; the
  // programs that used them must have ended.
  ~Root();

  // The settings, as sections below the root key.
  const Registry& settings() const { return settings_; }
  const std::wstring& title() const { return title_; }  // the name of its settings' key
  // The folder of themes and documents, without a final "\"; its path has blanks and a letter
  // beyond ASCII in it.
  const std::wstring& folder() const { return folder_; }
  // The words of a command line that send a program here.
  std::wstring Arguments() const;

 private:
  std::wstring title_;
  std::wstring folder_;
  Registry settings_;
};

}  // namespace varnel::rig
