#!/usr/bin/python3
"""Makes the compiled help file from its sources.

    make_help.py OUTPUT SOURCE_FOLDER [PICTURE...]

SOURCE_FOLDER holds the topics (*.html), the folder pictures, help.css, Ambertask.hhc (contents), Ambertask.hhk (index) and contexts.txt
(a context number and its topic a line). Fails when a link, a picture or a context leads nowhere, or when a topic is
missing in the contents. The same sources make the same bytes. Nothing is compressed: the file is small, and every
reader takes it. The usual free compiler is not used: it loses the context number 0.
"""
import html.parser
import os
import struct
import sys
import zlib

TITLE = "Ambertask Help"
DEFAULT_TOPIC = "welcome.html"
CONTENTS = "Ambertask.hhc"
INDEX = "Ambertask.hhk"
LANGUAGE = 0x0409
CHUNK_SIZE = 0x1000
QUICK_REFERENCE_EVERY = 5  # 1 + 2 to the power of the density
DENSITY = 2
DIRECTORY_HEADER_SIZE = 0x54
FILE_GUIDS = bytes.fromhex("10fd017caa7bd0119e0c00a0c922e6ec" "11fd017caa7bd0119e0c00a0c922e6ec")
DIRECTORY_GUID = bytes.fromhex("6a92025d2e21d0119df900a0c922e6ec")


class SourceError(Exception):
    """Something in the sources that has to be put right."""


class Page(html.parser.HTMLParser):
    """What a topic, contents or index refers to."""

    def __init__(self, text):
        super().__init__()
        self.title = ""
        self.references = []
        self.places = set()
        self._in_title = False
        self.feed(text)

    def handle_starttag(self, tag, attrs):
        attributes = dict(attrs)
        self._in_title = tag == "title"
        for name in ("href", "src"):
            if name in attributes:
                self.references.append(attributes[name])
        if tag == "param" and attributes.get("name") == "Local":
            self.references.append(attributes["value"])
        for name in ("id", "name"):
            if name in attributes:
                self.places.add(attributes[name])

    def handle_endtag(self, tag):
        self._in_title = False

    def handle_data(self, data):
        if self._in_title:
            self.title += data


def read(path):
    with open(path, "rb") as source:
        return source.read()


def collect(folder, pictures):
    """The objects of the help file, by name."""
    objects = {}
    for name in sorted(os.listdir(folder)):
        if name.endswith((".html", ".css", ".hhc", ".hhk")):
            objects[name] = read(os.path.join(folder, name))
    shown = os.path.join(folder, "pictures")
    for picture in [os.path.join(shown, name) for name in sorted(os.listdir(shown))] + list(pictures):
        objects[os.path.basename(picture)] = read(picture)
    return objects


def read_contexts(folder):
    contexts = {}
    for line in read(os.path.join(folder, "contexts.txt")).decode().splitlines():
        if line and not line.startswith("#"):
            number, topic = line.split()
            contexts[int(number)] = topic
    return contexts


def check(pages, objects, contexts):
    for name, page in pages.items():
        if name.endswith(".html") and not page.title:
            raise SourceError(f"{name} has no title")
        for reference in page.references:
            target, _, place = reference.partition("#")
            if reference.startswith("https://"):
                continue
            if target and target not in objects:
                raise SourceError(f"{name} refers to {reference}, which is not there")
            if place and place not in pages[target or name].places:
                raise SourceError(f"{name} refers to {reference}, a place that is not there")
    for topic in contexts.values():
        if topic not in pages:
            raise SourceError(f"contexts.txt names {topic}, which is not there")
    for name in pages:
        if name.endswith(".html") and name not in pages[CONTENTS].references:
            raise SourceError(f"{name} is missing in the contents")


class Strings:
    """The pool of strings that tables refer to by offset."""

    def __init__(self):
        self.data = bytearray(b"\0")

    def add(self, text):
        encoded = text.encode() + b"\0"
        # No string lies across a border of two blocks.
        if len(self.data) % CHUNK_SIZE + len(encoded) > CHUNK_SIZE:
            self.data += bytes(-len(self.data) % CHUNK_SIZE)
        offset = len(self.data)
        self.data += encoded
        return offset


def system_entry(code, data):
    return struct.pack("<HH", code, len(data)) + data


def system_object(stamp):
    def text(code, value):
        return system_entry(code, value.encode() + b"\0")

    return (struct.pack("<I", 3)
            + system_entry(10, struct.pack("<I", stamp))
            + text(9, "Ambertask make_help")
            + system_entry(4, struct.pack("<IIIIIQII", LANGUAGE, 0, 0, 0, 0, 0, 0, 0))
            + text(2, DEFAULT_TOPIC)
            + text(3, TITLE)
            + text(0, CONTENTS)
            + text(1, INDEX)
            + text(6, "ambertask1.1"))


def tables(pages, contexts, stamp):
    """The objects that a viewer reads before it shows anything: title, topics, context numbers."""
    strings = Strings()
    topics, url_table, urls = bytearray(), bytearray(), bytearray(b"\0")
    for number, name in enumerate(name for name in sorted(pages) if name.endswith(".html")):
        topics += struct.pack("<IIIHH", 0, strings.add(pages[name].title), len(url_table), 2, 0)
        url_table += struct.pack("<III", 0, number, len(urls))
        urls += struct.pack("<II", 0, 0) + name.encode() + b"\0"
    entries = b"".join(struct.pack("<II", number, strings.add(topic)) for number, topic in sorted(contexts.items()))
    return {
        "#SYSTEM": system_object(stamp),
        "#IVB": struct.pack("<I", len(entries)) + entries,
        "#TOPICS": bytes(topics),
        "#URLTBL": bytes(url_table),
        "#URLSTR": bytes(urls),
        "#STRINGS": bytes(strings.data),
    }


def name_list():
    """The names of the sections of content; there is only the one that is not compressed."""
    name = "Uncompressed"
    record = struct.pack("<H", len(name)) + name.encode("utf-16-le") + b"\0\0"
    return struct.pack("<HH", (4 + len(record)) // 2, 1) + record


def encoded_number(number):
    groups = [number & 0x7F]
    while number := number >> 7:
        groups.append(number & 0x7F | 0x80)
    return bytes(reversed(groups))


def directory(entries):
    """The directory, one chunk of names in order with their offsets and lengths."""
    listing, references = bytearray(), []
    for number, (name, offset, length) in enumerate(sorted(entries, key=lambda entry: entry[0].lower())):
        if number and number % QUICK_REFERENCE_EVERY == 0:
            references.append(len(listing))
        encoded = name.encode()
        listing += encoded_number(len(encoded)) + encoded
        listing += encoded_number(0) + encoded_number(offset) + encoded_number(length)
    tail = b"".join(struct.pack("<H", offset) for offset in reversed(references)) + struct.pack("<H", len(entries))
    head_size = 0x14
    free = CHUNK_SIZE - head_size - len(listing)
    if free < len(tail):
        raise SourceError("There are more objects than one directory chunk holds")
    chunk = (b"PMGL" + struct.pack("<IIii", free, 0, -1, -1) + bytes(listing)
             + bytes(free - len(tail)) + tail)
    header = (b"ITSP" + struct.pack("<IIIIIIiII", 1, DIRECTORY_HEADER_SIZE, 0x0A, CHUNK_SIZE, DENSITY, 1, -1, 0, 0)
              + struct.pack("<iII", -1, 1, LANGUAGE) + DIRECTORY_GUID
              + struct.pack("<Iiii", DIRECTORY_HEADER_SIZE, -1, -1, -1))
    return header + chunk


def compiled(objects, stamp):
    content = bytearray()
    entries = [("/", 0, 0)]
    stored = {"/" + name: data for name, data in objects.items()}
    stored["::DataSpace/NameList"] = name_list()
    for name, data in stored.items():
        entries.append((name, len(content), len(data)))
        content += data
    listing = directory(entries)
    head_size, size_record = 0x60, 0x18
    directory_offset = head_size + size_record
    content_offset = directory_offset + len(listing)
    head = (b"ITSF" + struct.pack("<III", 3, head_size, 1) + struct.pack(">I", stamp) + struct.pack("<I", LANGUAGE)
            + FILE_GUIDS + struct.pack("<QQQQQ", head_size, size_record, directory_offset, len(listing),
                                       content_offset))
    sizes = struct.pack("<IIQII", 0x01FE, 0, content_offset + len(content), 0, 0)
    return head + sizes + listing + bytes(content)


def main(output, folder, *pictures):
    objects = collect(folder, pictures)
    contexts = read_contexts(folder)
    pages = {name: Page(data.decode()) for name, data in objects.items() if name.endswith((".html", ".hhc", ".hhk"))}
    check(pages, objects, contexts)
    stamp = zlib.crc32(b"".join(name.encode() + data for name, data in sorted(objects.items())))
    # The tables come first: a file that was cut off keeps them longest.
    objects = {**tables(pages, contexts, stamp), **objects}
    with open(output + ".new", "wb") as help_file:
        help_file.write(compiled(objects, stamp))
    os.replace(output + ".new", output)


try:
    main(*sys.argv[1:])
except SourceError as error:
    sys.exit(f"make_help.py: {error}")
