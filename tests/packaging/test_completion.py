"""What bash completes of the command line."""
import os
import subprocess
import tempfile
import unittest

SCRIPT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "packaging", "linux", "completion.bash")
# The words as bash splits them, the last of which is completed.
COMPLETE = 'source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _Ambertask; printf "%s\\n" "${COMPREPLY[@]}"'


class CompletionTest(unittest.TestCase):
    def setUp(self):
        self.folder = self.enterContext(tempfile.TemporaryDirectory(prefix="completion "))
        for name in ("tasks.ics", "more tasks.CSV", "letter.txt"):
            with open(os.path.join(self.folder, name), "w", encoding="ascii"):
                pass
        os.mkdir(os.path.join(self.folder, "folder"))

    def completed(self, *words):
        done = subprocess.run(["bash", "-c", COMPLETE, "bash", SCRIPT, "Ambertask", *words], cwd=self.folder, check=True,
                              capture_output=True, text=True)
        self.assertEqual(done.stderr, "")
        return sorted(done.stdout.split("\n"))[1:] if done.stdout != "\n" else []

    def test_first_comes_what_is_to_be_done(self):
        self.assertEqual(self.completed(""), ["--export", "--help", "--import", "--list", "--version"])
        self.assertEqual(self.completed("--e"), ["--export"])

    def test_then_what_goes_with_it(self):
        self.assertEqual(self.completed("--list", ""), ["--json"])
        self.assertEqual(self.completed("--export", "a.ics", ""), ["--format"])
        self.assertEqual(self.completed("--import", "a.ics", "--"), ["--format", "--with-programs", "--yes"])
        self.assertEqual(self.completed("--import", "=", "a.ics", "--y"), ["--yes"])
        self.assertEqual(self.completed("--help", ""), [])

    def test_files_of_the_formats_and_folders(self):
        for before in (["--export", ""], ["--import", ""], ["--import", "="], ["--import", "=", ""]):
            self.assertEqual(self.completed(*before), ["folder", "more tasks.CSV", "tasks.ics"])
        self.assertEqual(self.completed("--export", "t"), ["tasks.ics"])

    def test_the_formats(self):
        self.assertEqual(self.completed("--export", "-", "--format", ""), ["csv", "ics"])
        self.assertEqual(self.completed("--export", "-", "--format", "=", "c"), ["csv"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
