// A program that notes what its forms ask of it, for window tests.
#pragma once

#include <string>
#include <vector>

#include "frame/form_registry.h"
#include "frame/program.h"

namespace varnel::test {

class FakeProgram : public Program {
 public:
  bool closing() const override { return false; }
  void ExitProgram() override { calls.push_back(L"ExitProgram"); }
  void ShowManager() override { calls.push_back(L"ShowManager"); }
  void HideToTray() override { calls.push_back(L"HideToTray"); }
  void RegisterRunAtLogon() override { calls.push_back(L"RegisterRunAtLogon"); }
  void CheckForUpdate(int) override { calls.push_back(L"CheckForUpdate"); }
  void WidgetCheck(int) override { calls.push_back(L"WidgetCheck"); }
  void CloseFromOutside(int) override { calls.push_back(L"CloseFromOutside"); }
  void SightChanged(int) override {}
  void OpenDialog(std::wstring_view form) override {
    calls.push_back(L"open " + std::wstring(form));
  }
  bool HasDialog(std::wstring_view) const override { return true; }
  void SetCurrentWidget(std::wstring_view form) override { current = form; }
  LiveForm& CurrentForm() override { return *forms->Find(current); }
  std::vector<MenuItem> SharedMenu() const override { return {}; }
  std::vector<MenuItem> TrayMenu() const override { return {}; }
  void RunCommand(int) override {}

  std::vector<std::wstring> calls;
  std::wstring current;
  FormRegistry* forms = nullptr;  // to be set before anything asks for the current form
};

}  // namespace varnel::test
