"""What stands in a file of calendars, by libical."""
import datetime

import gi
import peer

gi.require_version("ICalGLib", "3.0")
from gi.repository import ICalGLib  # noqa: E402

Kind = ICalGLib.ComponentKind
Property = ICalGLib.PropertyKind


def properties(component, kind):
    found = component.get_first_property(kind)
    while found:
        yield found
        found = component.get_next_property(kind)


def components(component, kind):
    found = component.get_first_component(kind)
    while found:
        yield found
        found = component.get_next_component(kind)


def text(component, kind, get):
    for one in properties(component, kind):
        return getattr(one, get)()
    return None


def moment(time):
    if not time or time.is_null_time():
        return None
    if time.is_date():
        return datetime.date(time.get_year(), time.get_month(), time.get_day())
    found = datetime.datetime(time.get_year(), time.get_month(), time.get_day(), time.get_hour(), time.get_minute())
    if time.is_utc():
        return found.replace(tzinfo=datetime.timezone.utc)
    return found


def alarm(todo):
    for one in components(todo, Kind.VALARM_COMPONENT):
        for trigger in properties(one, Property.TRIGGER_PROPERTY):
            when = trigger.get_trigger()
            if not when.get_time().is_null_time():
                return peer.day_or_moment(moment(when.get_time()))
            related = trigger.get_first_parameter(ICalGLib.ParameterKind.RELATED_PARAMETER)
            at_end = related and related.get_related() == ICalGLib.ParameterRelated.END
            base = todo.get_due() if at_end else todo.get_dtstart()
            return peer.day_or_moment(moment(base) + datetime.timedelta(seconds=when.get_duration().as_int()))
    return None


def complaints(component):
    """What the parser has put into the tree where it could not read."""
    for one in properties(component, Property.XLICERROR_PROPERTY):
        yield one.as_ical_string()
    for inner in components(component, Kind.ANY_COMPONENT):
        yield from complaints(inner)


STATES = {"IN-PROCESS": "started", "COMPLETED": "done"}


def rows(text):
    """The tasks of a calendar, or of several."""
    return [row(todo) for todo in todos(ICalGLib.Component.new_from_string(text))]


def check(text):
    """Fails when anything of it cannot be read, or breaks the rules for a calendar."""
    calendar = ICalGLib.Component.new_from_string(text)
    calendar.check_restrictions()
    found = list(complaints(calendar))
    if found:
        raise RuntimeError("\n".join(found))


def todos(component):
    if component.isa() == Kind.VTODO_COMPONENT:
        yield component
    for inner in components(component, Kind.ANY_COMPONENT):
        yield from todos(inner)


def row(todo):
    number = text(todo, Property.PRIORITY_PROPERTY, "get_priority") or 0
    status = next((one.get_value_as_string() for one in properties(todo, Property.STATUS_PROPERTY)), "")
    percent = text(todo, Property.PERCENTCOMPLETE_PROPERTY, "get_percentcomplete") or 0
    state = STATES.get(status) or ("done" if percent == 100 else "started" if percent else "open")
    return {"name": todo.get_summary(), "text": todo.get_description() or "",
            "due": peer.day_or_moment(moment(todo.get_due())), "alarm": alarm(todo), "state": state,
            "priority": "high" if 1 <= number <= 4 else "low" if number > 5 else "normal",
            "category": text(todo, Property.CATEGORIES_PROPERTY, "get_categories"),
            "completed": any(properties(todo, Property.COMPLETED_PROPERTY))}


def content(file):
    with open(file, encoding="utf-8", newline="") as stream:
        return stream.read()
