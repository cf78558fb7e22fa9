"""The help and the about box as their user opens them."""
import os
import subprocess
from datetime import datetime

import names
from case import DesktopCase, main
from polling import holds_for, wait_until

HELP = "Ambertask Help"
NO_PRINTER = "No printer is set up on this computer. Do you want to write this topic to a PDF file instead?"
ALERT = names.alert_title(1)
HELP_BUTTON = ("button", "Help", "Help on categories")
PAGES = {"Tasks": "The page Tasks", "Categories": "The page Categories", "Settings": "The page Settings",
         "Maintenance": "The page Maintenance"}


PAST = datetime(2026, 3, 2, 10, 0, 0)
NOW = datetime(2026, 3, 2, 10, 20, 30)


class HelpCase(DesktopCase):
    always_on_top = 0

    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=self.always_on_top, minimize_on_start=0)

    def start_shown(self):
        self.user = self.start()
        self.user.wait_loaded()

    def topic_shows(self, title):
        topic = self.user.access.window(HELP).find("label", "Topic")
        wait_until(lambda: topic.text.startswith(title), f"the topic '{title}' is shown")

    def wait_above(self, upper, lower):
        wait_until(lambda: self.desk.screen.is_above(self.user.window(upper), self.user.window(lower)),
                   f"'{upper}' is above '{lower}'")

    def open_from_the_alert(self):
        """Starts with a reminder that is due and presses Help in the alert."""
        self.store.category("Work")
        self.store.add_task("Call the bank", reminder=PAST)
        self.user = self.start(self.desk.clock(NOW))
        alert = self.user.alert(1)
        self.user.wait_rows(["Call the bank"], alert)
        window = self.user.window(ALERT)
        holds_for(lambda: window.mapped, "it is there while it takes no keyboard yet", 1)
        window.activate()
        self.user.wait_active(ALERT)
        self.user.click_control(alert, ("button", "Help"))
        self.user.wait_active(HELP)
        self.topic_shows("The alert window")


class HelpTest(HelpCase):
    def test_f1_opens_the_contents_and_escape_closes_the_help(self):
        self.start_shown()
        self.desk.input.key("F1")
        self.user.window(HELP)
        self.user.wait_active(HELP)
        self.topic_shows("Welcome to Ambertask")
        self.desk.input.key("Escape")
        self.user.wait_hidden(HELP)
        self.assertTrue(self.user.shows(names.MAIN))

    def test_each_page_opens_its_topic_in_the_one_window(self):
        self.start_shown()
        windows = set()
        for page, topic in PAGES.items():
            self.user.click(self.user.main().find("page", page))
            self.user.click_control(self.user.main(), HELP_BUTTON)
            windows.add(self.user.window(HELP))
            self.topic_shows(topic)
            self.user.window(names.MAIN).activate()
            self.user.wait_active(names.MAIN)
        self.assertEqual(len(windows), 1)

    def test_exit_closes_the_help_and_ends_the_program(self):
        self.start_shown()
        self.desk.input.key("F1")
        self.user.window(HELP)
        self.user.choose_tray_entry("Exit")
        self.assertEqual(self.user.program.wait_end(), 0)

    def test_a_topic_is_printed_to_a_pdf_file_where_there_is_no_printer(self):
        self.start_shown()
        self.desk.input.key("F1")
        self.user.window(HELP)
        self.user.wait_active(HELP)
        self.topic_shows("Welcome to Ambertask")
        self.desk.input.key("p", "Control_L")
        self.user.answer(NO_PRINTER, names.YES)
        target = self.desk.path("topic.pdf")
        self.user.choose_file(names.SAVE_FILE, str(target))
        wait_until(lambda: os.path.exists(target), "the file is written")
        text = subprocess.run(["pdftotext", target, "-"], check=True, capture_output=True, text=True).stdout
        self.assertIn("Welcome to Ambertask", text)

    def test_a_missing_help_file_is_told_and_the_program_goes_on(self):
        os.remove(self.desk.path("program", "Ambertask1.1.chm"))
        self.start_shown()
        self.desk.input.key("F1")
        self.topic_shows("The help cannot be shown")
        self.desk.input.key("Escape")
        self.user.wait_hidden(HELP)
        self.user.open_new_task()


class AlertTest(HelpCase):
    def test_the_alert_opens_its_topic_above_it_and_has_its_keyboard_back_afterwards(self):
        self.open_from_the_alert()
        self.wait_above(HELP, ALERT)
        self.desk.input.key("Escape")
        self.user.wait_hidden(HELP)
        self.user.wait_active(ALERT)
        self.assertTrue(self.user.shows(names.MAIN))

    def test_help_that_is_open_already_comes_up_above_the_alert(self):
        self.open_from_the_alert()
        self.user.window(ALERT).activate()
        self.user.wait_active(ALERT)
        self.wait_above(ALERT, HELP)
        self.user.alert(1).find("button", "Help").press()
        self.wait_above(HELP, ALERT)


class AboutTest(HelpCase):
    def test_about_belongs_to_the_main_window_and_ok_closes_it(self):
        self.start_shown()
        self.user.choose_tray_entry("About")
        about = self.user.window(names.ABOUT)
        self.assertEqual(about.owner, self.user.window(names.MAIN))
        self.assertFalse(about.topmost)
        self.user.click_control(self.user.access.window(names.ABOUT), names.OK)
        self.user.wait_hidden(names.ABOUT)
        self.assertTrue(self.user.shows(names.MAIN))


class AlwaysOnTopTest(HelpCase):
    always_on_top = 1

    def test_help_opens_above_the_topmost_main_window(self):
        self.start_shown()
        self.desk.input.key("F1")
        self.opens_above(HELP)

    def test_about_opens_above_the_topmost_main_window(self):
        self.start_shown()
        self.user.choose_tray_entry("About")
        self.opens_above(names.ABOUT)

    def test_help_opens_above_the_topmost_alert(self):
        self.open_from_the_alert()
        wait_until(lambda: self.user.window(ALERT).topmost, "the alert is topmost")
        self.opens_above(HELP)
        self.wait_above(HELP, ALERT)

    def opens_above(self, title):
        wait_until(lambda: self.user.window(title).topmost, f"'{title}' is topmost")
        self.wait_above(title, names.MAIN)


if __name__ == "__main__":
    main()
