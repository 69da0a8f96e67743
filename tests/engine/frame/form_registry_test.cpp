#include "frame/form_registry.h"

#include <gtest/gtest.h>

namespace varnel {
namespace {

class StillForm : public LiveForm {
 public:
  const FormEntry& entry() const override { return kNoForm; }
  ThemeRecord& theme() override { return theme_; }
  void Form_Resize() override {}
  void WidgetRefresh() override {}
  void ApplyChrome() override {}
  void SetSize(int, int) override {}
  Rect Bounds() const override { return {}; }
  bool on_top() const override { return false; }
  void SetOnTop(bool) override {}
  std::wstring Summary() const override { return {}; }

 private:
  ThemeRecord theme_;
};

TEST(FormRegistry, AFormThatGoesLateLeavesItsSuccessorAlone) {
  FormRegistry forms;
  StillForm former, present;
  forms.Add(L"frmCLKwg", former);
  forms.Remove(L"frmCLKwg", former);
  EXPECT_EQ(forms.Find(L"frmCLKwg"), nullptr);
  forms.Add(L"frmCLKwg", present);
  forms.Remove(L"frmCLKwg", former);
  EXPECT_EQ(forms.Find(L"frmCLKwg"), &present);
  forms.Remove(L"frmCLKwg", present);
  EXPECT_TRUE(forms.all().empty());
}

}  // namespace
}  // namespace varnel
