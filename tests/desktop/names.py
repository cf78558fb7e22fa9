"""What the controls are called on the accessibility bus: the one place to change when a caption changes.

A control is a role and its captions; any of the captions will do.
"""
MAIN = "Ambertask"
TASK_DIALOG = "Task Details"
REPEAT_WINDOW = "Repeat"
CATEGORY_DIALOG = "Category Details"
ABOUT = "About Ambertask"
COPIES_WINDOW = "Restore from a Copy"
IMPORT_WINDOW = "Import Tasks"
REPORT = "Tasks Report"
TRAY_TIP = "Ambertaks"
TRAY_MENU = ["Show", "About", "Help", "Send feedback", "Exit"]
LIST_MENU = ["Edit", "Complete", "Postpone", "Status", "Priority", "Category", "Duplicate", "Copy", "Delete", "Undo"]
ALERT_MENU = ["Complete", "Open Item", "Remind me later", "Dismiss"]
BALLOON = "Ambertaks is still running.."
VENDOR = "https://www.ambertask.example"

ADD = ("button", "Add")
EDIT = ("button", "Edit")
DELETE = ("button", "Delete")
OK = ("button", "OK")
CANCEL = ("button", "Cancel")
UNDO = ("button", "Undo")
FIND = ("text", "Find tasks")
YES = ("button", "Yes")
NO = ("button", "No")
SAVE = ("button", "Save")
DISCARD = ("button", "Discard")
SAVE_SETTINGS = ("button", "Save Settings")
ON_TOP = ("check box", "Always on top")
SHOW_BALLOON = ("check box", "Show tray balloon when closed")
SHOW_GRID = ("check box", "Show grid")
START_WITH_SESSION = ("check box", "Start with windows")
STATUS_COLUMN = ("check box", "Task status")
DUE_DATE_COLUMN = ("check box", "Task due date")
PRIORITY_COLUMN = ("check box", "Task priority")
REMINDER_COLUMN = ("check box", "Task reminder")
SKIN = ("combo box", "Current skin")
ADD_SKIN = ("button", "Browse", "Add new skin")
MORE_SKINS = ("link", "Download More Skins")

CATEGORY_LIST = ("list", "Categories")
ADD_CATEGORY = ("button", "Add a category")
EDIT_CATEGORY = ("button", "Edit the selected category")
DELETE_CATEGORY = ("button", "Delete the selected category")
CATEGORY_NAME = ("text box", "Category")
CATEGORY_DESCRIPTION = ("text box", "Description")
DEFAULT_ICON = ("option", "Default Icon")
CUSTOM_ICON = ("option", "Custom Icon")
BROWSE_ICON = ("button", "Browse for a custom icon")

FILTER_CATEGORY = ("combo box", "Category")
DATE_FROM = ("picker", "From", "Date from", "From date")
DATE_TO = ("picker", "To", "Date to", "To date")
BACKUP = ("button", "Backup")
RESTORE = ("button", "Restore")
COPIES = ("button", "Restore from a copy...")
IMPORT = ("button", "Import...")
RESTORE_COPY = ("button", "Restore")
OPEN_FILE = "Open"
SAVE_FILE = "Save As"
FILE_NAME = ("text box", "File name")
# A control that only this page shows.
PAGES = {"Tasks": ("grid", "Tasks"), "Categories": CATEGORY_LIST, "Settings": SAVE_SETTINGS, "Maintenance": BACKUP}

TASK_NAME = ("text box", "Task", "Task name", "Name")
TASK_DESCRIPTION = ("text box", "Description")
TASK_CATEGORY = ("combo box", "Category")
TASK_REPEAT = ("combo box", "Repeat task")
DUE_TIME = ("picker", "Due time")
TASK_STATUS = ("combo box", "Status")
TASK_PRIORITY = ("combo box", "Priority")
REMINDER_ON = ("check box", "Enable reminder", "Reminder")
REMINDER_TIME = ("picker", "Reminder time", "Time")
SOUND_ON = ("check box", "Reminder sound", "Sound", "Play sound")
SOUND_PATH = ("text box", "Reminder sound", "Sound", "Sound file", "Reminder sound file")
FILE_ON = ("check box", "Reminder file", "File", "Open file", "Start file")
FILE_PATH = ("text box", "Reminder file", "File", "File to open", "Program or batch file")

DISMISS = ("button", "Dismiss")
DISMISS_ALL = ("button", "Dismiss All")
REMIND_LATER = ("button", "Remind me later")
USUAL_MOMENTS = ("menu button", "Set date and time to")
OPEN_ITEM = ("button", "Open Item")
LATER_TIME = ("picker", "Time", "Reminder time", "New time", "New reminder time")

TOO_EARLY = "Reminder date and time should not be earlier than current system date and time"
DELETE_QUESTION = "Are you sure you want to delete this task?"
DELETE_REPEATING_QUESTION = "This task repeats. Do you want to delete it this time, or all times?"
NO_CATEGORY = "Please select category."
NO_CATEGORY_NAME = "Please enter category name."
CATEGORY_EXISTS = "A category with the same name already exists"
CATEGORY_NOT_SAVED = "The changes to the category are not saved."
NO_TASKS = "There is no tasks according to the selected criteria!"
SKIN_ADDED = "The new skin is now available in the skins list."


def alert_title(count):
    return f"{count} Reminder" if count == 1 else f"{count} Reminders"


def icon(index):
    """The built-in category icon of that stored number."""
    return "option", f"Icon {index + 1} of 12"


def not_saved(name):
    return f"The changes to '{name}' are not saved."


def delete_category_question(name):
    return f"Are you sure you want to delete '{name}' category, all tasks under this category will be deleted?"


def delete_tasks_question(count):
    return f"Are you sure you want to delete {count} tasks?"
