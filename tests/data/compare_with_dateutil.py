"""Works rules out with dateutil and prints where its moments are other ones than those of a file.

Each line of the file: rule, first moment, the moment asked about, the horizon, and the first moments later than that
up to the horizon, no more than MOST, with tabs and commas between. Where the two differ on purpose:

- The first moment is in the series and counts, as the standard has it; dateutil leaves it out when the rule does not
  name it.
- A last day is a whole day; dateutil takes it for midnight.
- What a rule with week numbers leaves open is the weekday of the first moment, as in other rules; dateutil takes the
  whole week.
- Positions in a week count from its beginning; dateutil counts from the first moment in the first week.

Two things are not in the file, as dateutil does not follow the standard: numbered weekdays beside others ("SA,-1SU"),
where it takes the days that are both, and the weeks -52 and -53, which it does not find in December.
"""

import sys
import types
from datetime import datetime, timedelta
from itertools import takewhile

from dateutil import rrule
from dateutil.rrule import rrulestr

MOST = 4
WEEKDAYS = ["MO", "TU", "WE", "TH", "FR", "SA", "SU"]


# It looks at the horizon when it has found something; for a rule that never comes it would go on to the year 9999.
CALENDAR = types.SimpleNamespace(**vars(rrule.datetime))
rrule.datetime = CALENDAR


def moment(text):
    return datetime.strptime(text, "%Y-%m-%d %H:%M:%S")


def last_moment(until):
    if len(until) == len("20261224"):
        until += "T235959"
    return datetime.strptime(until.removesuffix("Z"), "%Y%m%dT%H%M%S")


def moments(rule, first, horizon):
    """The series in order, up to the horizon."""
    parts = dict(part.split("=") for part in rule.split(";"))
    count = parts.pop("COUNT", None)
    if "UNTIL" in parts:
        horizon = min(horizon, last_moment(parts.pop("UNTIL")))
    names_days = parts.keys() & {"BYDAY", "BYMONTHDAY", "BYYEARDAY"}
    begin = first
    if not names_days and ("BYWEEKNO" in parts or parts["FREQ"] == "WEEKLY"):
        parts["BYDAY"] = WEEKDAYS[first.weekday()]
    if parts["FREQ"] == "WEEKLY":
        begin -= timedelta((first.weekday() - WEEKDAYS.index(parts.get("WKST", "MO"))) % 7)
    named = rrulestr(";".join(f"{key}={value}" for key, value in parts.items()), dtstart=begin).replace(until=horizon)
    CALENDAR.MAXYEAR = horizon.year
    number = 1
    yield first
    for found in named:
        if found > first:
            number += 1
            if count and number > int(count):
                return
            yield found


def answer(rule, first, after, horizon):
    found = []
    for one in takewhile(lambda one: one <= horizon, moments(rule, first, horizon)):
        if one > after:
            found.append(str(one))
        if len(found) == MOST:
            break
    return ",".join(found)


def main():
    lines = 0
    with open(sys.argv[1], encoding="ascii") as file:
        for line in file:
            rule, first, after, horizon, found = line.rstrip("\n").split("\t")
            expected = answer(rule, moment(first), moment(after), moment(horizon))
            if found != expected:
                print(f"{rule} from {first} after {after}:\n  {found}\n  {expected}")
            lines += 1
    print(f"{lines} compared")


main()
