# SPDX-License-Identifier: GPL-3.0-or-later
"""A learner works with the list of verbs."""

import keyboard
from program import ENTRY
from waiting import wait_equal, wait_for

FORM = "Indicatif présent, je"
SAVE_QUESTION = "Zapisać edytowany czasownik - 'aimer'?"


def _open(program):
    program.menu_item("Czasownik", "Lista").press()
    return _opened(program)


def _opened(program):
    listed = program.dialog("Lista czasowników")
    wait_for(listed.is_active, "the list to come forward")
    return listed


def _await_count(listed, number):
    wait_for(lambda: f"{number}/7342" in listed.texts(), f"{number} verbs in the list")


def _choose_letter(listed, letter, number):
    """The list has just been opened: the letter is typed into the choice."""
    keyboard.keys(letter)
    _await_count(listed, number)


def _pick(listed, verb, typed):
    """Goes to the list, types and waits until the verb is selected."""
    verbs = listed.part("Czasowniki")
    keyboard.keys("Tab")
    wait_for(lambda: verbs.has("focused"), "Tab's way to the verbs")
    keyboard.type_text(typed)
    wait_equal(verbs.selected_entry, verb, "selected verb")


def _begin_change(program):
    """Edit mode with one form of "aimer" changed; the program has been started."""
    program.conjugate("aimer")
    wait_equal(lambda: program.box(ENTRY).selection, "aimer", "the conjugated verb, selected")
    keyboard.keys("F2")
    program.await_title('Odmiennik - edycja "aimer"')
    form = program.box(FORM)
    form.focus()
    keyboard.keys("End")
    keyboard.type_text("change")
    form.await_text("aimechange")


def _save(program, verb, form):
    program.conjugate(verb)
    program.box(FORM).await_text(form)
    keyboard.keys("F2")
    program.await_title(f'Odmiennik - edycja "{verb}"')
    keyboard.keys("ctrl+s")
    program.await_title("Odmiennik")


def _records(program):
    return (program.folder / "Czasowniki.dat").read_bytes().splitlines()


def _work_in(listed, program):
    """Two verbs of the list that has come forward are conjugated, and it is closed, by keys alone."""
    _choose_letter(listed, "b", 329)
    _pick(listed, "boire", typed="boi")
    keyboard.keys("Return")
    program.box(FORM).await_text("bois")
    assert program.box(ENTRY).text == "boire"
    assert listed.is_active(), "the next verb can be picked at once"
    keyboard.keys("Down", "Return")
    program.box(ENTRY).await_text("boiser")
    program.box(FORM).await_text("boise")
    keyboard.keys("alt+z")
    listed.await_end()


def a_verb_is_picked_and_conjugated_by_keys_alone(program):
    program.start()
    keyboard.keys("alt+c")
    item = program.menu_item("Czasownik", "Lista")
    wait_for(lambda: item.has("focused"), "the open menu")
    keyboard.keys("l")
    _work_in(_opened(program), program)


def a_double_click_conjugates(program):
    program.start()
    listed = _open(program)
    _choose_letter(listed, "z", 21)
    verbs = listed.part("Czasowniki")
    entry = next(entry for entry in verbs.children() if entry.name == "zébrer")
    entry.click()
    wait_equal(verbs.selected_entry, "zébrer", "selected verb")
    assert program.box(ENTRY).text == "infinitif"
    entry.click(times=2)
    program.box(FORM).await_text("zèbre")


def a_letter_without_verbs_leaves_an_empty_list(program):
    program.start()
    listed = _open(program)
    _choose_letter(listed, "z", 21)
    assert listed.button("Odmień").has("enabled")
    keyboard.keys("Up")
    _await_count(listed, 4)
    keyboard.keys("Up")
    _await_count(listed, 0)
    assert not listed.part("Czasowniki").has_parts()
    for caption in ("Odmień", "Edytuj", "Usuń", "Drukuj"):
        assert not listed.button(caption).has("enabled"), caption


def a_listed_verb_is_edited(program):
    program.start()
    listed = _open(program)
    _choose_letter(listed, "b", 329)
    _pick(listed, "boire", typed="boi")
    keyboard.keys("alt+e")
    program.await_title('Odmiennik - edycja "boire"')
    form = program.box(FORM)
    form.await_text("bois")
    wait_for(lambda: not form.has("read only"), "the boxes to be editable")
    wait_for(lambda: program.main_window().has("active"), "the main window to come forward")


def a_new_verb_is_begun_from_the_list(program):
    program.start()
    listed = _open(program)
    keyboard.keys("alt+n")
    program.await_title('Odmiennik - edycja "infinitif"')
    wait_for(lambda: program.box(ENTRY).has("focused"), "the keyboard in the entry box")
    keyboard.type_text("zyzer")
    program.box(ENTRY).await_text("zyzer")
    listed.answer("Zamknij")


def another_verb_asks_for_the_edited_one_and_no_discards_it(program):
    program.start()
    _begin_change(program)
    listed = _open(program)
    _choose_letter(listed, "z", 21)
    listed.button("Odmień").press()
    program.message(SAVE_QUESTION).answer("Nie")
    program.box(FORM).await_text("zappe")
    assert program.box(ENTRY).text == "zapper"
    assert program.main_window().name == "Odmiennik"
    assert not (program.folder / "Czasowniki.dat").exists()


def another_verb_asks_for_the_edited_one_and_yes_saves_it(program):
    program.start()
    _begin_change(program)
    listed = _open(program)
    _choose_letter(listed, "z", 21)
    listed.button("Odmień").press()
    program.message(SAVE_QUESTION).answer("Tak")
    program.box(FORM).await_text("zappe")
    assert program.main_window().name == "Odmiennik"
    records = _records(program)
    assert len(records) == 1
    assert records[0].startswith(b"aimechange,")


def closed_behind_the_question_it_stays_and_the_edited_verb_is_saved(program):
    program.start()
    _begin_change(program)
    listed = _open(program)
    _choose_letter(listed, "z", 21)
    listed.button("Odmień").press()
    question = program.message(SAVE_QUESTION)
    listed.button("Zamknij").press()
    question.answer("Tak")
    program.box(FORM).await_text("zappe")
    assert _records(program)[0].startswith(b"aimechange,")
    listed.answer("Zamknij")
    program.quit()


def the_own_verbs_are_listed_and_one_is_deleted(program):
    program.start()
    for verb, form in (("aimer", "aime"), ("finir", "finis"), ("boire", "bois")):
        _save(program, verb, form)
    listed = _open(program)
    _await_count(listed, 3)
    _pick(listed, "finir", typed="f")
    keyboard.keys("alt+u")
    _await_count(listed, 2)
    verbs = listed.part("Czasowniki")
    assert [entry.name for entry in verbs.children()] == ["aimer", "boire"]
    wait_equal(verbs.selected_entry, "boire", "the neighbour, selected")
    listed.answer("Zamknij")
    program.quit()
    assert program.settings()[0] == "2"
    assert [record.split(b",")[0] for record in _records(program)] == [b"aime", b"bois"]


def deleting_the_last_verb_leaves_nothing_to_do(program):
    program.start()
    _save(program, "aimer", "aime")
    listed = _open(program)
    _await_count(listed, 1)
    listed.button("Usuń").press()
    _await_count(listed, 0)
    for caption in ("Odmień", "Edytuj", "Usuń", "Drukuj"):
        wait_for(lambda caption=caption: not listed.button(caption).has("enabled"),
                 f"{caption!r} to be unavailable")
    listed.answer("Zamknij")
    program.quit()
    assert program.settings()[0] == "0"


def closing_leaves_edit_mode_as_it_is(program):
    program.start()
    _begin_change(program)
    listed = _open(program)
    listed.answer("Zamknij")
    assert program.main_window().name == 'Odmiennik - edycja "aimer"'
    assert program.box(FORM).text == "aimechange"
    assert program.messages() == []
    listed = _open(program)
    _await_count(listed, 0)
    keyboard.keys("Escape")
    listed.await_end()
