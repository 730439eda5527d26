# SPDX-License-Identifier: GPL-3.0-or-later
"""A user who does one thing after the other without a plan: the seed tells which.

After every step the 101 boxes are what the command answers, edit mode is whole, and the program has
not grown. run(program, COMMAND, STEPS, SEED, TABLE)
"""

import collections
import csv
import json
import pathlib
import random
import subprocess

import keyboard
from element import gone
from program import ENTRY
from waiting import Late, Patience, wait_for

LIMIT = 10  # seconds for the effect of a step
FILE = "Czasowniki.dat"
SLOTS = 101
WRONG = ("", " ", "x", "se", "s'", "xyz", "zzzer", "a" * 300 + "er", "123", "aller aller", "'", "?!",
         "SE LAVER", " finir ", "être né", "oir", "éér", "--", "infinitif")
FORMS = ("a", "changé", "deux mots", "avec, virgule", '"guillemet', " -- ", "", "  blancs  ",
         "x" * 400, "œuvrât", "*", "s'est")
# What a question is answered with; any other gets a button by chance.
ANSWERS = {"Czy na pewno chcesz zakończyć program?": "Nie",
           "Uwaga! Program może działać nieprawidłowo  w tej rozdzielczości. Zmień ją na 800x600 lub "
           "wyższą. Chcesz kontynuować?": "Tak"}
GROWTH = 40_000  # kilobytes that the program may take more than it had after its first steps


class User:
    def __init__(self, program, command, seed):
        self.program = program
        self.command = command
        self.seed = seed
        self.chance = random.Random(seed)
        self.shown = "infinitif"
        self.options = ()  # how the command is to show it
        self.edited = ""  # the entry box in edit mode
        self.is_typed_over = True  # the entry box says something that was not conjugated
        self.done = collections.Counter()
        self.verbs = [verb for letter in "aefhprs" for verb in
                      self.chance.sample(self._ask("--list", letter).split("\n")[:-1], 12)]

    # What is to be seen

    def _ask(self, *words, line=""):
        return subprocess.run([self.command, *words], input=line, capture_output=True, text=True,
                              encoding="utf-8", check=False).stdout

    def records(self):
        file = self.program.folder / FILE
        return file.read_bytes().splitlines() if file.exists() else []

    def answer(self, verb, *options):
        """The command's answer with the user's verbs as they stand."""
        folder = self.program.folder.with_name("for the command")
        folder.mkdir(exist_ok=True)
        (folder / FILE).write_bytes(b"".join(line + b"\r\n" for line in self.records()))
        (folder / "Werbolin.cfg").write_text(f"{len(self.records())}\r\n0\r\n0\r\n0\r\n10\r\n")
        return json.loads(self._ask("--folder", str(folder), "--format", "json", *options,
                                    line=verb + "\n"))

    def learn_boxes(self):
        """Finds out which box shows which slot, by a verb whose forms are their numbers."""
        slots = [f"f{slot}" for slot in range(SLOTS)]
        slots[96] = "zyzer"
        (self.program.folder / FILE).write_bytes(",".join(slots).encode() + b", 1\r\n")
        (self.program.folder / "Werbolin.cfg").write_bytes(b"1\r\n255\r\n255\r\n0\r\n10\r\n")
        self.program.start()
        self.program.conjugate("zyzer")
        self.program.box("Infinitif passé").await_text("f97")
        boxes = self.program.boxes()
        places = {box.text: box for box in boxes}
        places["f96"] = self.program.box(ENTRY)
        self.boxes = [places[f"f{slot}"] for slot in range(SLOTS)]
        self.shown, self.is_typed_over = "zyzer", False

    def entry(self):
        return self.boxes[96]

    def is_editing(self):
        return " - edycja " in self.program.main_window().name

    def is_as_expected(self):
        """Everything that holds whenever the program is at rest; else what does not."""
        is_editing = self.is_editing()
        samples = random.sample(self.boxes[:96], 3)  # not by the seed: asked until it holds
        if any(box.has("read only") == is_editing for box in samples):
            return "boxes can be typed into in edit mode alone"
        if self.entry().has("read only"):
            return "the entry box can be typed into"
        if self.program.menu_item("Plik", "Zapisz Czasownik").has("enabled") != is_editing:
            return "saving is offered in edit mode alone"
        return None if is_editing else self._difference()

    def _difference(self):
        expected = self.answer(self.shown, *self.options)["boxes"]
        shown = [box.text for box in self.boxes]
        if self.is_typed_over:
            expected[96] = shown[96]
        wrong = [(slot, shown[slot], expected[slot]) for slot in range(SLOTS)
                 if shown[slot] != expected[slot]]
        return f"of {self.shown!r} {self.options}: {wrong[:4]}" if wrong else None

    def situation(self):
        """What stands on the screen and in the file, for whoever has to understand a fault."""
        try:
            return {"window": self.program.main_window().name, "entry": self.entry().text,
                    "open": [(box.title, box.texts()) for box in self.program.messages()],
                    "verbs": [fields[96] for fields in csv.reader(
                        record.decode("cp1252") for record in self.records())]}
        except gone() as fault:  # the program has fallen
            return repr(fault)

    # Doing

    def settle(self):
        """Answers every message; afterwards none is open, and nothing but the main window."""
        patience = Patience(LIMIT)
        while not patience.is_over():
            was_editing = self.is_editing()
            boxes = self.program.messages()
            if not boxes:
                return
            try:
                self._answer(boxes[-1])
            except (*gone(), AssertionError, StopIteration):
                continue
            if was_editing:
                self._note_end_of_editing()
        raise Late(f"still open: {[box.texts() or box.title for box in self.program.messages()]}")

    def _answer(self, box):
        texts = box.texts()
        fixed = next((answer for text, answer in ANSWERS.items() if text in texts), None)
        buttons = [b for b in box.buttons() if b.has("showing") and b.has("enabled")]
        closing = [b for b in buttons if b.name in ("Zamknij", "OK", "Anuluj", "Nie", "Tak")]
        if fixed:
            box.answer(fixed)
        elif closing:
            self.chance.choice(closing).press()
            wait_for(lambda: not _is_open(box), "the end of a message", 2)
        else:
            keyboard.keys("Escape")

    def _note_end_of_editing(self):
        if not self.is_editing():
            self.note_conjugated(self.edited)

    def note_edited(self):
        """Remembers what leaving edit mode would conjugate; afterwards the box may say less."""
        text = self.entry().text
        if self.is_editing():
            self.edited = text

    def note_conjugated(self, verb):
        self.shown, self.options, self.is_typed_over = verb, (), False

    def item(self, menu, *names):
        """The item of a menu that has one of these captions."""
        opened = self.program.menu(menu)
        return wait_for(lambda: next((part for part in opened.descendants() if part.name in names),
                                     None), f"one of the items {names}", LIMIT)

    def step(self, number):
        self.chance = random.Random(f"{self.seed}, {number}")  # however the steps before went
        action = self.chance.choices([action for action, _ in ACTIONS],
                                     [weight for _, weight in ACTIONS])[0]
        self.done[action.__name__] += 1
        was_editing = self.is_editing()
        self.note_edited()
        action(self)
        self.settle()
        if was_editing:
            self._note_end_of_editing()
        self.note_edited()
        return action.__name__

    def check(self):
        """Waits until all is as it should be; what is told late is answered meanwhile."""
        patience = Patience(LIMIT)
        while True:
            was_editing = self.is_editing()
            self.settle()
            if was_editing:
                self._note_end_of_editing()
            wrong = self.is_as_expected()
            if wrong is None:
                return
            if patience.is_over():
                raise AssertionError(wrong)

    def memory(self):
        """Kilobytes."""
        status = pathlib.Path(f"/proc/{self.program.process_id()}/status").read_text()
        return int(next(line for line in status.splitlines() if line.startswith("VmRSS")).split()[1])


def _is_open(box):
    return not box.is_gone()


# What the user does. Each waits for what it has done, or for a message.

def conjugate(user):
    entry = user.entry()
    verb = user.chance.choice(WRONG if user.chance.random() < 0.25 else user.verbs)
    entry.write(verb)
    if not user.is_editing():
        user.is_typed_over = True
    text = entry.text
    entry.focus()
    was_editing = user.is_editing()
    if user.chance.random() < 0.5:
        keyboard.keys("Return")
    else:
        user.program.button("Odmień").press()
    if was_editing:
        user.edited = text
        wait_for(lambda: user.program.messages() or not user.is_editing(), "the end of editing",
                 LIMIT)
        return
    answer_for(user, text)


def answer_for(user, verb):
    """Answers what is told of a verb that was conjugated, and remembers that it is shown."""
    user.note_conjugated(verb)
    for message in user.answer(verb)["messages"]:
        user.program.message(message).answer("OK")


def type_and_leave(user):
    entry = user.entry()
    entry.focus()
    keyboard.keys("ctrl+a")
    keyboard.type_text(user.chance.choice(("abc", "fin", "zzz", "re", "s'a")))
    user.is_typed_over = True


def press_letter(user):
    entry = user.entry()
    entry.focus()
    before = entry.text, entry.selection
    letter = user.chance.choice("àâçèéêëîïôùû")
    user.program.button(letter).press()  # acts a moment later, whatever is done meanwhile
    wait_for(lambda: (entry.text, entry.selection) != before, f"the letter {letter!r}", LIMIT)
    if not user.is_editing():
        user.is_typed_over = True


def switch_auxiliary(user):
    box = user.program.check_box()
    if user.is_editing() or not box.has("enabled"):
        return
    was_checked = box.has("checked")
    box.press()
    wait_for(lambda: box.has("checked") != was_checked, "the other auxiliary", LIMIT)
    user.options = ("--auxiliary", "etre" if was_checked else "avoir")


def edit(user):
    if user.is_editing():
        return leave(user)
    text = user.entry().text
    expected = user.answer(text, "--edit")
    if user.chance.random() < 0.5:
        user.entry().focus()
        keyboard.keys("F2")
    else:
        user.item("Czasownik", "Edytuj", "Edytuj czasownik").press()
    wait_for(lambda: user.program.messages() or user.is_editing(), "edit mode", LIMIT)
    for _ in expected["messages"][:1]:
        user.settle()
    if user.is_editing():
        user.check()
        wait_for(lambda: [box.text for box in user.boxes[:96]] == expected["boxes"][:96],
                 f"the forms of {text!r} to be edited", LIMIT)


def new_verb(user):
    user.item("Czasownik", "Nowy").press()
    wait_for(lambda: user.program.messages() or user.is_editing(), "a new verb", LIMIT)


def leave(user):
    if not user.is_editing():
        return
    user.item("Czasownik", "Koniec edycji").press()
    wait_for(lambda: user.program.messages() or not user.is_editing(), "the end of editing", LIMIT)


def change_forms(user):
    if not user.is_editing():
        return
    for _ in range(user.chance.randrange(1, 4)):
        slot = user.chance.choice([slot for slot in range(SLOTS) if slot != 96])
        user.boxes[slot].write(user.chance.choice(FORMS))


def name_the_verb(user):
    if user.is_editing():
        user.entry().write(user.chance.choice((*user.verbs, "zyzer", "nouveler", "xyz")))


def save(user):
    if not user.is_editing():
        return
    if user.chance.random() < 0.5:
        user.entry().focus()
        keyboard.keys("ctrl+s")
    else:
        user.item("Plik", "Zapisz Czasownik").press()
    wait_for(lambda: user.program.messages() or not user.is_editing(), "a saved verb", LIMIT)


def open_list(user):
    was_editing = user.is_editing()
    user.item("Czasownik", *user.chance.choice((("Lista",), ("Usuń",)))).press()
    wait_for(user.program.messages, "the list, or a question before it", LIMIT)
    listed = next((box for box in user.program.messages()
                   if box.title in ("Lista czasowników", "Usuń czasownik")), None)
    if listed is None or was_editing:
        return
    number = f"{len(user.records())}/7342"
    wait_for(lambda: number in listed.texts(), f"the number {number} in the list", LIMIT)
    command = user.chance.choice(("Odmień", "Edytuj", "Usuń", "Zamknij"))
    button = next((b for b in listed.buttons() if b.name == command), None)
    if button is None or not button.has("enabled") or not button.has("showing"):
        return
    verb = listed.part("Czasowniki").selected_entry()
    shown = [box.text for box in user.boxes]
    button.press()
    if not verb and command in ("Odmień", "Edytuj"):
        return  # the record of a form with a comma, come back split: there is no verb to show
    if command == "Odmień":
        wait_for(lambda: user.entry().text == verb, "the verb of the list", LIMIT)
        user.note_conjugated(verb)
    if command == "Edytuj":
        wait_for(lambda: user.is_editing() or len(user.program.messages()) > 1, f"edit mode for {verb!r}",
                 LIMIT)
    if command == "Usuń":
        wait_for(lambda: number not in listed.texts(), "one verb less", LIMIT)
        assert f"{len(user.records())}/7342" in listed.texts(), "the count is that of the records"
        look_at_a_deletion(user, shown)


def look_at_a_deletion(user, before):
    """The forms of a deleted verb stay until it is conjugated anew."""
    assert [box.text for box in user.boxes] == before, "a deletion leaves the shown forms alone"
    user.settle()
    user.entry().write(user.shown)
    user.program.button("Odmień").press()
    wait_for(lambda: user.program.messages() or user.entry().selection, "the verb anew", LIMIT)
    answer_for(user, user.shown)


def open_window(user):
    menu, name = user.chance.choice((("Pomoc", "O programie..."), ("Widok", "Kolory"),
                                     ("Pomoc", "Porada dnia"), ("Plik", "Koniec"),
                                     ("Pomoc", "Tematy pomocy")))
    user.item(menu, name).press()
    wait_for(lambda: len(user.program.windows()) > 1, f"the window of {name!r}", LIMIT)


def open_menu(user):
    keyboard.keys(user.chance.choice(("alt+p", "alt+e", "alt+w")), "Down", "Escape", "Escape")


def switch_something(user):
    user.item("Czasownik", "Autouzupełnianie").press()


def resize(user):
    width, height = user.chance.randrange(640, 1024), user.chance.randrange(480, 760)
    subprocess.run(["xdotool", "getactivewindow", "windowsize", str(width), str(height)],
                   check=False)


def cancel(user):
    keyboard.keys("Escape")
    if user.is_editing():
        wait_for(lambda: user.program.messages() or not user.is_editing(), "the end of editing", LIMIT)


ACTIONS = ((conjugate, 8), (type_and_leave, 1), (press_letter, 2), (switch_auxiliary, 2), (edit, 4),
           (new_verb, 1), (leave, 1), (change_forms, 4), (name_the_verb, 2), (save, 4),
           (open_list, 3), (open_window, 2), (open_menu, 1), (switch_something, 1), (resize, 2),
           (cancel, 1))


def run(program, command, steps, seed, table, is_measured="yes"):
    user = User(program, command, int(seed))
    user.learn_boxes()
    history = collections.deque(maxlen=12)
    first = 0
    for number in range(1, int(steps) + 1):
        try:
            history.append(user.step(number))
            user.check()
        except Exception as fault:
            raise AssertionError(f"seed {seed}, step {number}: {fault!r}; the last steps were "
                                 f"{list(history)}; {user.situation()}") from fault
        if number == min(50, int(steps) // 2):
            first = user.memory()
    grown = user.memory() - first
    assert is_measured != "yes" or grown < GROWTH, f"{grown} KB more than at the beginning"
    if user.is_editing():
        leave(user)
        user.check()
    program.quit()
    assert program.settings()[0] == str(len(user.records())), "the count is that of the records"
    told = ", ".join(f"{name} {times}" for name, times in user.done.most_common())
    pathlib.Path(table).write_text(
        f"random user, seed {seed}: {steps} steps, 0 fallen, {grown} KB grown\n  {told}\n",
        encoding="utf-8")
