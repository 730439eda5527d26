# SPDX-License-Identifier: GPL-3.0-or-later
"""The main job on a Wayland desktop, by keyboard; what the compositor decides is accepted."""

import keyboard
from element import gone
from picture import Picture, settled
from program import ENTRY
from scenarios import about, editing, list_work, tips
from waiting import wait_equal, wait_for
from wayland import PANEL, is_shown

WAYLAND = True
FORM = "Indicatif présent, je"
# The about window: its size, how far below its top the folded corner ends, the colour there.
BUBBLE, FOLD, BAND = (470, 316), 40, (29, 79, 145)
LIMIT = 40  # seconds; a demonstration takes its time


def a_verb_is_typed_and_conjugated(program):
    program.start()
    keyboard.type_text("finir")
    program.box(ENTRY).await_text("finir")
    keyboard.keys("Return")
    program.box("Indicatif présent, nous").await_text("finissons")
    keyboard.keys("ctrl+q")
    program.message("Czy na pewno chcesz zakończyć program?")
    keyboard.keys("alt+t")
    program.await_end()
    assert program.told() == ""


def a_verb_is_picked_from_the_list(program):
    program.start()
    item = program.menu_item("Czasownik", "Lista")
    with keyboard.held("alt", "c"):
        wait_for(lambda: item.has("showing"), "the open menu")
    keyboard.keys("l")
    listed = program.dialog("Lista czasowników")
    wait_for(listed.is_active, "the list to come forward")
    list_work._work_in(listed, program)
    assert program.told() == ""


def an_edited_verb_is_saved_and_found_after_a_restart(program):
    editing.an_edited_verb_is_saved_and_found_after_a_restart(program)
    assert program.told() == ""


def _demonstrate(program, keys):
    """Chooses a demonstration by keys, as the user's fresh action, and answers its announcement."""
    program.menu_item("Pomoc", "Jak odmienić czasownik?").press()
    tip = program.dialog(tips.TIP)
    wait_for(tip.is_active, "the tip to come forward")
    keyboard.keys(*keys)
    announcement = program.message(tips.ANNOUNCEMENT)
    wait_for(announcement.is_active, "the announcement to come forward")
    keyboard.keys("Return")
    tip.await_end()


def _roles_of_windows(program):
    """Nothing while one of them closes between being found and being asked."""
    try:
        return [window.role for window in program.windows()]
    except gone():
        return None


def _check_it_rests(program, verb):
    """The demonstration is over: the next verb can be typed, and nothing was complained of."""
    wait_equal(lambda: _roles_of_windows(program), ["frame"], "the windows")
    program.box(ENTRY).await_text(verb)
    wait_for(lambda: program.main_window().has("active"), "the main window in front")
    assert program.told() == ""


def the_first_demonstration_types_a_verb_and_conjugates_it(program):
    program.start()
    _demonstrate(program, ["shift+Tab", "shift+Tab", "shift+Tab", "shift+Tab", "space"])
    wait_equal(lambda: program.box(FORM).text, "chante", "the conjugated form", LIMIT)
    _check_it_rests(program, "chanter")


def the_second_demonstration_picks_a_verb_from_the_list(program):
    program.start()
    _demonstrate(program, ["shift+Tab", "shift+Tab", "shift+Tab", "space"])
    wait_equal(lambda: program.box(FORM).text, "nais", "the conjugated form", LIMIT)
    _check_it_rests(program, "naître")


def the_help_is_opened_turned_and_left(program):
    program.start()
    keyboard.keys("Tab", "F1")
    page = program.dialog("Odmiennik – pomoc")
    wait_for(page.is_active, "the help to come forward")
    text = page.part("Strona pomocy")
    wait_for(lambda: text.text.startswith("Infinitif passé"), "the page about the box")
    keyboard.keys("alt+p")
    wait_for(lambda: text.text.startswith("Witaj w"), "the first page")
    keyboard.keys("Escape")
    page.await_end()
    wait_for(lambda: program.box("Infinitif passé").has("focused"), "the keyboard in the box")
    assert program.told() == ""


def nothing_is_promised_to_stay_on_top(program):
    program.start()
    assert not program.menu_item("Widok", "Zawsze na wierzchu").has("enabled")
    assert program.menu_item("Widok", "Kolory").has("enabled")


def _bubble(picture):
    """(left, top) of the about window: where its band is as broad as it is."""
    for y in range(PANEL, picture.height):
        row = picture.row(y)
        if row.count(BAND) == BUBBLE[0]:
            return row.index(BAND), y - FOLD
    return None


def the_about_window_shows_what_is_behind_its_bubble(program):
    program.start()
    before = settled(is_shown)
    program.menu_item("Pomoc", "O programie...").press()
    window = program.dialog(about.TITLE)
    wait_for(window.is_active, "the window to come forward")
    left, top = wait_for(lambda: _bubble(Picture()), "the bubble on the screen")
    now = Picture()
    for x in (left, left + BUBBLE[0] - 1):
        for y in (top, top + BUBBLE[1] - 1):
            assert now.pixel(x, y) == before.pixel(x, y), f"the corner at {x}, {y}"
    keyboard.keys("Return")
    window.await_end()
    assert program.told() == ""


def dialogs_have_one_button_in_their_title_bars_and_it_closes_them(program):
    program.start()
    for keys, caption in ((["ctrl+l"], "Lista czasowników"), (["ctrl+q"], "Odmiennik")):
        keyboard.keys(*keys)
        window = program.dialog(caption)
        wait_for(window.is_active, f"{caption!r} in front")
        window.button("Zamknij okno").press()
        window.await_end()
    assert program.is_running()
    assert program.told() == ""
