-- The data file as it is shipped. The program creates no table. Every change in here needs a new user_version and a
-- step in DataFileRoad.cpp that upgrades the files of users:
--   0  copied by another tool that does not keep the version
--   1  the first version; the indexes for the filters are missing in some of these files
--   2  all files have the indexes
--   3  the table task_origins
--   4  the table repeats
--
-- Moments are text YYYY-MM-DD HH:MM:SS, flags 0 or 1. The program compares texts with a NOCASE of its own, which folds
-- every alphabet: an index on a text column, written with another tool's NOCASE, would be out of order for it.
PRAGMA encoding = 'UTF-8';
PRAGMA journal_mode = DELETE;
PRAGMA application_id = 0x416D6274;
PRAGMA user_version = 4;

BEGIN;

CREATE TABLE settings (
  always_on_top INTEGER NOT NULL DEFAULT 0,
  start_with_windows INTEGER NOT NULL DEFAULT 0,
  minimize_on_start INTEGER NOT NULL DEFAULT 0,
  skin TEXT NOT NULL DEFAULT '' COLLATE NOCASE,
  show_task_status INTEGER NOT NULL DEFAULT 0,
  show_task_due_date INTEGER NOT NULL DEFAULT 0,
  show_task_periority INTEGER NOT NULL DEFAULT 0,
  show_task_reminder INTEGER NOT NULL DEFAULT 0,
  show_today_tasks INTEGER NOT NULL DEFAULT 0,
  show_grid INTEGER NOT NULL DEFAULT 0,
  show_ballon_icon INTEGER NOT NULL DEFAULT 0
);

CREATE TABLE categories (
  cat_id INTEGER PRIMARY KEY AUTOINCREMENT,
  cat_name TEXT NOT NULL DEFAULT '' COLLATE NOCASE,
  cat_desc TEXT NOT NULL DEFAULT '' COLLATE NOCASE,
  cat_icon INTEGER NOT NULL DEFAULT 0,
  custom_icon INTEGER NOT NULL DEFAULT 0,
  cat_icon_name TEXT NOT NULL DEFAULT '' COLLATE NOCASE
);

CREATE TABLE tasks (
  task_id INTEGER PRIMARY KEY AUTOINCREMENT,
  task_name TEXT NOT NULL DEFAULT '' COLLATE NOCASE,
  task_desc TEXT NOT NULL DEFAULT '' COLLATE NOCASE,
  task_status INTEGER NOT NULL DEFAULT 0,
  cat_id INTEGER NOT NULL,
  task_due_date TEXT NOT NULL,
  task_periority INTEGER NOT NULL DEFAULT 1,
  reminder_on INTEGER NOT NULL DEFAULT 0,
  reminder_date_time TEXT NOT NULL,
  reminder_sound TEXT NOT NULL DEFAULT '' COLLATE NOCASE,
  reminder_file TEXT NOT NULL DEFAULT '' COLLATE NOCASE,
  played INTEGER NOT NULL DEFAULT 0,
  dismissed INTEGER NOT NULL DEFAULT 0
);

-- For the reminder check, which runs every few seconds.
CREATE INDEX tasks_by_reminder ON tasks (reminder_on, dismissed, reminder_date_time);

-- For the filters. Within one value of an index of one column the tasks stand in the order in which they were made, the
-- one that people see; an index that holds the due date as well would take them out of it. Of two that serve, the engine
-- takes the one made last: a category holds fewer tasks than a status.
CREATE INDEX tasks_by_status ON tasks (task_status);
CREATE INDEX tasks_by_category ON tasks (cat_id);

-- How other programs know a task, and what they have written of it (see TaskRecord). A row stays when its task is
-- deleted, so that an undo brings all of it back. Any process may write before that undo, so only a start that gives
-- new ids removes it.
CREATE TABLE task_origins (
  of_task INTEGER PRIMARY KEY,
  uid TEXT NOT NULL DEFAULT '',
  properties TEXT NOT NULL DEFAULT ''
);

-- How tasks repeat (see Repeat); lead is in minutes. A row stays when its task is deleted, so that an undo brings all
-- of it back; it goes as a row of task_origins does.
CREATE TABLE repeats (
  of_task INTEGER PRIMARY KEY,
  rule TEXT NOT NULL DEFAULT '',
  first_moment TEXT NOT NULL DEFAULT '',
  lead INTEGER NOT NULL DEFAULT 0,
  done INTEGER NOT NULL DEFAULT 0
);

INSERT INTO settings (always_on_top, start_with_windows, minimize_on_start, skin, show_task_status, show_task_due_date,
  show_task_periority, show_task_reminder, show_today_tasks, show_grid, show_ballon_icon)
VALUES (0, 1, 0, 'Aqua', 1, 1, 1, 1, 0, 1, 1);

INSERT INTO categories (cat_name, cat_desc, cat_icon) VALUES
  ('Personal', 'Home, family and friends', 0),
  ('Work', 'Projects and meetings', 1),
  ('Shopping', 'Things to buy', 2),
  ('Appointments', 'Dates to keep', 3);

COMMIT;
