"""Tests of the checks themselves: each breach is seen, and good code is left alone."""

import struct
import subprocess
import sys
import tempfile
import unittest
import zlib
from pathlib import Path

TOOLS = Path(__file__).resolve().parents[2] / "tools"
sys.path.insert(0, str(TOOLS))
sys.dont_write_bytecode = True

import check_commands  # noqa: E402  the path has to be set first
import check_layers  # noqa: E402
import check_sizes  # noqa: E402


class TreeTest(unittest.TestCase):
    """A test with a source tree of its own."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)

    def write(self, path, text):
        """Writes one source."""
        target = self.root / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(text, encoding="utf-8")


class LayersTest(TreeTest):
    ALLOWED = (
        ("base/text.cpp", '#include "base/text.h"'),
        ("base/text.cpp", "#include <string>"),
        ("win/windows/window.cpp", "#include <windows.h>"),
        ("win/windows/window.cpp", '#include "base/geometry.h"'),
        ("theme/chrome_win.cpp", '#include "win/graphics/surface.h"'),
        ("core/menu.cpp", '#include "theme/theme_record.h"'),
        ("core/frame_form.cpp", '#include "resources/control_ids.h"'),
        ("widgets/time/clock_form.cpp", '#include "frame/widget_form.h"'),
        ("dialogs/theme/theme_dialog.cpp", '#include "frame/services.h"'),
        ("widgets/time/clock.cpp", '#include "widgets/time/alarms.h"'),
        ("widgets/time/clock.cpp", '#include "frame/placement.h"'),
        ("widgets/weather/source.cpp", "#include <nlohmann/json.hpp>"),
        ("catalogue_win.cpp", '#include "widgets/notes/notes_form.h"'),
        ("main.cpp", '#include "catalogue_win.h"'),
        ("main.cpp", "#include <windows.h>"),
        ("tests/engine/a_test.cpp", '#include "tests/support/memory_files.h"'),
        ("tests/engine/a_test.cpp", '#include "base/text.h"'),
        ("tests/window/a_test.cpp", '#include "win/windows/window.h"'),
    )
    FORBIDDEN = (
        ("base/text.cpp", '#include "core/menu.h"'),
        ("base/text.cpp", '  #  include "win/windows/window.h"'),
        ("base/text.cpp", "#include <windows.h>"),
        ("base/text.h", "#include <sys/time.h>"),
        ("base/text_win.cpp", '#include "win/windows/window.h"'),
        ("win/windows/window.cpp", '#include "theme/theme_record.h"'),
        ("win/windows/window.cpp", '#include "resources/control_ids.h"'),
        ("theme/chrome_win.cpp", '#include "core/menu.h"'),
        ("theme/colours.cpp", '#include "win/graphics/surface.h"'),
        ("core/menu.cpp", "#include <shellapi.h>"),
        ("core/menu.cpp", "#include <fstream>"),
        ("core/menu.cpp", '#include "core/tray_form.h"'),
        ("core/menu.cpp", '#include "theme/chrome_win.h"'),
        ("core/menu.cpp", '#include "resources/control_ids.h"'),
        ("core/frame_form.cpp", '#include "widgets/time/clock.h"'),
        ("core/frame_form.cpp", '#include "catalogue_win.h"'),
        ("widgets/time/clock_form.cpp", '#include "widgets/notes/notes.h"'),
        ("widgets/time/clock_form.cpp", '#include "core/shared_menu.h"'),
        ("dialogs/theme/theme_dialog.cpp", '#include "core/application_win.h"'),
        ("dialogs/theme/theme_dialog.cpp", '#include "dialogs/about/about_dialog.h"'),
        ("frame/widget_form.cpp", '#include "core/core_settings.h"'),
        ("widgets/time/clock.cpp", '#include "win/windows/timer.h"'),
        ("catalogue.cpp", '#include "widgets/time/clock_form.h"'),
        ("main.cpp", '#include "widgets/time/clock_form.h"'),
        ("tests/engine/a_test.cpp", '#include "win/windows/window.h"'),
        ("tests/support/fake.h", '#include "core/tray_form.h"'),
        ("fuzz/a_fuzz.cpp", '#include "core/tray_form.h"'),
    )

    def test_allowed_directions_are_left_alone(self):
        for path, line in self.ALLOWED:
            self.write(path, line + "\n")
            self.assertEqual(check_layers.check(self.root), [], (path, line))

    def test_every_forbidden_direction_is_found(self):
        for path, line in self.FORBIDDEN:
            with self.subTest(path=path, line=line):
                self.write(path, "#pragma once\n" + line + "\n")
                breaches = check_layers.check(self.root)
                self.assertEqual(len(breaches), 1)
                self.assertTrue(breaches[0].startswith(f"{path}:2: "), breaches)
                (self.root / path).unlink()


def body(lines):
    """Returns the inside of a function, so many lines."""
    return "  int brace = '{';  // and another {\n" * lines


class FunctionsTest(unittest.TestCase):
    def functions(self, source):
        """Returns name and length of every function found."""
        found = check_sizes.functions_of(source)
        return [(function.name, function.length) for function in found]

    def test_free_functions_and_members(self):
        source = (
            "namespace varnel {\nint A(int x) {\n" + body(3) + "}\n"
            "class B {\n public:\n  int width() const { return 1; }\n  B() : a_{1}, b_{2} {\n"
            "    if (a_) {\n      ++b_;\n    }\n  }\n};\n"
            "auto C::D(std::function<void()> f = {})\n    -> int {\n  return 0;\n}\n"
            "C::C()\n    : f_([this] {\n        Go();\n      }) {\n}\n}\n"
        )
        expected = [("A", 5), ("width", 1), ("B", 5), ("C::D", 4), ("C::C", 5)]
        self.assertEqual(self.functions(source), expected)

    def test_tables_types_and_macros_are_no_functions(self):
        source = (
            "#define BLOCK() \\\n  void f() { \\\n  }\n"
            "constexpr int kTable[] = {\n1,\n2,\n};\n"
            "enum class Kind : int {\n  kOne,\n};\nstruct Point {\n  int x = 0;\n};\n"
            'const char* kText = "int f() {";\nconst char* kRaw = R"x(\nint g() {\n)x";\n'
            "constexpr int kBig = 1'000'000;\n"
        )
        self.assertEqual(self.functions(source), [])

    def test_lambdas_count_as_lines_of_their_function(self):
        source = "void A() {\n  auto f = [](int x) {\n    return x;\n  };\n  f(1);\n}\n"
        self.assertEqual(self.functions(source), [("A", 6)])

    def test_a_text_that_is_cut_off_ends(self):
        self.assertEqual(self.functions("void A() {\n  if (x) {\n"), [("A", 2)])


class CommandsTest(TreeTest):
    def test_names_that_share_a_number_are_found_across_sources(self):
        self.write("core/a.cpp", 'Command kA{L"mnuX260", L"&A"};')
        self.write("widgets/time/b_form.cpp", 'Command kB{L"mnuX261", L"&B"};')
        self.assertEqual(check_commands.check(self.root), [])
        self.write("widgets/notes/c_form.cpp", 'Command kC{L"mnuX400", L"&C"};')
        self.assertEqual(len(check_commands.check(self.root)), 1)

    def test_arrays_count_with_their_elements(self):
        self.assertIn("mnuA(7)", check_commands.names_in('ArrayItem(L"mnuA", 0, L"&A")'))


class SizesTest(TreeTest):
    def breaches(self, path, text):
        """Returns what is found in a tree of one source."""
        self.write(path, text)
        return check_sizes.check(self.root)

    def test_long_functions_are_found_everywhere(self):
        at_the_limit = "void A() {\n" + body(58) + "}\n"
        self.assertEqual(self.breaches("base/a.cpp", at_the_limit), [])
        over = "\nvoid A() {\n" + body(59) + "}\n"
        self.assertEqual(
            self.breaches("base/a.cpp", over), ["base/a.cpp:2: A has 61 lines, more than 60"]
        )
        self.assertEqual(len(self.breaches("tests/engine/a_test.cpp", over)), 2)

    def test_long_files_are_found(self):
        self.assertEqual(self.breaches("widgets/time/a.h", "\n" * 400), [])
        self.assertEqual(len(self.breaches("widgets/time/a.h", "\n" * 401)), 1)

    def test_wide_folders_are_found(self):
        for number in range(45):
            self.write(f"win/files/a{number}.cpp", "\n")
            self.write(f"win/files/a{number}.h", "\n")
        self.assertEqual(self.breaches("win/b.cpp", "\n"), [])
        found = self.breaches("win/files/b.cpp", "\n")
        self.assertEqual(found, ["win/files: 46 modules, more than 45"])

    def test_macros_and_streams_are_for_tests_only(self):
        for line in ("#define TWICE(x) (2 * (x))", "#include <sstream>", "#include <iostream>"):
            self.assertEqual(len(self.breaches("core/a.cpp", line + "\n")), 1, line)
            self.assertEqual(self.breaches("core/a.cpp", "// " + line + "\n"), [], line)
            self.assertEqual(self.breaches("tests/engine/a_test.cpp", line + "\n"), [], line)
        self.assertEqual(self.breaches("core/a.cpp", "#define kSize (1 + 2)\n"), [])

    def test_the_share_of_tests(self):
        for path in ("base/a.cpp", "CMakeLists.txt", "tools/a.py", "tests/a_test.cpp", "fuzz/a.sh"):
            self.write(path, "\n" * 10)
        self.write("fuzz/corpus/a/seed", "\n" * 10)
        self.assertEqual(check_sizes.line_counts(self.root), (20, 50))
        self.assertEqual(check_sizes.share_breaches(20, 60), [])
        self.assertEqual(len(check_sizes.share_breaches(20, 59)), 1)


class SheetTest(TreeTest):
    """The pictures' sheets, on a machine whose user has set nothing up."""

    SIDE = 40

    def write_picture(self, name):
        """Writes a black PNG."""

        def chunk(kind, data):
            body = kind + data
            return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

        header = struct.pack(">IIBBBBB", self.SIDE, self.SIDE, 8, 0, 0, 0, 0)
        rows = zlib.compress(bytes((self.SIDE + 1) * self.SIDE))
        picture = chunk(b"IHDR", header) + chunk(b"IDAT", rows) + chunk(b"IEND", b"")
        path = self.root / name
        path.write_bytes(b"\x89PNG\r\n\x1a\n" + picture)
        return path

    def test_pictures_stand_side_by_side_above_their_names(self):
        sheet = self.root / "sheet.png"
        pictures = [self.write_picture("one.png"), self.write_picture("two.png")]
        empty = {"PATH": "/usr/bin:/bin", "HOME": str(self.root), "FONTCONFIG_FILE": "/dev/null"}
        subprocess.run([TOOLS / "sheet.sh", sheet, "2", *pictures], env=empty, check=True)
        width, height = struct.unpack(">II", sheet.read_bytes()[16:24])
        self.assertEqual(width, 2 * (self.SIDE + 12))
        self.assertGreater(height, self.SIDE + 12 + 8)


if __name__ == "__main__":
    unittest.main()
