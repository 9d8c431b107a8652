"""The elevator sets that data/elevator/make-elevator-sets writes."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "data/elevator/make-elevator-sets"
RECORD = 277


def run(*arguments):
    return subprocess.run(
        [sys.executable, SCRIPT, *arguments], capture_output=True, text=True, check=False
    )


class ElevatorSets(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = Path(holder.name)

    def test_are_records_with_names_and_curves_of_their_own_that_keep_to_16_bits(self):
        outcome = run(self.folder / "Elevator.dat")
        self.assertEqual(outcome.returncode, 0, outcome.stderr)
        self.assertEqual([path.name for path in self.folder.iterdir()], ["Elevator.dat"])
        content = (self.folder / "Elevator.dat").read_bytes()
        self.assertEqual(len(content) % RECORD, 0)
        records = [content[at : at + RECORD] for at in range(0, len(content), RECORD)]
        self.assertGreaterEqual(len(records), 12)
        names = [record[:20].decode("ascii").rstrip() for record in records]
        self.assertEqual(len(set(names)), len(names))
        self.assertNotIn("", names)
        curves = {}
        for name, record in zip(names, records):
            rows = record[20:][::-1]
            # A row of 128 would send heights to 65536 and beyond.
            self.assertTrue(all(129 <= row <= 255 for row in rows[:129]), name)
            self.assertEqual(list(rows[129:]), list(range(127, -1, -1)), name)
            self.assertGreater(len(set(rows[:129])), 30, name)
            curves[name] = rows[:129]
        for name, rows in curves.items():
            others = [other for other in curves if other != name]
            apart = [sum(abs(a - b) for a, b in zip(rows, curves[other])) for other in others]
            self.assertGreater(min(apart), 129, f"{name} is like another on average")

    def test_stand_where_the_recipe_says(self):
        run(self.folder / "Elevator.dat")
        content = (self.folder / "Elevator.dat").read_bytes()
        at = content.index(b"Inverted")
        curve = content[at + 20 : at + RECORD]
        # Byte p is the row of column 256 - p; rows count from the top.
        self.assertEqual((curve[256], curve[256 - 32], curve[128]), (129, 160, 255))

    def test_are_not_written_in_part(self):
        outcome = run(self.folder / "missing" / "Elevator.dat")
        self.assertEqual(outcome.returncode, 1)
        self.assertIn("cannot write", outcome.stderr)
        self.assertNotEqual(run().returncode, 0)


if __name__ == "__main__":
    unittest.main()
