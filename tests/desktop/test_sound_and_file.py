"""Sounds that cannot be played and files with names that a shell would trip over."""
import os
import signal
from datetime import datetime

import names
from case import DesktopCase, main
from polling import wait_until
from sound import write_tone

PAST = datetime(2026, 3, 2, 10, 0, 0)
NOW = datetime(2026, 3, 2, 10, 20, 30)
DUE_NEXT = datetime(2026, 3, 2, 10, 30, 0)


class ReminderCase(DesktopCase):
    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        self.record = self.desk.path("record")

    def run_first_tick(self, count):
        """Starts the program, whose first tick lists `count` reminders; returns once all are marked played."""
        self.clock = self.desk.clock(NOW)
        self.user = self.start(self.clock)
        alert = self.user.alert(count)
        self.user.window(names.alert_title(count))
        wait_until(lambda: all(task["played"] == 1 for task in self.store.tasks() if task["reminder_on"]
                               and task["reminder_date_time"] <= "2026-03-02 10:20:30"), "the tick has ended")
        return alert

    def assert_next_tick_works(self, count):
        """The timer lives on: a reminder that falls due later is listed by a later tick."""
        self.store.add_task("Afterwards", reminder=DUE_NEXT)
        self.clock.set(DUE_NEXT)
        self.user.wait_rows([task["task_name"] for task in self.store.tasks()], self.user.alert(count))
        self.assertEqual(self.user.exit(), 0)


class FileTest(ReminderCase):
    def start_with_file(self, name, *arguments):
        folder = self.desk.path("a folder")
        os.makedirs(folder, exist_ok=True)
        script = os.path.join(folder, name)
        self.desk.write_recorder(script, self.record)
        # Only a shell would make these, wherever it runs.
        self.forbidden = [os.path.join(place, word) for place in
                          (folder, self.desk.environment["HOME"], self.desk.program) for word in ("x", "x.sh", "y")]
        self.store.add_task("Due", reminder=PAST, file=" ".join([script, *arguments]))
        self.run_first_tick(1)
        wait_until(lambda: self.desk.starts_recorded(self.record), "the file is started")
        return script

    def assert_started_exactly(self, *words):
        self.assertEqual(self.desk.starts_recorded(self.record), [list(words)])
        self.assertEqual([path for path in self.forbidden if os.path.exists(path)], [])

    def test_a_path_with_blanks(self):
        script = self.start_with_file("my reminder.sh")
        self.assert_started_exactly(script)

    def test_a_path_with_shell_characters_never_reaches_a_shell(self):
        script = self.start_with_file("a b; touch x$(y).sh")
        self.assert_started_exactly(script)

    def test_a_path_with_quotes_and_letters_of_other_languages(self):
        script = self.start_with_file("Łódź's \"call\" `y` & 100%.sh")
        self.assert_started_exactly(script)

    def test_the_file_is_not_started_by_the_next_tick(self):
        script = self.start_with_file("once.sh")
        self.store.add_task("Afterwards", reminder=DUE_NEXT)
        self.clock.set(DUE_NEXT)
        self.user.alert(2)
        self.assert_started_exactly(script)

    def test_a_command_with_arguments_is_started_by_its_words(self):
        plain = self.desk.path("plain.sh")
        self.desk.write_recorder(plain, self.record)
        self.store.add_task("Due", reminder=PAST, file=f'{plain} "one two" ;touch $(y)')
        self.run_first_tick(1)
        wait_until(lambda: self.desk.starts_recorded(self.record), "the file is started")
        self.assertEqual(self.desk.starts_recorded(self.record), [[plain, "one two", ";touch", "$(y)"]])

    def test_files_that_cannot_be_started_are_passed_over(self):
        plain = self.desk.path("plain.sh")
        self.desk.write_recorder(plain, self.record)
        self.store.add_task("Missing", reminder=PAST, file=self.desk.path("not there.sh"))
        self.store.add_task("A folder", reminder=PAST, file=self.desk.root)
        self.store.add_task("No program", reminder=PAST, file=self.desk.write("note.txt", "not a program"))
        self.store.add_task("Good", reminder=PAST, file=plain)
        alert = self.run_first_tick(4)
        self.user.wait_rows(["Missing", "A folder", "No program", "Good"], alert)
        wait_until(lambda: self.desk.starts_recorded(self.record), "the last file is started")
        self.assert_no_message()
        self.assert_next_tick_works(5)

    def assert_no_message(self):
        titles = [window.title for window in self.desk.screen.clients() if window.pid == self.user.program.pid]
        self.assertCountEqual(titles, [names.MAIN, names.alert_title(4)])


class SilentDeskTest(ReminderCase):
    """No sound server on this desk."""

    def test_the_tick_goes_on(self):
        tone = self.desk.path("tone.wav")
        write_tone(tone)
        plain = self.desk.path("plain.sh")
        self.desk.write_recorder(plain, self.record)
        self.store.add_task("Sounding", reminder=PAST, sound=tone)
        self.store.add_task("Next", reminder=PAST, sound=tone, file=plain)
        alert = self.run_first_tick(2)
        self.user.wait_rows(["Sounding", "Next"], alert)
        wait_until(lambda: self.desk.starts_recorded(self.record), "the file of the second row is started")
        self.user.click_control(alert, names.DISMISS)
        self.user.wait_rows(["Next"], alert)
        self.assert_next_tick_works_after_dismissal()

    def assert_next_tick_works_after_dismissal(self):
        self.store.add_task("Afterwards", reminder=DUE_NEXT)
        self.clock.set(DUE_NEXT)
        wait_until(lambda: self.store.task_named("Afterwards")["played"] == 1, "the next tick comes")
        self.assertEqual(self.user.exit(), 0)


class SoundTest(ReminderCase):
    sound = True

    def test_a_missing_or_broken_sound_does_not_keep_the_next_from_playing(self):
        tone = self.desk.path("tone.wav")
        write_tone(tone, 550, 1.0)
        self.store.add_task("Missing", reminder=PAST, sound=self.desk.path("missing.wav"))
        self.store.add_task("Broken", reminder=PAST, sound=self.desk.write("broken.wav", "RIFF of nothing"))
        self.store.add_task("Good", reminder=PAST, sound=tone)
        alert = self.run_first_tick(3)
        self.user.wait_rows(["Missing", "Broken", "Good"], alert)
        wait_until(lambda: self.desk.sound.loud_seconds() > 0.7, "the good sound plays")
        self.assertAlmostEqual(self.desk.sound.pitch(), 550, delta=20)
        self.assert_next_tick_works(4)

    def test_a_reminder_that_has_played_is_listed_silently_after_a_restart(self):
        tone = self.desk.path("tone.wav")
        write_tone(tone)
        plain = self.desk.path("plain.sh")
        self.desk.write_recorder(plain, self.record)
        self.store.add_task("Old", reminder=PAST, sound=tone, file=plain, played=1)
        self.run_first_tick(1)
        self.assert_next_tick_works(2)
        self.assertEqual(self.desk.starts_recorded(self.record), [])
        self.assertEqual(self.desk.sound.loud_seconds(), 0)

    def test_every_shipped_sound_can_be_heard(self):
        folder = os.path.join(self.desk.program, "sounds")
        shipped = sorted(name for name in os.listdir(folder) if name.endswith(".wav"))
        self.assertTrue(shipped)
        moments = [datetime(2026, 3, 2, 11, minute) for minute in range(len(shipped))]
        for name, moment in zip(shipped, moments):
            self.store.add_task(name, reminder=moment, sound=os.path.join(folder, name))
        self.clock = self.desk.clock(NOW)
        self.user = self.start(self.clock)
        self.user.wait_loaded()
        for number, moment in enumerate(moments, 1):
            heard = self.desk.sound.position()
            self.clock.set(moment)
            self.user.alert(number)
            wait_until(lambda start=heard: self.desk.sound.loud_seconds(start) > 0.2, f"{shipped[number - 1]} plays")


class BrokenSoundTest(ReminderCase):
    """A sound server that does not do its work, or dies of it, stops the sound and nothing else."""

    sound = True

    def setUp(self):
        super().setUp()
        self.tone = self.desk.path("tone.wav")
        write_tone(self.tone, 550, 5.0)
        self.store.add_task("Due", reminder=PAST, sound=self.tone)

    def assert_works(self):
        """Controls answer, a later reminder comes up with its sound, and the program ends."""
        self.user.click_control(self.user.main(), ("option", "Active tasks only"))
        self.user.click_control(self.user.main(), ("option", "All tasks"))
        self.store.add_task("Afterwards", reminder=DUE_NEXT, sound=self.tone)
        self.clock.set(DUE_NEXT)
        self.user.wait_rows(["Due", "Afterwards"], self.user.alert(2))
        self.assertEqual(self.user.exit(), 0)

    def test_a_server_that_takes_calls_and_never_answers(self):
        self.desk.sound.process.send_signal(signal.SIGSTOP)
        self.run_first_tick(1)
        self.assert_works()

    def test_a_server_that_stops_in_the_middle_of_a_sound(self):
        self.run_first_tick(1)
        wait_until(lambda: self.desk.sound.loud_seconds() > 0.3, "the sound plays")
        self.desk.sound.process.send_signal(signal.SIGSTOP)
        self.assert_works()

    def test_a_server_that_dies_in_the_middle_of_a_sound(self):
        self.run_first_tick(1)
        wait_until(lambda: self.desk.sound.loud_seconds() > 0.3, "the sound plays")
        self.desk.sound.process.kill()
        self.assert_works()

    def test_a_sound_library_that_aborts(self):
        record = self.desk.path("aborted")
        with open(os.path.join(self.desk.program, "ambertask_sound"), "w", encoding="ascii") as player:
            player.write(f"#!/bin/sh\necho started >> '{record}'\nkill -ABRT $$\n")
        self.run_first_tick(1)
        wait_until(lambda: os.path.exists(record), "the player has aborted")
        self.assert_works()

    def test_the_program_can_be_ended_while_it_sounds(self):
        self.run_first_tick(1)
        wait_until(lambda: self.desk.sound.loud_seconds() > 0.3, "the sound plays")
        self.assertEqual(self.user.exit(), 0)
        self.assertEqual(self.user.program.errors(), "")


if __name__ == "__main__":
    main()
