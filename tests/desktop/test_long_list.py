"""A list that takes long to load: it shows that it goes on, takes no input, and may be left at any moment."""
import signal

import names
from case import DesktopCase, main
from polling import wait_until

# More than a second's worth on a fast machine.
TASKS = 3_000_000
FILL = """
with recursive n(i) as (select 1 union all select i+1 from n where i<?)
insert into tasks(task_name,task_desc,task_status,cat_id,task_due_date,task_periority,reminder_on,reminder_date_time)
select 'Task '||i,'',i%2,1,'2030-01-01 10:00:00',1,0,'2030-01-01 10:00:00' from n
"""


class LongListTest(DesktopCase):
    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        self.store.execute(FILL, (TASKS,))
        self.user = self.start()

    def boxes(self):
        return [window for window in self.desk.screen.clients() if window.modal and window.mapped]

    def wait_box(self):
        wait_until(self.boxes, "the box of the load shows", 60)

    def wait_no_box(self):
        wait_until(lambda: not self.boxes(), "the box of the load is gone", 60)

    def wait_started(self):
        self.wait_box()
        self.wait_no_box()
        self.user.wait_loaded()

    def test_the_main_window_takes_no_input_meanwhile(self):
        self.wait_started()
        window = self.user.window(names.MAIN)
        self.desk.input.key("Home")
        self.user.click(self.user.main().find("radio button", "Active tasks only"))
        self.wait_box()
        window.close()
        self.desk.input.key("Escape")
        self.desk.input.key("Delete")
        self.wait_no_box()
        self.user.wait_active(names.MAIN)
        self.assertEqual([shown.title for shown in self.desk.screen.clients() if shown.pid == self.user.program.pid],
                         [names.MAIN])
        self.assertEqual(self.user.exit(), 0)

    def test_the_program_ends_in_the_midst_of_a_start(self):
        self.wait_box()
        self.user.program.send(signal.SIGTERM)
        self.assertEqual(self.user.program.wait_end(), 0)
        self.assertEqual(self.user.program.errors(), "")


if __name__ == "__main__":
    main()
