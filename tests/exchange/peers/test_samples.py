"""What other programs have written, imported: files that run.py has made, with what each program had then.

    AMBERTASK_FOLDER=build/release/Ambertask /usr/bin/python3 tests/exchange/peers/test_samples.py
"""
import glob
import json
import os
import unittest

from comparison import WRITES, Ambertask, compare, documented

SAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "samples")


class SamplesTest(unittest.TestCase):
    maxDiff = None

    def test_what_the_document_calls_kept_is_kept(self):
        promised = documented()
        samples = sorted(glob.glob(os.path.join(SAMPLES, "*.json")))
        self.assertEqual({os.path.basename(name)[:-len(".json")] for name in samples},
                         {program for program, direction in promised if direction == WRITES})
        for name in samples:
            program = os.path.basename(name)[:-len(".json")]
            with self.subTest(program), Ambertask(os.path.join(os.environ["AMBERTASK_FOLDER"], "Ambertask")) as ours:
                with open(name, encoding="utf-8") as text:
                    given = json.load(text)
                file = next(path for path in glob.glob(os.path.join(SAMPLES, program + ".*")) if path != name)
                ours.call("--import", file, "--yes")
                cells, losses = compare(given, ours.rows(), given)
                self.assertEqual(cells, promised[program, WRITES], losses)


if __name__ == "__main__":
    unittest.main(verbosity=2)
