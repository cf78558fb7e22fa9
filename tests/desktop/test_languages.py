"""The program in the language of its user. No locale need be generated: Qt reads the names alone."""
import names
from case import DesktopCase, main
from polling import wait_until
from words import Words

PAGES = ["Tasks", "Categories", "Settings", "Maintenance"]


class LanguagesTest(DesktopCase):
    def setUp(self):
        super().setUp()
        self.store.set(minimize_on_start=0)

    def start_in(self, language, **environment):
        self.words = Words(language)
        self.user = self.start(environment=environment)
        self.user.wait_loaded()

    def main_window_speaks(self):
        window = self.user.main()
        for page in PAGES:
            window.find("page", self.words("frmMain", page))

    def open_page(self, page):
        self.user.click(self.user.main().find("page", self.words("frmMain", page)))

    def press(self, context, caption):
        self.user.click(self.user.main().find("button", self.words(context, caption)))

    def test_each_language_that_ships_is_spoken_to_who_reads_it(self):
        for language, locale in {"de": "de_AT.UTF-8", "fr": "fr_CA.UTF-8", "es": "es_MX.UTF-8",
                                 "zh_CN": "zh_CN.UTF-8", "ar": "ar_EG.UTF-8"}.items():
            with self.subTest(language):
                self.start_in(language, LANG=locale)
                self.main_window_speaks()
                self.user.choose_tray_entry(self.words("frmMain", "Exit"))
                self.assertEqual(self.user.program.wait_end(), 0)

    def test_the_first_language_of_the_user_that_ships_counts(self):
        self.start_in("fr", LANG="en_US.UTF-8", LANGUAGE="ja:fr:de")
        self.main_window_speaks()

    def test_english_is_spoken_to_everybody_else(self):
        user = self.start(environment={"LANG": "ja_JP.UTF-8"})
        user.wait_loaded()
        for page in PAGES:
            user.main().find("page", page)

    def test_boxes_and_the_tray_menu_speak_the_language_too(self):
        self.store.add_task("Call back", "Work")
        self.start_in("de", LANGUAGE="de")
        menu = self.user.open_tray_menu()
        self.assertEqual([entry.name for entry in menu.children()],
                         [self.words("frmMain", entry) for entry in ["Hide", "About", "Help", "Send feedback", "Exit"]])
        self.desk.input.key("Escape")
        self.user.desk.input.click(*self.user.place_of(self.user.grid().cell(0, 0)))
        self.press("TasksPage", "&Delete")
        box = self.user.access.message_box(self.words("TaskChoices", "Are you sure you want to delete this task?"),
                                           names.MAIN)
        box.find("button", self.words("MessageBoxes", "&Yes"))
        self.user.click(box.find("button", self.words("MessageBoxes", "&No")))
        self.user.wait_active(names.MAIN)
        self.assertEqual(len(self.store.tasks()), 1)

    def test_qts_own_dialogs_speak_the_language_too(self):
        self.start_in("de", LANGUAGE="de")
        self.open_page("Maintenance")
        self.press("MaintenancePage", "&Backup")
        self.user.wait_active("Speichern unter")
        self.desk.input.key("Escape")
        self.user.wait_hidden("Speichern unter")

    def test_what_the_program_does_does_not_depend_on_its_words(self):
        self.store.add_task("Done", "Work", task_status=2)
        self.store.add_task("Waiting", "Work", task_status=3)
        self.start_in("de", LANGUAGE="de")
        self.user.choose(self.user.main(), ("combo box", self.words("TaskFilters", "Stat&us")),
                         self.words("clsGuiLoader", "Completed"))
        wait_until(lambda: self.user.grid().rows() == 1, "the done task alone is listed")
        self.user.choose_tray_entry(self.words("frmMain", "Hide"))
        self.user.wait_hidden(names.MAIN)
        self.assertEqual(self.user.first_tray_entry(), self.words("frmMain", "Show"))
        self.user.choose_tray_entry(self.words("frmMain", "Show"))
        self.user.wait_active(names.MAIN)
        self.assertEqual(self.user.first_tray_entry(), self.words("frmMain", "Hide"))

    def test_a_task_is_stored_alike_in_every_language(self):
        # This locale writes other digits.
        self.start_in("ar", LANG="ar_EG.UTF-8")
        self.press("TasksPage", "&Add")
        title = self.words("frmTaskDetails", "Task Details")
        self.user.wait_active(title)
        dialog = self.user.access.window(title)
        self.user.type_into(dialog, ("text box", self.words("frmTaskDetails", "Task name")), "Water the plants")
        self.user.choose(dialog, ("combo box", self.words("frmTaskDetails", "Category")), "Work")
        self.user.click(dialog.find("button", self.words("frmTaskDetails", "OK")))
        self.user.wait_hidden(title)
        task = self.store.task_named("Water the plants")
        self.assertEqual((task["task_status"], task["task_periority"]), (0, 1))
        self.assertRegex(task["task_due_date"], r"^[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:00$")

    def test_arabic_is_read_from_right_to_left(self):
        self.start_in("ar", LANGUAGE="ar")
        window = self.user.main()
        left_ends = [window.find("page", self.words("frmMain", page)).place()[0] for page in PAGES]
        self.assertEqual(left_ends, sorted(left_ends, reverse=True))
        self.press("TasksPage", "&Add")
        title = self.words("frmTaskDetails", "Task Details")
        self.user.wait_active(title)
        dialog = self.user.access.window(title)
        name = dialog.find("text box", self.words("frmTaskDetails", "Task name"))
        label = dialog.find("label", self.words("frmTaskDetails", "&Task name:"))
        self.assertGreater(label.place()[0], name.place()[0])


if __name__ == "__main__":
    main()
