"""What lies in the packages, before anybody installs them.

    AMBERTASK_PACKAGES=build/packages /usr/bin/python3 tests/packaging/test_package_contents.py
"""
import glob
import os
import subprocess
import tempfile
import unittest

import hardening
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
        self.assert_hardened(os.path.join(tree, "usr"))
        for path in ("share/doc/ambertask/changelog.Debian.gz", "share/lintian/overrides/ambertask"):
            self.assertTrue(os.path.exists(os.path.join(tree, "usr", path)), path)

    def test_the_archive(self):
        subprocess.run(["tar", "-C", self.folder, "-xzf", self.package("*.tar.gz")], check=True)
        self.assertEqual(os.listdir(self.folder), ["Ambertask"])
        folder = self.path("Ambertask")
        self.assertEqual(Installation(folder).faults(), [])
        self.assert_hardened(folder)
        self.assertLessEqual({"Ambertask", "README.txt", "LICENSE"}, set(os.listdir(folder)))
        self.assertEqual(os.readlink(os.path.join(folder, "Ambertask")), PROGRAM)
        self.assertFalse(os.path.lexists(os.path.join(folder, "data.dat")), "it would overwrite a user's data")

    def assert_hardened(self, prefix):
        binaries = [os.path.join(prefix, PROGRAM), *glob.glob(os.path.join(glob.escape(prefix), "lib/ambertask/*/*"))]
        self.assertEqual(len(binaries), 6, binaries)
        for binary in binaries:
            # The player and the reader of pictures are too small to have anything of it.
            asserts = os.path.basename(binary) not in ("ambertask_sound", "ambertask_pictures")
            self.assertEqual(list(hardening.faults(binary, asserts)), [], binary)

    def test_a_binary_that_is_not_hardened_is_found(self):
        source = self.path("plain.cpp")
        with open(source, "w", encoding="ascii") as text:
            text.write("int main() { return 0; }\n")
        binary = self.path("plain")
        subprocess.run(["c++", "-no-pie", "-fcf-protection=none", "-fno-stack-protector", "-Wl,-z,norelro,-z,lazy,-z,execstack",
                        source, "-o", binary], check=True, capture_output=True)
        self.assertEqual(list(hardening.faults(binary)), [
            "it lies at a fixed address", "its relocations can be written", "its stack can be run", "its stack is not protected",
            "its containers are not checked", "its calls of the C library are not checked",
            "its flow of control is not protected"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
