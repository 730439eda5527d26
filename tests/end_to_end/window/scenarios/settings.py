# SPDX-License-Identifier: GPL-3.0-or-later
"""What is kept between two runs, and what is asked before it is given up."""

import fcntl
import os
import pathlib
import signal

from message import Message
from waiting import wait_for

UNREADABLE = ("Wystąpił błąd podczas odczytywania pliku konfiguracyjnego. "
              "Program może działać niepoprawnie.")
EXIT_QUESTION = "Czy na pewno chcesz zakończyć program?"
RESET_QUESTION = "Ustawienia zostaną zresetowane, a program zamknięty."
# Seven verbs, two colours, twelve conjugations, twelve runs.
KEPT = b"7\r\n255\r\n32768\r\n12\r\n1112\r\n"


def _settings_file(program):
    return program.folder / "Werbolin.cfg"


def the_first_start_writes_five_lines(program):
    program.forget_user_store()
    program.launch()
    Message(program.window("Porada dnia")).answer("OK")
    lines = program.settings()
    assert len(lines) == 5
    assert (lines[0], lines[3], lines[4]) == ("0", "0", "10")
    assert all(0 <= int(colour) <= 0xFFFFFF for colour in lines[1:3])
    program.conjugate("finir")
    program.box("Indicatif présent, nous").await_text("finissons")
    program.quit()
    assert program.settings() == [*lines[:3], "1", "11"]


def a_tip_that_was_switched_off_stays_away(program):
    program.forget_user_store()
    program.launch()
    tip = Message(program.window("Porada dnia"))
    tip.check_box().press()
    wait_for(lambda: not tip.check_box().has("checked"), "the tip to be switched off")
    tip.answer("OK")
    program.quit()
    program.start()
    assert [window.role for window in program.windows()] == ["frame"]


def counters_and_colours_come_back_as_they_were(program):
    _settings_file(program).write_bytes(KEPT)
    program.start()
    program.conjugate("finir")
    program.box("Indicatif présent, nous").await_text("finissons")
    program.quit()
    assert program.settings() == ["7", "255", "32768", "13", "1113"]


def damaged_settings_are_told_once_and_the_program_works_on(program):
    _settings_file(program).write_bytes(b"0\r\n255\r\n255\r\n0\r\nzz\r\n")
    program.launch()
    program.message(UNREADABLE).answer("OK")
    program.conjugate("finir")
    program.box("Indicatif présent, nous").await_text("finissons")
    assert program.messages() == []


def the_exit_question_answered_no_keeps_the_program(program):
    _settings_file(program).write_bytes(KEPT)
    program.start()
    program.menu_item("Plik", "Koniec").press()
    question = program.message(EXIT_QUESTION)
    assert question.button("Nie").has("focused"), "No is the default"
    question.answer("Nie")
    program.conjugate("finir")
    program.box("Indicatif présent, nous").await_text("finissons")
    assert _settings_file(program).read_bytes() == KEPT


def the_exit_question_answered_yes_saves_and_ends(program):
    _settings_file(program).write_bytes(KEPT)
    program.start()
    program.quit()
    assert program.settings() == ["7", "255", "32768", "12", "1113"]


def ended_by_the_system_it_saves_without_a_question(program):
    program.start()
    program.conjugate("finir")
    program.box("Indicatif présent, nous").await_text("finissons")
    program.terminate()
    program.await_end()
    assert program.settings()[3:] == ["1", "11"]


def resetuj_cancelled_changes_nothing(program):
    _settings_file(program).write_bytes(KEPT)
    program.start()
    program.conjugate("resetuj")
    program.message(RESET_QUESTION).answer("Anuluj")
    assert _settings_file(program).read_bytes() == KEPT
    program.quit()
    assert program.settings() == ["7", "255", "32768", "12", "1113"]


def resetuj_confirmed_writes_the_defaults_and_ends_at_once(program):
    _settings_file(program).write_bytes(KEPT)
    program.start()
    program.conjugate("resetuj")
    program.message(RESET_QUESTION).answer("OK")
    program.await_end()
    lines = program.settings()
    assert (lines[0], lines[3], lines[4]) == ("0", "0", "10")
    assert lines[1:3] != ["255", "32768"]


def the_marker_of_a_first_start_ends_the_program(program):
    (program.folder / "tmp.dat").write_bytes(b"")
    program.launch()
    message = program.message(
        "Przed pierwszym uruchomieniem programu należy zrestartować system, "
        "w przeciwnym wypadku program nie będzie działał prawidłowo!")
    assert message.title == "Zrestartuj system!"
    message.answer("OK")
    program.await_end()


def _start_beside(program, make_store):
    """Starts with something else in the place of the user's own settings, which stays as it is."""
    program.forget_user_store()
    make_store(program.user_store)
    before = os.lstat(program.user_store)
    program.launch()
    program.message(UNREADABLE).answer("OK")
    Message(program.window("Porada dnia")).answer("OK")
    program.conjugate("finir")
    program.box("Indicatif présent, nous").await_text("finissons")
    program.menu_item("Czasownik", "Autouzupełnianie").press()
    assert program.messages() == []
    program.quit()
    after = os.lstat(program.user_store)
    assert (before.st_ino, before.st_size) == (after.st_ino, after.st_size)


def a_user_store_that_is_a_pipe_is_told_and_left_alone(program):
    _start_beside(program, os.mkfifo)


def a_user_store_without_an_end_is_told_and_left_alone(program):
    _start_beside(program, lambda store: store.symlink_to("/dev/zero"))


def a_user_store_of_four_gigabytes_is_told_and_left_alone(program):
    def make_sparse(store):
        store.touch()
        os.truncate(store, 4 << 30)
    _start_beside(program, make_sparse)


def a_second_signal_ends_a_program_that_waits(program):
    program.start()
    folder = os.open(program.folder, os.O_RDONLY)
    fcntl.flock(folder, fcntl.LOCK_EX)  # as another program that writes; waited for
    program.terminate()
    wait_for(lambda: not program.catches(signal.SIGTERM), "the first signal to be taken")
    program.terminate()
    program.await_death(signal.SIGTERM)
    os.close(folder)


def where_it_may_not_write_its_files_are_kept_with_the_user(program):
    program.leave_its_files_behind()
    own = pathlib.Path(program.executable).parent
    if os.geteuid() == 0:  # whom permissions mean nothing
        program.wrapper = ["setpriv", "--bounding-set=-all"]
    program.is_told_its_folder = False
    program.folder = pathlib.Path(os.environ["HOME"], ".local", "share", "odmiennik")
    own.chmod(0o555)
    try:
        for run_count in ("11", "12"):
            program.start()
            program.quit()
            assert program.settings()[4] == run_count
        assert os.listdir(own) == [os.path.basename(program.executable)]
    finally:
        own.chmod(0o755)


def a_folder_is_taken_byte_for_byte(program):
    beside = program.folder.with_name("folders")
    program.folder = beside / os.fsdecode(b"\xff\xe9 \xc5")
    program.folder.mkdir(parents=True)
    program.start()
    program.quit()
    assert os.listdir(os.fsencode(beside)) == [b"\xff\xe9 \xc5"]
    assert program.settings()[4] == "11"
