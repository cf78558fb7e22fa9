"""What lies in the packages, before anybody installs them.

    AMBERTASK_PACKAGES=build/packages /usr/bin/python3 tests/packaging/test_package_contents.py
"""
import glob
import os
import subprocess
import tempfile
import unittest

from installation import PROGRAM, Installation


class PackageContentsTest(unittest.TestCase):
    def setUp(self):
        self.folder = self.enterContext(tempfile.TemporaryDirectory())

    @staticmethod
    def package(pattern):
        (found,) = glob.glob(os.path.join(os.environ["AMBERTASK_PACKAGES"], pattern))
        return found

    def path(self, *parts):
        return os.path.join(self.folder, *parts)

    def test_the_package_of_the_distribution(self):
        tree = self.path("tree")
        subprocess.run(["dpkg-deb", "--raw-extract", self.package("*.deb"), tree], check=True)
        self.assertEqual(Installation(os.path.join(tree, "usr")).faults(), [])
        for path in ("share/doc/ambertask/changelog.Debian.gz", "share/lintian/overrides/ambertask"):
            self.assertTrue(os.path.exists(os.path.join(tree, "usr", path)), path)

    def test_the_archive(self):
        subprocess.run(["tar", "-C", self.folder, "-xzf", self.package("*.tar.gz")], check=True)
        self.assertEqual(os.listdir(self.folder), ["Ambertask"])
        folder = self.path("Ambertask")
        self.assertEqual(Installation(folder).faults(), [])
        self.assertLessEqual({"Ambertask", "README.txt", "LICENSE"}, set(os.listdir(folder)))
        self.assertEqual(os.readlink(os.path.join(folder, "Ambertask")), PROGRAM)
        self.assertFalse(os.path.lexists(os.path.join(folder, "data.dat")), "it would overwrite a user's data")


if __name__ == "__main__":
    unittest.main(verbosity=2)
