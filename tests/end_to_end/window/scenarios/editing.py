# SPDX-License-Identifier: GPL-3.0-or-later
"""A learner corrects and adds verbs."""

import keyboard
from program import ENTRY
from waiting import wait_equal, wait_for

FORM = "Indicatif présent, je"


def _edit(program, verb):
    """By the keyboard: the menu item has another caption once a verb has been edited."""
    program.conjugate(verb)
    wait_equal(lambda: program.box(ENTRY).selection, verb, "the conjugated verb, selected")
    keyboard.keys("F2")
    program.await_title(f'Odmiennik - edycja "{verb}"')


def _records(program):
    """The lines of the user's verbs."""
    return (program.folder / "Czasowniki.dat").read_bytes().splitlines()


def _write(program, box_name, text):
    box = program.box(box_name)
    wait_for(lambda: not box.has("read only"), f"{box_name!r} to be editable")
    box.focus()
    keyboard.keys("ctrl+a")
    keyboard.type_text(text)
    box.await_text(text)


def _save_changed_verb(program, verb, text):
    """The program runs afterwards and shows the saved verb."""
    _edit(program, verb)
    _write(program, FORM, text)
    keyboard.keys("ctrl+s")
    program.await_title("Odmiennik")
    program.box(FORM).await_text(text)


def an_edited_verb_is_saved_and_found_after_a_restart(program):
    program.start()
    _save_changed_verb(program, "aimer", "aimechange")
    assert program.box(FORM).has("read only")
    program.quit()
    assert program.settings()[0] == "1"

    program.start()
    program.conjugate("aimer")
    program.box(FORM).await_text("aimechange")
    program.box("Indicatif présent, tu").await_text("aimes")


def saving_twice_keeps_one_record(program):
    program.start()
    _save_changed_verb(program, "aimer", "aimechange")
    _save_changed_verb(program, "aimer", "aimeencore")
    program.quit()
    assert program.settings()[0] == "1"
    records = _records(program)
    assert len(records) == 1
    assert records[0].startswith(b"aimeencore,")


def a_verb_that_is_no_infinitive_is_not_saved(program):
    program.start()
    _edit(program, "aimer")
    _write(program, ENTRY, "xyz")
    program.menu_item("Plik", "Zapisz Czasownik").press()
    program.message("Musisz wpisać poprawny bezokolicznik.").answer("OK")
    assert program.main_window().name == 'Odmiennik - edycja "xyz"'
    assert not (program.folder / "Czasowniki.dat").exists()


def the_menu_leads_into_edit_mode_and_out_of_it(program):
    program.start()
    program.conjugate("aimer")
    program.box(FORM).await_text("aime")
    program.menu_item("Czasownik", "Edytuj").press()
    program.await_title('Odmiennik - edycja "aimer"')
    program.menu_item("Czasownik", "Koniec edycji").press()
    program.await_title("Odmiennik")
    assert program.menu_item("Czasownik", "Edytuj czasownik").has("enabled")
    assert program.box(FORM).has("read only")
    assert program.messages() == []


def a_new_verb_is_typed_saved_and_found(program):
    program.start()
    program.menu_item("Czasownik", "Nowy").press()
    program.await_title('Odmiennik - edycja "infinitif"')
    assert program.box(FORM).text == ""
    _write(program, ENTRY, "zyzer")
    _write(program, FORM, "zyze")
    program.menu_item("Plik", "Zapisz Czasownik").press()
    program.await_title("Odmiennik")
    program.conjugate("finir")
    program.box(FORM).await_text("finis")
    program.conjugate("zyzer")
    program.box(FORM).await_text("zyze")
    assert program.messages() == []


def leaving_with_changes_asks_and_no_discards_them(program):
    program.start()
    _edit(program, "aimer")
    _write(program, FORM, "aimechange")
    program.menu_item("Czasownik", "Koniec edycji").press()
    program.message("Zapisać edytowany czasownik - 'aimer'?").answer("Nie")
    program.await_title("Odmiennik")
    program.box(FORM).await_text("aime")
    assert not (program.folder / "Czasowniki.dat").exists()


def closing_with_changes_asks_and_yes_saves_them(program):
    program.start()
    _edit(program, "aimer")
    _write(program, FORM, "aimechange")
    program.menu_item("Plik", "Koniec").press()
    program.message("Czy na pewno chcesz zakończyć program?").answer("Tak")
    program.message("Zapisać edytowany czasownik - 'aimer'?").answer("Tak")
    program.await_end()
    assert program.settings()[0] == "1"
    assert _records(program)[0].startswith(b"aimechange,")


def deleting_lowers_the_count(program):
    program.start()
    _save_changed_verb(program, "aimer", "aimechange")
    _save_changed_verb(program, "finir", "finchange")
    program.menu_item("Czasownik", "Usuń").press()
    listed = program.dialog("Usuń czasownik")
    wait_for(lambda: "2/7342" in listed.texts(), "two verbs in the list")
    listed.button("Usuń").press()
    wait_for(lambda: "1/7342" in listed.texts(), "one verb in the list")
    listed.answer("Zamknij")
    program.quit()
    assert program.settings()[0] == "1"
    records = _records(program)
    assert len(records) == 1
    assert records[0].startswith(b"finchange,")

    program.start()
    program.conjugate("aimer")
    program.box(FORM).await_text("aime")


def enter_leads_to_the_next_form_and_escape_out(program):
    program.start()
    _edit(program, "aimer")
    _write(program, FORM, "aimechange")
    keyboard.keys("Return")
    second = program.box("Indicatif présent, tu")
    wait_for(lambda: second.has("focused"), "the focus in the next box")
    keyboard.type_text("aimezmiana")
    second.await_text("aimezmiana")
    keyboard.keys("Escape")
    program.message("Zapisać edytowany czasownik - 'aimer'?").answer("Nie")
    program.await_title("Odmiennik")
    second.await_text("aimes")
    assert not (program.folder / "Czasowniki.dat").exists()


def a_form_with_a_comma_is_questioned_and_has_the_focus(program):
    program.start()
    _edit(program, "aimer")
    _write(program, FORM, "aime, aimer")
    program.box(ENTRY).focus()
    keyboard.keys("ctrl+s")
    program.message("Forma „aime, aimer” zawiera przecinek, który w pliku rozdziela formy. "
                    "Zapisać mimo to?")
    keyboard.keys("Return")
    wait_for(lambda: program.box(FORM).has("focused"), "the focus in the box of the form")
    assert program.main_window().name == 'Odmiennik - edycja "aimer"'
    assert not (program.folder / "Czasowniki.dat").exists()


def the_programs_forms_of_a_verb_come_back(program):
    program.start()
    assert not program.menu_item("Czasownik", "Przywróć odmianę programu").has("enabled")
    _save_changed_verb(program, "aimer", "aimechange")
    program.menu_item("Czasownik", "Przywróć odmianę programu").press()
    program.message("Usunąć zapisaną odmianę czasownika „aimer” i odmienić go od nowa?").answer("Tak")
    program.box(FORM).await_text("aime")
    program.quit()
    assert program.settings()[0] == "0"
    assert _records(program) == []
