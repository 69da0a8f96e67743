// A test that starts the built program and works it from outside, and all that it needs for that.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tests/rig/controls.h"
#include "tests/rig/dialogs.h"
#include "tests/rig/files.h"
#include "tests/rig/input.h"
#include "tests/rig/menus.h"
#include "tests/rig/picture.h"
#include "tests/rig/program.h"

// What the expression becomes within kPatience: true, or a value.
#define EXPECT_SOON(condition) EXPECT_TRUE(WaitUntil([&] { return condition; }))
#define ASSERT_SOON(condition) ASSERT_TRUE(WaitUntil([&] { return condition; }))
#define EXPECT_SOON_EQ(expression, value) \
  EXPECT_EQ(WaitFor([&] { return expression; }, value), value)

namespace varnel::rig {

// Each scene begins with an empty root, a program that is not started yet, and the pointer at rest
// in the corner of the screen. At its end the program, where it still runs, is left by its menu and
// has to end with exit code 0; one that ended before has to have ended so, or by Kill. When the
// scene has failed, "desktop.bmp" and the program's "debug.log" are put into a folder of the
// scene's name below the one that the environment variable VARNEL_ARTIFACTS names.
class Scene : public ::testing::Test {
 public:
  // The folder for what this scene leaves when it fails, and whatever else it wants to show; empty
  // when nobody asked for it.
  std::wstring artifacts() const;

 protected:
  void SetUp() override;
  void TearDown() override;

  Root& root() { return root_; }
  Program& program() { return program_; }

 private:
  void EndProgram();

  Root root_;
  Program program_{root_};
};

}  // namespace varnel::rig
