"""The help file in a viewer that is not ours."""
import os
import subprocess

from case import DesktopCase, main
from polling import wait_rest, wait_until

TITLE = "Ambertask Help"
# The program asks for the numbers from 0 on.
CONTEXTS = 5


class HelpFileTest(DesktopCase):
    tray = False

    def picture(self, *arguments):
        """What the viewer shows when it opens the file so."""
        file = os.path.join(self.desk.program, "Ambertask1.1.chm")
        viewer = self.desk.start_beside(["xchm", *arguments, file])
        window = wait_until(
            lambda: next((one for one in self.desk.screen.clients() if one.title.endswith(": " + TITLE)), None),
            "the viewer has read the title of the file")
        window.activate()
        wait_until(lambda: window.active, "the viewer is in front")
        picture = wait_rest(lambda: self.pixels(window), "the topic rests", polls=10)
        self.desk.end(viewer)
        wait_until(lambda: not self.desk.screen.clients(), "the viewer is gone")
        return picture

    def pixels(self, window):
        return subprocess.run(["import", "-window", hex(window.id), "RGB:-"], env=self.desk.environment, check=True,
                              capture_output=True).stdout

    def test_the_viewer_shows_the_first_topic_and_another_one_for_every_context_number(self):
        first = self.picture()
        self.assertGreater(len(set(first)), 20, "nothing but a ground is shown")
        topics = [self.picture(f"--contextid={number}") for number in range(CONTEXTS)]
        self.assertEqual(len({first, *topics}), CONTEXTS + 1, "two of them show the same")

    def test_a_number_that_has_no_topic_shows_the_first_one(self):
        self.assertEqual(self.picture(f"--contextid={CONTEXTS}"), self.picture())


main()
