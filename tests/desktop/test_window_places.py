"""Where windows come up: within the screen, where the user left them, and back on a screen that is there."""
import signal

import desktop
import names
from case import DesktopCase, main
from polling import wait_rest, wait_until

SMALL = (1024, 640)


class PlaceCase(DesktopCase):
    screen_size = (1280, 960)

    def make_desk(self):
        usual = desktop.SCREEN_SIZE
        desktop.SCREEN_SIZE = "{}x{}x24".format(*self.screen_size)
        self.addCleanup(setattr, desktop, "SCREEN_SIZE", usual)
        return super().make_desk()

    def setUp(self):
        super().setUp()
        self.store.category("Work")

    def place(self, title):
        window = self.user.window(title)
        return wait_rest(window.outer_place, f"window '{title}' rests")

    def assert_inside(self, title, screen):
        x, y, width, height = self.place(title)
        self.assertTrue(x >= 0 and y >= 0 and x + width <= screen[0] and y + height <= screen[1],
                        f"window '{title}', {width} x {height} at {x} {y}, reaches beyond {screen}")

    def toggle(self):
        """Hides or shows the main window as the tray icon does."""
        shown = self.user.shows(names.MAIN)
        self.user.double_click_tray()
        wait_until(lambda: self.user.shows(names.MAIN) != shown, "the main window is toggled")

    def press(self, page, control):
        self.user.open_page(page).find(*control).press()


class UsualScreenTest(PlaceCase):
    def test_the_first_window_stands_in_the_middle_of_the_screen(self):
        self.user = self.start()
        self.user.wait_loaded()
        x, y, width, height = self.place(names.MAIN)
        # As exactly as the frame is known before the window is shown.
        self.assertLess(abs(2 * x + width - self.screen_size[0]), 24)
        self.assertLess(abs(2 * y + height - self.screen_size[1]), 48)

    def test_the_next_start_finds_the_main_window_where_it_was(self):
        self.user = self.start()
        self.user.wait_loaded()
        self.user.window(names.MAIN).move(200, 150, 900, 640)
        left = self.place(names.MAIN)
        self.assertEqual(self.user.exit(), 0)
        self.user = self.start()
        self.user.wait_loaded()
        self.assertEqual(self.place(names.MAIN), left)
        # Hidden when the session ends.
        self.user.window(names.MAIN).move(120, 90, 900, 660)
        left = self.place(names.MAIN)
        self.toggle()
        self.user.program.send(signal.SIGTERM)
        self.assertEqual(self.user.program.wait_end(), 0)
        self.user = self.start()
        self.user.wait_loaded()
        self.assertEqual(self.place(names.MAIN), left)

    def test_a_dialog_comes_up_over_its_owner(self):
        self.user = self.start()
        self.user.wait_loaded()
        self.user.window(names.MAIN).move(300, 200, 960, 640)
        owner = self.place(names.MAIN)
        self.press("Tasks", names.ADD)
        dialog = self.place(names.TASK_DIALOG)
        self.assertLess(abs(2 * dialog[0] + dialog[2] - 2 * owner[0] - owner[2]), 24)
        self.assertLess(abs(2 * dialog[1] + dialog[3] - 2 * owner[1] - owner[3]), 48)

    def test_a_window_does_not_move_by_being_hidden_and_shown(self):
        self.user = self.start()
        self.user.wait_loaded()
        for moved in (None, (150, 90, 900, 700)):
            if moved:
                self.user.window(names.MAIN).move(*moved)
            before = self.place(names.MAIN)
            for _ in range(3):
                self.toggle()
                self.toggle()
                self.assertEqual(self.place(names.MAIN), before)

    def test_a_dialog_comes_up_where_the_user_left_it(self):
        self.user = self.start()
        self.user.wait_loaded()
        self.press("Tasks", names.ADD)
        self.user.window(names.TASK_DIALOG).move(20, 30, 700, 650)
        before = self.place(names.TASK_DIALOG)
        for _ in range(3):
            self.user.window(names.TASK_DIALOG).close()
            self.user.wait_hidden(names.TASK_DIALOG)
            self.press("Tasks", names.ADD)
            self.assertEqual(self.place(names.TASK_DIALOG), before)


class LostScreenTest(PlaceCase):
    screen_size = (2048, 960)

    def test_a_window_comes_back_when_its_screen_has_gone(self):
        self.user = self.start()
        self.user.wait_loaded()
        self.press("Tasks", names.ADD)
        self.user.window(names.TASK_DIALOG).move(1300, 300, 700, 620)
        self.place(names.TASK_DIALOG)
        self.user.window(names.TASK_DIALOG).close()
        self.user.wait_hidden(names.TASK_DIALOG)
        self.user.window(names.MAIN).move(1060, 250, 960, 640)
        self.place(names.MAIN)
        tray = self.user.tray_icon().center()
        self.assertGreater(tray[0], SMALL[0])
        self.toggle()
        self.desk.screen.resize(*SMALL)
        wait_until(lambda: self.desk.screen.size() == SMALL, "the screen is small")
        wait_until(lambda: self.user.tray_icon().center()[0] < SMALL[0], "the notification area has followed")
        self.toggle()
        self.assert_inside(names.MAIN, SMALL)
        self.press("Tasks", names.ADD)
        self.assert_inside(names.TASK_DIALOG, SMALL)


class SmallScreenTest(PlaceCase):
    screen_size = SMALL

    def test_every_window_fits_even_with_letters_of_double_size(self):
        for environment in ({}, {"QT_FONT_DPI": "192", "QT_ENABLE_HIGHDPI_SCALING": "0"}):
            with self.subTest(environment=environment):
                self.user = self.start(environment=environment)
                self.user.wait_loaded()
                self.assert_inside(names.MAIN, SMALL)
                self.press("Tasks", names.ADD)
                self.assert_inside(names.TASK_DIALOG, SMALL)
                self.user.window(names.TASK_DIALOG).close()
                self.press("Categories", names.ADD_CATEGORY)
                self.assert_inside(names.CATEGORY_DIALOG, SMALL)
                self.user.window(names.CATEGORY_DIALOG).close()
                self.press("Tasks", ("button", "Print"))
                self.assert_inside(names.REPORT, SMALL)
                self.user.window(names.REPORT).close()
                self.press("Tasks", ("button", "Help"))
                self.assert_inside("Ambertask Help", SMALL)
                self.user.window("Ambertask Help").close()
                self.assertEqual(self.user.exit(), 0)


if __name__ == "__main__":
    main()
