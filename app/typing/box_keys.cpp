// SPDX-License-Identifier: GPL-3.0-or-later
// Keys of the form boxes.
#include "app/typing/box_keys.h"

#include <QAction>
#include <QKeySequence>
#include <algorithm>

#include "app/logic/tense_topics.h"
#include "app/typing/key_codes.h"

namespace odmiennik::app {
namespace {

constexpr QKeySequence::StandardKey kKeysOfEveryBox[] = {
    QKeySequence::Copy,      QKeySequence::Cut,  QKeySequence::Paste,
    QKeySequence::SelectAll, QKeySequence::Undo, QKeySequence::Redo};

// A combining accent makes another letter of the one in front of it.
bool endsWithLetter(const QString& text) {
  return !text.isEmpty() && (text.back().isLetter() || text.back().isMark());
}

}  // namespace

BoxKeys::BoxKeys(const FormBoxes& boxes, const QObject& shortcuts, Autocompletion& completion,
                 dictionary::MessageBoxes& messages, HelpOpener& help)
    : boxes_(boxes),
      shortcuts_(shortcuts),
      completion_(completion),
      messages_(messages),
      help_(help) {
  for (int slot = 0; slot < engine::kSlotCount; ++slot) boxes_[slot].installEventFilter(this);
  connect(&boxes_.entry(), &FormBox::committed, this, &BoxKeys::committed);
  connect(boxes_.letters(), &FrenchLetters::refused, this, [this] { refused_.refuse(); });
}

// Sees a key before its box does; a key that goes up has had its effect when it went down.
bool BoxKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut) hint_.focusLeft();
  if (event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    KeyStroke stroke = strokeOf(key);
    stroke.isShortcut = isShortcut(key);
    hint_.pressed(boxes_.slotOf(*watched), stroke);
    refused_.pressed(stroke.physicalKey);
  }
  if (event->type() == QEvent::InputMethod) refused_.pressed(kNoPhysicalKey);
  if (event->type() == QEvent::KeyRelease)
    released(boxes_.slotOf(*watched), static_cast<const QKeyEvent&>(*event));
  return false;
}

void BoxKeys::released(int slot, const QKeyEvent& event) {
  const KeyStroke stroke = strokeOf(event);
  const bool isHintKey = hint_.released(slot, stroke);
  if (event.isAutoRepeat()) return;
  const ReleasedKey key{.virtualKey = stroke.virtualKey,
                        .isLetterTyped = endsWithLetter(event.text()),
                        .isRefused = refused_.isRefused(stroke.physicalKey)};
  switch (reactionToKey(slot == engine::slot::kInfinitive, boxes_[slot].isReadOnly(),
                        completion_.isOn(), key, isHintKey)) {
    case KeyReaction::complete:
      return completion_.complete();
    case KeyReaction::hint:
      return askForHint();
    case KeyReaction::none:
      return;
  }
}

// What a dead key or an input method has put into the entry box, which may have come without a key.
void BoxKeys::committed(const QString& text) {
  const ReleasedKey key{.isLetterTyped = endsWithLetter(text),
                        .isRefused = refused_.isRefused(kNoPhysicalKey)};
  if (completion_.isOn() && completes(key)) completion_.complete();
}

// Queued: the key's event is over before the box waits for its answer.
void BoxKeys::askForHint() {
  if (isHintOpen_) return;
  isHintOpen_ = true;
  QMetaObject::invokeMethod(this, &BoxKeys::showHint, Qt::QueuedConnection);
}

void BoxKeys::showHint() {
  const dictionary::Button answer = messages_.show(dictionary::MessageId::typeInfinitive);
  isHintOpen_ = false;
  if (answer == dictionary::Button::help) help_.openContext(kHowToContext);
}

bool BoxKeys::isShortcut(const QKeyEvent& event) const {
  const auto isEvent = [&event](QKeySequence::StandardKey key) { return event.matches(key); };
  if (std::ranges::any_of(kKeysOfEveryBox, isEvent)) return true;
  const QKeySequence pressed(event.keyCombination());
  for (const QAction* action : shortcuts_.findChildren<QAction*>())
    if (action->shortcuts().contains(pressed)) return true;
  return false;
}

}  // namespace odmiennik::app
