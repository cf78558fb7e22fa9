"""What an installation has to hold, and whether the one below a prefix does."""
import configparser
import glob
import gzip
import os
import re
import struct
import subprocess
import xml.etree.ElementTree as ElementTree

PROGRAM = "bin/Ambertask"
SHIPPED = "share/ambertask/"
ENTRY = "share/applications/example.ambertask.ambertask.desktop"
METAINFO = "share/metainfo/example.ambertask.ambertask.metainfo.xml"
MAN_PAGE = "share/man/man1/Ambertask.1.gz"
COMPLETION = "share/bash-completion/completions/Ambertask"
CHANGELOG = "share/doc/ambertask/changelog.gz"
DRAWING = "share/icons/hicolor/scalable/apps/ambertask.svg"
LANG = "{http://www.w3.org/XML/1998/namespace}lang"
LANGUAGES = ["ar", "de", "es", "fr", "zh_CN"]
ICON_SIZES = [16, 22, 24, 32, 48, 64, 128, 256]
SKINS = ["Aqua", "Classic", "Contrast", "Lemon", "Midnight"]
SOUNDS = ["bell", "chime", "gentle", "marimba"]


def icon(size):
    return f"share/icons/hicolor/{size}x{size}/apps/ambertask.png"


# Patterns: the modules lie in a folder of their version.
EXPECTED = [PROGRAM, ENTRY, METAINFO, MAN_PAGE, COMPLETION, CHANGELOG, "share/doc/ambertask/copyright", DRAWING,
            *(icon(size) for size in ICON_SIZES),
            *(f"lib/ambertask/*/ambertask_{module}.so" for module in ("help", "report", "exchange")), "lib/ambertask/*/ambertask_sound", "lib/ambertask/*/ambertask_pictures",
            SHIPPED + "data.dat", SHIPPED + "Ambertask1.1.chm",
            *(f"{SHIPPED}Skins/{name}.skf" for name in SKINS),
            *(f"{SHIPPED}sounds/{name}.wav" for name in SOUNDS)]


class Installation:
    """What lies below `prefix`."""

    def __init__(self, prefix):
        self._prefix = prefix

    def faults(self):
        """Each a sentence; an empty list for a whole installation."""
        missing = [f"{path} is missing" for path in EXPECTED if not self._found(path)]
        if missing:
            return missing
        return [*self._icon_faults(), *self._entry_faults(), *self._metainfo_faults(), *self._text_faults(),
                *self._option_faults(), *self._language_faults(), *self._validator_faults()]

    def _path(self, path):
        return os.path.join(self._prefix, path)

    def _found(self, pattern):
        return glob.glob(os.path.join(glob.escape(self._prefix), pattern))

    def _read(self, path):
        with open(self._path(path), "rb") as file:
            return file.read()

    def _icon_faults(self):
        for size in ICON_SIZES:
            content = self._read(icon(size))
            if content[:8] != b"\x89PNG\r\n\x1a\n" or struct.unpack(">II", content[16:24]) != (size, size):
                yield f"{icon(size)} is no picture of {size} pixels"
        if not ElementTree.fromstring(self._read(DRAWING)).tag.endswith("}svg"):
            yield f"{DRAWING} is no drawing"

    def _entry_faults(self):
        parser = configparser.ConfigParser(interpolation=None)
        parser.optionxform = str
        parser.read_string(self._read(ENTRY).decode())
        entry = parser["Desktop Entry"]
        for key in ("Exec", "TryExec"):
            if not os.access(self._path("bin/" + entry[key]), os.X_OK):
                yield f"{key} of the entry starts nothing: {entry[key]}"
        if not self._found(f"share/icons/hicolor/scalable/apps/{entry['Icon']}.svg"):
            yield f"there is no icon {entry['Icon']}"
        if entry.get("StartupNotify") != "false":
            yield "the desktop would wait for the window of a hidden start"
        for key in ("GenericName", "Comment", "Keywords"):
            for language in LANGUAGES:
                if not entry.get(f"{key}[{language}]"):
                    yield f"{key} of the entry has no {language}"

    def _metainfo_faults(self):
        component = ElementTree.fromstring(self._read(METAINFO))
        if component.findtext("launchable") != os.path.basename(ENTRY):
            yield "the metainfo launches another entry"
        if component.findtext("provides/binary") != os.path.basename(PROGRAM):
            yield "the metainfo names another program"
        if sorted(lang.text for lang in component.iterfind("languages/lang")) != sorted(["en", *LANGUAGES]):
            yield "the metainfo has other languages"
        for text in ("summary", "description/p", "description/ul/li", "releases/release/description/p"):
            english = sum(LANG not in element.attrib for element in component.iterfind(text))
            for language in LANGUAGES:
                tag = language.replace("_", "-")
                if sum(element.get(LANG) == tag for element in component.iterfind(text)) != english or not english:
                    yield f"{text} of the metainfo is not in {language}"
        release = component.find("releases/release")
        heading = f"## {release.get('version')} ({release.get('date')})"
        headings = [line for line in gzip.decompress(self._read(CHANGELOG)).decode().splitlines()
                    if line.startswith("## ")]
        if headings[:1] != [heading]:
            yield f"the changelog does not begin with '{heading}'"

    def _text_faults(self):
        if not gzip.decompress(self._read(MAN_PAGE)).startswith(b".TH AMBERTASK 1 "):
            yield f"{MAN_PAGE} is no man page"
        if self._read(SHIPPED + "Ambertask1.1.chm")[:4] != b"ITSF":
            yield "the help is no help file"

    def _option_faults(self):
        """Each option that the program names is in its man page, and the shell completes it."""
        help_text = subprocess.run([self._path(PROGRAM), "--help"], capture_output=True, text=True, env={}).stdout
        options = set(re.findall(r"--[a-z-]+", help_text))
        if not options:
            yield "the program does not say its options"
        man_page = gzip.decompress(self._read(MAN_PAGE)).decode().replace("\\-", "-")
        completion = self._read(COMPLETION).decode()
        for option in sorted(options):
            for place, text in ((MAN_PAGE, man_page), (COMPLETION, completion)):
                if not re.search(rf"(?<![a-z-]){option}(?![a-z-])", text):
                    yield f"{place} does not know {option}"

    def _language_faults(self):
        """Catalogues are resources of the program; their names are stored in UTF-16."""
        program = self._read(PROGRAM)
        for language in LANGUAGES:
            if f"ambertask_{language}.qm".encode("utf-16-be") not in program:
                yield f"the program does not speak {language}"

    def _validator_faults(self):
        for command in (["desktop-file-validate", self._path(ENTRY)],
                        ["appstreamcli", "validate", "--no-net", self._path(METAINFO)]):
            result = subprocess.run(command, capture_output=True, text=True)
            if result.returncode != 0:
                yield f"{command[0]}: {result.stdout}{result.stderr}"
