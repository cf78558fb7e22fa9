"""Categories by mouse and by keyboard, and all that shows them."""
import os
import re
from datetime import datetime

import names
from case import DesktopCase, main
from polling import wait_until

NOW = datetime(2026, 3, 2, 10, 20, 30)
SHIPPED = ["Personal", "Work", "Shopping", "Appointments"]
# One red point.
RED_GIF = bytes.fromhex("47494638396101000100800000ff00000000002c00000000010001000002024401003b")
ICON_EDGE = 32


class CategoriesCase(DesktopCase):
    always_on_top = 0

    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=self.always_on_top, minimize_on_start=0, show_today_tasks=0)
        self.prepare()
        self.user = self.start(self.desk.clock(NOW))
        self.user.wait_loaded()

    def prepare(self):
        """What the store holds before the start."""

    def stored(self, name):
        rows = self.store.execute("select * from categories where cat_name=?", (name,))
        return rows[0] if rows else None

    def open_categories(self):
        self.user.open_page("Categories")

    def items(self):
        return self.user.main().find(*names.CATEGORY_LIST).children()

    def listed(self):
        return [item.name for item in self.items()]

    def item(self, name):
        return wait_until(lambda: next((item for item in self.items() if item.name == name), None),
                          f"category '{name}' is listed")

    def select(self, name):
        self.user.click(self.item(name))
        self.wait_selected(name)

    def wait_selected(self, name):
        wait_until(lambda: self.item(name).has("selected"), f"category '{name}' is selected")

    def open_new(self):
        self.user.click_control(self.user.main(), names.ADD_CATEGORY)
        return self.wait_dialog()

    def wait_dialog(self):
        self.user.wait_active(names.CATEGORY_DIALOG)
        return self.user.access.window(names.CATEGORY_DIALOG)

    def confirm(self, dialog):
        self.user.click_control(dialog, names.OK)
        self.user.wait_hidden(names.CATEGORY_DIALOG)

    def assert_shown_everywhere(self, expected):
        """The list, both filters and the task dialog know these categories and no other."""
        wait_until(lambda: self.listed() == expected, f"the page lists {expected}")
        main_window = self.user.open_page("Tasks")
        self.assertEqual(self.user.entries(main_window, names.FILTER_CATEGORY), ["All"] + expected)
        dialog = self.user.open_new_task()
        self.assertEqual(self.user.entries(dialog, names.TASK_CATEGORY), expected)
        self.user.click_control(dialog, names.CANCEL)
        self.user.wait_hidden(names.TASK_DIALOG)
        self.user.open_page("Maintenance")
        self.assertEqual(self.user.entries(main_window, names.FILTER_CATEGORY), ["All"] + expected)

    def picture(self, name):
        """Points of the item's icon."""
        x, y, width, _ = self.item(name).place()
        left = x + (width - ICON_EDGE) // 2
        return [self.desk.screen.pixel(left + column, y + row)
                for row in range(0, ICON_EDGE, 3) for column in range(0, ICON_EDGE, 3)]


class MouseTest(CategoriesCase):
    def test_a_category_with_a_built_in_icon_is_listed_and_offered_at_once(self):
        self.open_categories()
        dialog = self.open_new()
        self.assertTrue(dialog.find(*names.icon(0)).checked, "a new category starts with the first icon")
        self.user.type_into(dialog, names.CATEGORY_NAME, "Garden")
        self.user.type_into(dialog, names.CATEGORY_DESCRIPTION, "Beds and trees")
        icon = dialog.find(*names.icon(1))
        self.user.click(icon)
        wait_until(lambda: icon.checked, "the second icon is chosen")
        self.confirm(dialog)
        self.user.wait_active(names.MAIN)
        self.assert_shown_everywhere(SHIPPED + ["Garden"])
        row = self.stored("Garden")
        self.assertEqual((row["cat_desc"], row["cat_icon"], row["custom_icon"]), ("Beds and trees", 1, 0))
        self.open_categories()
        wait_until(lambda: self.picture("Garden") == self.picture("Work"), "both show the second icon")
        self.assertNotEqual(self.picture("Garden"), self.picture("Shopping"))

    def test_the_name_and_the_new_icon_show_after_an_edit_but_the_name_stays(self):
        self.open_categories()
        self.select("Work")
        self.user.click_control(self.user.main(), names.EDIT_CATEGORY)
        dialog = self.wait_dialog()
        box = dialog.find(*names.CATEGORY_NAME)
        self.assertEqual((box.text, box.has("enabled")), ("Work", False))
        self.assertTrue(dialog.find(*names.icon(1)).checked)
        self.user.type_into(dialog, names.CATEGORY_DESCRIPTION, "Office only")
        self.user.click(dialog.find(*names.icon(11)))
        self.confirm(dialog)
        row = self.stored("Work")
        self.assertEqual((row["cat_desc"], row["cat_icon"]), ("Office only", 11))
        self.assertEqual(self.listed(), SHIPPED)
        self.wait_selected("Work")

    def test_a_double_click_opens_the_category_and_cancel_keeps_it(self):
        self.open_categories()
        before = self.stored("Shopping")
        self.desk.input.double_click(*self.user.place_of(self.item("Shopping")))
        dialog = self.wait_dialog()
        self.assertEqual(dialog.find(*names.CATEGORY_NAME).text, "Shopping")
        self.assertEqual(dialog.find(*names.CATEGORY_DESCRIPTION).text, before["cat_desc"])
        self.user.type_into(dialog, names.CATEGORY_DESCRIPTION, "thrown away")
        self.user.click_control(dialog, names.CANCEL)
        self.user.wait_hidden(names.CATEGORY_DIALOG)
        self.assertEqual(self.stored("Shopping"), before)

    def test_a_name_that_is_taken_is_refused_and_selected_for_another(self):
        self.open_categories()
        dialog = self.open_new()
        self.user.type_into(dialog, names.CATEGORY_NAME, "Work")
        self.user.click_control(dialog, names.OK)
        self.user.answer(names.CATEGORY_EXISTS, names.OK)
        self.user.wait_active(names.CATEGORY_DIALOG)
        box = dialog.find(*names.CATEGORY_NAME)
        wait_until(lambda: box.has("focused"), "the name has the focus")
        self.desk.input.type("Workshop")
        wait_until(lambda: box.text == "Workshop", "the refused name is typed over")
        self.confirm(dialog)
        self.assertEqual(self.listed(), SHIPPED + ["Workshop"])
        self.assertEqual(len(self.store.execute("select * from categories where cat_name='Work'")), 1)

    def test_a_blank_name_is_refused(self):
        self.open_categories()
        dialog = self.open_new()
        self.user.type_into(dialog, names.CATEGORY_NAME, "   ")
        self.user.click_control(dialog, names.OK)
        self.user.answer(names.NO_CATEGORY_NAME, names.OK)
        self.assertTrue(self.user.shows(names.CATEGORY_DIALOG))
        self.assertEqual(self.listed(), SHIPPED)

    def test_a_picture_of_the_users_own_is_copied_and_shown(self):
        picture = self.desk.path("home", "red.gif")
        with open(picture, "wb") as file:
            file.write(RED_GIF)
        self.open_categories()
        dialog = self.open_new()
        self.user.type_into(dialog, names.CATEGORY_NAME, "Red")
        option = dialog.find(*names.CUSTOM_ICON)
        self.user.click(option)
        wait_until(lambda: dialog.find(*names.BROWSE_ICON).has("enabled"), "a picture can be chosen")
        self.user.click_control(dialog, names.BROWSE_ICON)
        self.user.choose_file(names.OPEN_FILE, picture)
        self.user.wait_active(names.CATEGORY_DIALOG)
        self.confirm(dialog)
        self.item("Red")
        row = self.stored("Red")
        self.assertEqual(row["custom_icon"], 1)
        self.assertTrue(re.fullmatch(r"icon\d+\.gif", row["cat_icon_name"]), row["cat_icon_name"])
        with open(os.path.join(self.desk.program, "custom icons", row["cat_icon_name"]), "rb") as file:
            self.assertEqual(file.read(), RED_GIF)
        wait_until(lambda: (255, 0, 0) in self.whole_item("Red"), "the item shows the picture")
        self.assertNotIn((255, 0, 0), self.whole_item("Shopping"))

    def whole_item(self, name):
        x, y, width, height = self.item(name).place()
        return {self.desk.screen.pixel(x + width // 2, y + row) for row in range(height)}


class KeyboardTest(CategoriesCase):
    def prepare(self):
        self.store.add_task("Sow", "Garden", due=datetime(2026, 3, 3, 9, 0))
        self.store.add_task("Report", "Work", due=datetime(2026, 3, 4, 9, 0))

    def test_a_category_is_added_without_the_mouse(self):
        self.desk.input.key("Tab", "Control_L")
        self.user.main().find(*names.CATEGORY_LIST)
        self.wait_selected("Personal")
        self.desk.input.key("a", "Alt_L")
        dialog = self.wait_dialog()
        wait_until(lambda: dialog.find(*names.CATEGORY_NAME).has("focused"), "the name has the focus")
        self.desk.input.type("Boat\tSails and oars\t\t")
        wait_until(lambda: dialog.find(*names.icon(0)).has("focused"), "the first icon has the focus")
        self.desk.input.key("Right")
        self.desk.input.key("Right")
        wait_until(lambda: dialog.find(*names.icon(2)).checked, "the third icon is chosen")
        self.desk.input.key("o", "Alt_L")
        self.user.wait_hidden(names.CATEGORY_DIALOG)
        row = self.stored("Boat")
        self.assertEqual((row["cat_desc"], row["cat_icon"]), ("Sails and oars", 2))
        self.user.wait_active(names.MAIN)
        wait_until(lambda: self.user.main().find(*names.CATEGORY_LIST).has("focused"), "the list has the focus")
        self.assert_shown_everywhere(SHIPPED + ["Garden", "Boat"])

    def test_enter_opens_the_selected_category_and_escape_closes_it(self):
        self.open_categories()
        self.select("Garden")
        self.desk.input.key("Return")
        dialog = self.wait_dialog()
        self.assertEqual(dialog.find(*names.CATEGORY_NAME).text, "Garden")
        wait_until(lambda: dialog.find(*names.CATEGORY_DESCRIPTION).has("focused"), "the description has the focus")
        self.desk.input.type("thrown away")
        self.desk.input.key("Escape")
        self.user.answer(names.not_saved("Garden"), names.DISCARD)
        self.user.wait_hidden(names.CATEGORY_DIALOG)
        self.assertEqual(self.stored("Garden")["cat_desc"], "")
        self.user.wait_active(names.MAIN)
        self.desk.input.key("Return")
        dialog = self.wait_dialog()
        wait_until(lambda: dialog.find(*names.CATEGORY_DESCRIPTION).has("focused"), "the description has the focus")
        self.assertEqual(dialog.find(*names.CATEGORY_DESCRIPTION).text, "")
        self.desk.input.type("Beds")
        self.desk.input.key("o", "Alt_L")
        self.user.wait_hidden(names.CATEGORY_DIALOG)
        self.assertEqual(self.stored("Garden")["cat_desc"], "Beds")

    def test_delete_asks_and_takes_the_tasks_along_only_after_yes(self):
        main_window = self.user.main()
        self.user.choose(main_window, names.FILTER_CATEGORY, "Garden")
        self.user.wait_rows(["Sow"])
        self.open_categories()
        self.select("Garden")
        question = names.delete_category_question("Garden")
        self.desk.input.key("Delete")
        self.user.access.message_box(question)
        self.user.answer(question, names.NO)
        self.assertEqual(self.listed(), SHIPPED + ["Garden"])
        self.assertIsNotNone(self.store.task_named("Sow"))

        self.user.wait_active(names.MAIN)
        self.desk.input.key("Delete")
        box = self.user.access.message_box(question)
        self.desk.input.key("y", "Alt_L")
        wait_until(lambda: box not in self.user.access.windows(), "the question closes")
        self.assert_shown_everywhere(SHIPPED)
        self.assertIsNone(self.stored("Garden"))
        self.assertEqual([task["task_name"] for task in self.store.tasks()], ["Report"])
        self.user.open_page("Tasks")
        self.assertEqual(main_window.find(*names.FILTER_CATEGORY).name, "All", "the filter's category is gone")
        self.user.wait_rows(["Report"])
        self.open_categories()

    def test_the_delete_button_selects_the_neighbour_of_what_it_deleted(self):
        self.open_categories()
        for gone, neighbour in (("Garden", "Appointments"), ("Personal", "Work")):
            self.select(gone)
            self.user.click_control(self.user.main(), names.DELETE_CATEGORY)
            self.user.answer(names.delete_category_question(gone), names.YES)
            wait_until(lambda name=gone: name not in self.listed(), f"'{gone}' is gone")
            self.wait_selected(neighbour)


class AlwaysOnTopTest(CategoriesCase):
    always_on_top = 1

    def test_the_dialog_its_file_dialog_and_its_message_open_above_one_another(self):
        self.open_categories()
        dialog = self.open_new()
        window = self.user.window(names.CATEGORY_DIALOG)
        wait_until(lambda: window.topmost, "the dialog is topmost")
        self.assertEqual(window.owner, self.user.window(names.MAIN))
        self.wait_above(window, self.user.window(names.MAIN))
        self.user.click_control(dialog, names.OK)
        self.user.access.message_box(names.NO_CATEGORY_NAME)
        box = wait_until(
            lambda: next((client for client in self.desk.screen.clients() if client.owner == window), None),
            "the message belongs to the dialog")
        self.wait_above(box, window)
        self.user.answer(names.NO_CATEGORY_NAME, names.OK)
        self.user.click(dialog.find(*names.CUSTOM_ICON))
        wait_until(lambda: dialog.find(*names.BROWSE_ICON).has("enabled"), "a picture can be chosen")
        self.user.click_control(dialog, names.BROWSE_ICON)
        self.wait_above(self.user.window(names.OPEN_FILE), window)
        self.user.cancel_file(names.OPEN_FILE)
        self.user.wait_active(names.CATEGORY_DIALOG)
        self.desk.input.key("Escape")
        self.user.answer(names.CATEGORY_NOT_SAVED, names.DISCARD)
        self.user.wait_hidden(names.CATEGORY_DIALOG)
        self.user.wait_active(names.MAIN)
        wait_until(lambda: self.user.main().find(*names.CATEGORY_LIST).has("focused"), "the list has the focus")

    def wait_above(self, upper, lower):
        wait_until(lambda: self.desk.screen.is_above(upper, lower), f"{upper!r} is above {lower!r}")


if __name__ == "__main__":
    main()
