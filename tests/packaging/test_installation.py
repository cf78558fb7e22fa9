"""What the build installs for a packager: all of it is there, and what is not there would be noticed."""
import glob
import gzip
import os
import shutil
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "desktop"))

from installation import (CHANGELOG, COMPLETION, DRAWING, ENTRY, EXPECTED, METAINFO, MAN_PAGE, PROGRAM, SHIPPED, Installation,  # noqa: E402
                          icon)
from installed import install  # noqa: E402


class StagedInstallationTest(unittest.TestCase):
    def setUp(self):
        staging = self.enterContext(tempfile.TemporaryDirectory(prefix="staging ü "))
        install("/usr", staging)
        self.prefix = os.path.join(staging, "usr")
        self.installation = Installation(self.prefix)

    def path(self, path):
        return os.path.join(self.prefix, path)

    def without(self, path):
        """The faults while `path` is not there."""
        (found,) = glob.glob(os.path.join(glob.escape(self.prefix), path))
        aside = os.path.join(os.path.dirname(self.prefix), "aside")
        shutil.move(found, aside)
        faults = self.installation.faults()
        shutil.move(aside, found)
        return faults

    def changed(self, path, change):
        """The faults while the content of `path` is changed."""
        with open(self.path(path), "rb") as file:
            content = file.read()
        changed = change(content)
        self.assertNotEqual(changed, content, path)
        with open(self.path(path), "wb") as file:
            file.write(changed)
        faults = self.installation.faults()
        with open(self.path(path), "wb") as file:
            file.write(content)
        return faults

    def test_it_holds_all_that_an_installation_has_to_hold(self):
        self.assertEqual(self.installation.faults(), [])

    def test_whatever_is_not_installed_is_missed(self):
        for path in EXPECTED:
            self.assertEqual(self.without(path), [f"{path} is missing"])
        self.assertEqual(self.installation.faults(), [])

    def test_what_leads_nowhere_or_is_something_else_is_found(self):
        def replaced(old, new):
            return lambda content: content.replace(old, new)

        for path, change, fault in [
                (icon(48), lambda _: self.read(icon(32)), f"{icon(48)} is no picture of 48 pixels"),
                (DRAWING, replaced(b"svg", b"gvs"), f"{DRAWING} is no drawing"),
                (ENTRY, replaced(b"\nExec=Ambertask", b"\nExec=Umbertask"), "Exec of the entry starts nothing"),
                (ENTRY, replaced(b"Icon=ambertask", b"Icon=umbertask"), "there is no icon umbertask"),
                (ENTRY, replaced(b"Comment[de]", b"Comment[it]"), "Comment of the entry has no de"),
                (ENTRY, replaced(b"Type=Application\n", b""), "desktop-file-validate: "),
                (METAINFO, replaced(b"<lang>de</lang>", b""), "the metainfo has other languages"),
                (METAINFO, replaced(b'<li xml:lang="fr">', b"<li>"), "description/ul/li of the metainfo is not in ar"),
                (METAINFO, replaced(b'<summary xml:lang="de">', b"<summary>"), "summary of the metainfo is not in ar"),
                (ENTRY, replaced(b"StartupNotify=false", b"StartupNotify=true"), "the desktop would wait"),
                (METAINFO, replaced(b"<binary>A", b"<binary>U"), "the metainfo names another program"),
                (METAINFO, replaced(b".desktop</launchable>", b"</launchable>"), "the metainfo launches another entry"),
                (METAINFO, replaced(b"<metadata_license>MIT</metadata_license>", b""), "appstreamcli: "),
                (CHANGELOG, lambda content: gzip.compress(gzip.decompress(content).replace(b"## 1", b"## unreleased 1")),
                 "the changelog does not begin with"),
                (MAN_PAGE, lambda content: gzip.compress(gzip.decompress(content)[1:]), f"{MAN_PAGE} is no man page"),
                (MAN_PAGE, lambda content: gzip.compress(gzip.decompress(content).replace(b"\\-\\-import", b"\\-\\-export")),
                 f"{MAN_PAGE} does not know --import"),
                (COMPLETION, replaced(b"--json", b"--jason"), f"{COMPLETION} does not know --json"),
                (SHIPPED + "Ambertask1.1.chm", lambda content: content[1:], "the help is no help file"),
                (PROGRAM, replaced("ambertask_de.qm".encode("utf-16-be"), "ambertask_it.qm".encode("utf-16-be")),
                 "the program does not speak de")]:
            faults = self.changed(path, change)
            self.assertTrue(faults and faults[0].startswith(fault), f"{fault}: {faults}")

    def read(self, path):
        with open(self.path(path), "rb") as file:
            return file.read()


if __name__ == "__main__":
    unittest.main(verbosity=2)
