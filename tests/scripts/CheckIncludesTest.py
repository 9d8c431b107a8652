"""scripts/check-includes on small trees with and without a planted fault."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "scripts/check-includes"

TABLE = """
| folder | holds | may include | Qt |
|---|---|---|---|
| `base/` | the ground | nothing else | Core |
| `shell/` | the session | what stands above | |
| `ui/` | the windows | what stands above | Core, Widgets |
| `batch/` | the program | what stands above, not `ui/` | |
"""


class CheckIncludes(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.root = Path(holder.name)
        self.write("docs/architecture.md", TABLE)
        self.write("base/Numbers.h", "#include <QString>\n#include <vector>\n")
        self.write("shell/Session.cpp", '#include "shell/Session.h"\n#include "base/Numbers.h"\n')
        self.write("ui/frmTer.cpp", '#include <QPushButton>\n#include "shell/Session.h"\n')

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(exist_ok=True)
        path.write_text(text)

    def expect(self, *errors):
        run = subprocess.run(
            [sys.executable, SCRIPT, self.root], capture_output=True, text=True, check=False
        )
        self.assertEqual(run.stderr.splitlines(), list(errors))
        self.assertEqual(run.returncode, 1 if errors else 0)

    def test_passes_a_tree_in_order(self):
        self.expect()

    def test_finds_an_include_that_runs_upwards(self):
        self.write("base/Files.cpp", '\n#include "shell/Session.h"\n')
        self.expect('base/Files.cpp:2: "shell/Session.h": base/ must not know shell/')

    def test_finds_fronts_that_know_each_other(self):
        self.write("batch/Main.cpp", '#include "ui/frmTer.h"\n')
        self.write("ui/Main.cpp", '#include "batch/Keys.h"\n')
        self.expect(
            'batch/Main.cpp:1: "ui/frmTer.h": batch/ must not know ui/',
            'ui/Main.cpp:1: "batch/Keys.h": ui/ must not know batch/',
        )

    def test_finds_widget_headers_outside_the_windows(self):
        self.write("shell/Session.h", "#include <QMessageBox>\n  # include <QtWidgets/QLabel>\n")
        self.expect(
            "shell/Session.h:1: includes <QMessageBox> of Qt Widgets, which shell/ does not use",
            "shell/Session.h:2: includes <QtWidgets/QLabel> of Qt Widgets, which shell/ does not use",
        )

    def test_finds_libraries_that_must_not_be_linked(self):
        self.write("base/CMakeLists.txt", "qb_library(base LINKS Qt6::Core)\n")
        self.write("batch/CMakeLists.txt", "link(qb_shell qb_ui # qb_ui\n  Qt6::Widgets)\n")
        self.expect(
            "batch/CMakeLists.txt:1: qb_ui: batch/ must not link ui/",
            "batch/CMakeLists.txt:2: links Qt6::Widgets, which batch/ does not use",
        )

    def test_finds_what_the_table_does_not_tell(self):
        self.write("extra/Thing.cpp", "\n")
        self.write("ui/About.cpp", '#include "About.h"\n')
        self.expect(
            "extra/ has no row in the table of docs/architecture.md",
            'ui/About.cpp:1: "About.h" does not begin with a folder of the table',
        )


if __name__ == "__main__":
    unittest.main()
