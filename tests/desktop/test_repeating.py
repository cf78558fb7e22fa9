"""A task that repeats, from its making to the deletion of one of its times, by keys alone."""
from datetime import datetime

import names
from by_keys import KeyboardCase
from case import main
from polling import wait_until

TASK = "Take the pill"


class RepeatingByKeysTest(KeyboardCase):
    def test_a_daily_task_reminds_moves_on_is_deleted_this_time_and_taken_back(self):
        self.add_task(TASK, "10:30", category="Work", repeat="Every day")
        self.user.wait_rows([TASK])
        self.assertEqual(self.store.execute("select rule,first_moment,lead,done from repeats"),
                         [{"rule": "FREQ=DAILY", "first_moment": "2026-03-02 10:30:00", "lead": 0, "done": 0}])
        self.assert_armed_for(2)

        self.dismiss_at(2)
        self.assert_armed_for(3)
        self.dismiss_at(3)
        self.assert_armed_for(4)

        self.wait_grid_focus()
        self.key("Home")
        self.wait_selected(0)
        self.key("Delete")
        self.answer(names.DELETE_REPEATING_QUESTION, "t")
        self.wait_armed_for(5)
        self.user.wait_rows([TASK])
        self.ctrl("z")
        self.wait_armed_for(4)
        self.user.wait_rows([TASK])

    def dismiss_at(self, day):
        self.wait_alert(datetime(2026, 3, day, 10, 30, 10), [TASK])
        self.ctrl("m")
        self.user.wait_hidden(names.alert_title(1))
        self.user.wait_active(names.MAIN)

    def armed(self):
        return [(task["task_due_date"], task["task_status"], task["reminder_date_time"], task["reminder_on"],
                 task["dismissed"]) for task in self.store.tasks()]

    @staticmethod
    def armed_for(day):
        moment = f"2026-03-0{day} 10:30:00"
        return [(moment, 0, moment, 1, 0)]

    def assert_armed_for(self, day):
        self.assertEqual(self.armed(), self.armed_for(day))

    def wait_armed_for(self, day):
        wait_until(lambda: self.armed() == self.armed_for(day), f"it is armed for the {day}th")


if __name__ == "__main__":
    main()
