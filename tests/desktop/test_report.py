"""The printed report: the list in a window of its own, worked by keyboard, and the PDF file it becomes."""
import os
import subprocess
from datetime import datetime

import names
from case import DesktopCase, main
from polling import wait_until

NOW = datetime(2026, 3, 2, 10, 20, 30)
PRINT_DIALOG = "Print"
# More pages than a second prints.
MANY = 20000
DUE = datetime(2026, 3, 9, 12, 0, 0)


class ReportCase(DesktopCase):
    always_on_top = 0

    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=self.always_on_top, minimize_on_start=0, show_today_tasks=0)
        self.store.category("Work")
        for name in ("Water the plants", "Write the letter"):
            self.store.add_task(name, due=DUE, task_status=3)
        self.user = self.start(self.desk.clock(NOW))
        self.user.wait_loaded()

    def file_dialog_is_active(self):
        active = self.desk.screen.active()
        return active is not None and active.title not in (names.REPORT, names.MAIN)

    def print_list(self):
        self.desk.input.key("p", "Alt_L")
        window = self.user.window(names.REPORT)
        self.user.wait_active(names.REPORT)
        return window


class TopmostReportTest(ReportCase):
    always_on_top = 1

    def test_the_report_opens_topmost_above_the_main_window(self):
        window = self.print_list()
        wait_until(lambda: window.topmost, "the report is topmost")
        self.assertTrue(self.desk.screen.is_above(window, self.user.window(names.MAIN)))


class ReportTest(ReportCase):
    def test_the_list_goes_on_working_beside_the_report(self):
        window = self.print_list()
        self.assertFalse(window.topmost)
        self.assertFalse(window.modal)
        # Aside, off the buttons of the list.
        window.move(500, 20, 760, 600)
        self.user.window(names.MAIN).activate()
        self.user.wait_active(names.MAIN)
        self.user.open_new_task()
        self.assertTrue(self.user.shows(names.REPORT))

    def test_the_report_belongs_to_the_main_window_and_stays_above_it(self):
        window = self.print_list()
        main = self.user.window(names.MAIN)
        self.assertEqual(window.owner, main)
        main.activate()
        self.user.wait_active(names.MAIN)
        self.assertTrue(self.desk.screen.is_above(window, main))

    def test_the_report_can_be_maximized(self):
        window = self.print_list()
        self.desk.screen.tell_manager(window.handle, "_NET_WM_STATE", [
            1, self.desk.screen.atom("_NET_WM_STATE_MAXIMIZED_VERT"),
            self.desk.screen.atom("_NET_WM_STATE_MAXIMIZED_HORZ"), 2, 0])
        wait_until(lambda: "_NET_WM_STATE_MAXIMIZED_VERT" in window.states, "the report is maximized")

    def test_a_closed_report_opens_again(self):
        self.print_list().close()
        self.user.wait_hidden(names.REPORT)
        self.user.wait_active(names.MAIN)
        self.print_list()

    def test_the_keyboard_exports_a_pdf_file(self):
        self.print_list()
        target = self.desk.path("list.pdf")
        self.desk.input.key("e", "Alt_L")
        wait_until(self.file_dialog_is_active, "the file dialog is active")
        self.desk.input.key("a", "Control_L")
        self.desk.input.type(str(target))
        self.desk.input.key("Return")
        wait_until(lambda: os.path.exists(target), "the file is written")
        text = subprocess.run(["pdftotext", "-layout", target, "-"], check=True, capture_output=True,
                              text=True).stdout
        for expected in ("Water the plants", "Write the letter", "Waiting on someone else", "09/03/2026", names.VENDOR):
            self.assertIn(expected, text)

    def test_the_report_ends_with_the_program(self):
        self.print_list()
        self.assertEqual(self.user.exit(), 0)


class PrinterTest(ReportCase):
    def setUp(self):
        super().setUp()
        self.printer = self.desk.start_printer()

    def start_printing(self):
        self.print_list()
        self.desk.input.key("p", "Alt_L")
        self.user.wait_active(PRINT_DIALOG)
        self.desk.input.key("Return")
        self.user.wait_hidden(PRINT_DIALOG)

    def test_the_printer_prints_what_the_report_shows(self):
        self.start_printing()
        text = self.printer.printed()
        for expected in ("Water the plants", "Write the letter", names.VENDOR):
            self.assertIn(expected, text)

    def test_cancelled_printing_prints_nothing_and_the_report_goes_on(self):
        columns = "task_desc,task_status,cat_id,task_due_date,task_periority,reminder_on,reminder_date_time"
        self.store.execute(f"insert into tasks(task_name,{columns}) with n(i) as (select 1 union all select i+1 from n "
                           f"limit ?) select 'Task '||i,{columns} from n,(select * from tasks limit 1)", (MANY,))
        self.start_printing()
        # The box has the title of all boxes; the main window stays behind.
        self.user.wait_active(names.MAIN)
        self.assertTrue(self.desk.screen.active().modal)
        self.desk.input.key("Escape")
        self.user.wait_active(names.REPORT)
        # Had the cancelled job been sent, it would have come first.
        self.desk.input.key("e", "Alt_L")
        wait_until(self.file_dialog_is_active, "the report answers")
        self.assertEqual(self.printer.jobs(), [])


if __name__ == "__main__":
    main()
