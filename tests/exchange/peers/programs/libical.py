"""libical: the library's own parser and its check against RFC 5545 and RFC 5546."""
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))

import calendars  # noqa: E402
import peer  # noqa: E402


def read(file):
    text = calendars.content(file)
    calendars.check(text)
    return calendars.rows(text)


peer.main(read=read)
