# SPDX-License-Identifier: GPL-3.0-or-later
"""A learner looks something up in the help."""

import keyboard
from program import ENTRY
from waiting import wait_equal, wait_for

HELP = "Odmiennik – pomoc"
WELCOME = "Witaj w Odmienniku"
HOW_TO = "Jak odmienić czasownik"
PRESENT = "Indicatif présent – czas teraźniejszy"
HINT = "Wpisz bezokolicznik w polu 'Infinitif' i naciśnij klawisz Enter"
# A box of each tense that has a page, and the page's heading.
PAGES = {
    "Indicatif présent, je": PRESENT,
    "Indicatif imparfait, tu": "Indicatif imparfait – czas przeszły niedokonany",
    "Indicatif passé composé, il": "Passé composé – czas przeszły złożony",
    "Indicatif plus-que-parfait, nous": "Indicatif plus-que-parfait – czas zaprzeszły",
    "Indicatif futur antérieur, vous": "Futur antérieur – czas przyszły uprzedni",
    "Indicatif passé antérieur, ils": "Passé antérieur – czas zaprzeszły literacki",
    "Indicatif futur simple, je": "Futur simple – czas przyszły prosty",
    "Indicatif passé simple, tu": "Passé simple – czas przeszły prosty (literacki)",
    "Subjonctif présent, il": "Subjonctif présent – tryb łączący, czas teraźniejszy",
    "Subjonctif imparfait, nous": "Subjonctif imparfait – tryb łączący, czas przeszły niedokonany",
    "Subjonctif passé, vous": "Subjonctif passé – tryb łączący, czas przeszły dokonany",
    "Subjonctif plus-que-parfait, ils":
        "Subjonctif plus-que-parfait – tryb łączący, czas zaprzeszły",
    "Conditionnel passé 2e forme, je":
        "Conditionnel passé 2e forme – tryb warunkowy, czas przeszły literacki",
    "Conditionnel passé 1re forme, tu": "Conditionnel passé 1re forme – tryb warunkowy, czas przeszły",
    "Conditionnel présent, ils": "Conditionnel présent – tryb warunkowy, czas teraźniejszy",
    "Impératif passé, nous": "Impératif passé – tryb rozkazujący, czas przeszły",
    "Impératif présent, vous": "Impératif présent – tryb rozkazujący, czas teraźniejszy",
    "Participe passé": "Participe passé – imiesłów czasu przeszłego",
}


def _await_page(help_window, heading):
    page = help_window.part("Strona pomocy")
    wait_equal(lambda: _typed(page.text).split("\n")[0], heading, "heading of the page")


def _typed(text):
    """Without the blanks and hyphens that hold a line together."""
    return text.replace("\u00a0", " ").replace("\u2011", "-")


def _look_up(program, box_name):
    """F1 in a box; the window of the help, with the keyboard in it."""
    program.box(box_name).focus()
    keyboard.keys("F1")
    return _opened(program)


def _opened(program):
    help_window = program.dialog(HELP)
    wait_for(help_window.is_active, "the help to come forward")
    return help_window


def _close(program, help_window):
    keyboard.keys("Escape")
    help_window.await_end()
    wait_for(lambda: program.main_window().has("active"), "the main window to be back")


def f_one_opens_the_page_of_the_tense(program):
    program.start()
    for box_name, heading in PAGES.items():
        help_window = _look_up(program, box_name)
        _await_page(help_window, heading)
        _close(program, help_window)


def f_one_elsewhere_opens_the_welcome_page(program):
    program.start()
    help_window = _look_up(program, ENTRY)
    _await_page(help_window, WELCOME)
    _close(program, help_window)


def the_menu_opens_the_welcome_page(program):
    program.start()
    program.menu_item("Pomoc", "Tematy pomocy").press()
    _await_page(_opened(program), WELCOME)


def a_click_on_a_heading_opens_its_page(program):
    program.start()
    headings = [part for part in program.main_window().descendants()
                if part.role == "label" and part.name == "Imparfait"]
    assert len(headings) == 2, "one of the indicative, one of the subjunctive"
    headings[0].click()
    help_window = _opened(program)
    _await_page(help_window, PAGES["Indicatif imparfait, tu"])
    _close(program, help_window)
    headings[1].click()
    _await_page(_opened(program), PAGES["Subjonctif imparfait, nous"])


def the_way_through_the_pages_leads_back_and_forward(program):
    program.start()
    help_window = _look_up(program, "Indicatif présent, je")
    _await_page(help_window, PRESENT)
    back, forward = help_window.button("Wstecz"), help_window.button("Dalej")
    assert not forward.has("enabled")
    help_window.button("Początek").press()
    _await_page(help_window, WELCOME)
    wait_for(lambda: back.has("enabled"), "a way back")
    back.press()
    _await_page(help_window, PRESENT)
    wait_for(lambda: forward.has("enabled"), "a way forward")
    forward.press()
    _await_page(help_window, WELCOME)


def the_hint_leads_to_the_page_about_conjugating(program):
    program.start()
    form = program.box("Indicatif présent, nous")
    form.focus()
    keyboard.keys("x")
    program.message(HINT).answer("Pomoc")
    help_window = _opened(program)
    _await_page(help_window, HOW_TO)
    _close(program, help_window)
    wait_for(lambda: form.has("focused"), "the focus back in the box")
    assert program.messages() == []


def a_missing_help_file_is_told_in_polish(program):
    program.leave_its_files_behind()
    program.start()
    help_window = _look_up(program, "Indicatif présent, je")
    _await_page(help_window, "Nie znaleziono pliku pomocy")
    assert _typed(help_window.part("Strona pomocy").text).split("\n")[1:] == [
        "Plik Werbolin.chm powinien znajdować się w folderze programu. "
        "Skopiuj go tam lub zainstaluj program ponownie."]
    _close(program, help_window)
    program.conjugate("finir")
    program.box("Indicatif présent, je").await_text("finis")
