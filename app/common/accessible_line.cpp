// SPDX-License-Identifier: GPL-3.0-or-later
// Lines for screen readers.
#include "app/common/accessible_line.h"

#include <QAccessibleWidget>
#include <QFontMetrics>
#include <QLineEdit>
#include <QValidator>
#include <algorithm>

namespace odmiennik::app {
namespace {

// As Qt tells of a line edit, but for words.
class AccessibleLine final : public QAccessibleWidget,
                             public QAccessibleTextInterface,
                             public QAccessibleEditableTextInterface {
 public:
  explicit AccessibleLine(QWidget* line) : QAccessibleWidget(line, QAccessible::EditableText) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::EditableTextInterface)
      return static_cast<QAccessibleEditableTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? line().text() : QAccessibleWidget::text(kind);
  }

  void setText(QAccessible::Text kind, const QString& text) override {
    if (kind != QAccessible::Value) return QAccessibleWidget::setText(kind, text);
    if (!line().isReadOnly()) line().setText(validated(text));
  }

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = line().isReadOnly();
    state.editable = !line().isReadOnly();
    state.selectableText = true;
    state.selected = line().hasSelectedText();
    state.hasPopup = line().contextMenuPolicy() != Qt::NoContextMenu;
    return state;
  }

  // What is selected, and the caret

  void selection(int index, int* start, int* end) const override {
    *start = *end = 0;
    if (index != 0 || !line().hasSelectedText()) return;
    *start = line().selectionStart();
    *end = line().selectionEnd();
  }
  [[nodiscard]] int selectionCount() const override { return line().hasSelectedText() ? 1 : 0; }
  void addSelection(int start, int end) override { setSelection(0, start, end); }
  void removeSelection(int index) override {
    if (index == 0) line().deselect();
  }
  void setSelection(int index, int start, int end) override {
    if (index == 0) line().setSelection(start, end - start);
  }
  [[nodiscard]] int cursorPosition() const override { return line().cursorPosition(); }
  void setCursorPosition(int position) override { line().setCursorPosition(position); }

  // The text

  [[nodiscard]] QString text(int start, int end) const override {
    return line().text().mid(start, end - start);
  }
  [[nodiscard]] int characterCount() const override {
    return static_cast<int>(line().text().size());
  }
  [[nodiscard]] QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary,
                                         int* start, int* end) const override {
    if (isWhole(boundary)) return nothing(start, end);
    if (boundary != QAccessible::WordBoundary)
      return QAccessibleTextInterface::textBeforeOffset(offset, boundary, start, end);
    const int from = wordStart(offset);
    return from == 0 ? nothing(start, end) : word(wordStart(from - 1), start, end);
  }
  [[nodiscard]] QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary,
                                        int* start, int* end) const override {
    if (isWhole(boundary)) return nothing(start, end);
    if (boundary != QAccessible::WordBoundary)
      return QAccessibleTextInterface::textAfterOffset(offset, boundary, start, end);
    const int next = wordEnd(wordStart(offset));
    return next >= characterCount() ? nothing(start, end) : word(next, start, end);
  }
  [[nodiscard]] QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                                     int* end) const override {
    if (isWhole(boundary)) return range(0, characterCount(), start, end);
    if (boundary == QAccessible::WordBoundary) return word(wordStart(offset), start, end);
    return QAccessibleTextInterface::textAtOffset(offset, boundary, start, end);
  }

  // Where it stands; it has neither parts of other looks nor a place to be scrolled to

  [[nodiscard]] QRect characterRect(int offset) const override {
    const QString text = line().text();
    if (offset < 0 || offset >= text.size()) return {};
    const QFontMetrics metrics(line().font());
    const QRect caret = line().inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const auto xOf = [&](int position) { return metrics.horizontalAdvance(text.left(position)); };
    const int left = caret.center().x() - xOf(line().cursorPosition()) + xOf(offset);
    const QRect place(left, caret.top(), xOf(offset + 1) - xOf(offset), caret.height());
    return place.translated(line().mapToGlobal(QPoint()));
  }
  [[nodiscard]] int offsetAtPoint(const QPoint& point) const override {
    return line().cursorPositionAt(line().mapFromGlobal(point));
  }
  void scrollToSubstring(int start, int end) override {
    line().setCursorPosition(end);
    line().setCursorPosition(start);
  }
  // The whole line looks alike. A range of nothing, as Qt tells it, costs a reader the last letter.
  [[nodiscard]] QString attributes(int /*offset*/, int* start, int* end) const override {
    *start = 0;
    *end = characterCount();
    return {};
  }

  // Changes, none of which a locked line takes

  void deleteText(int start, int end) override { replaceText(start, end, {}); }
  void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
  void replaceText(int start, int end, const QString& text) override {
    if (line().isReadOnly()) return;
    QString changed = line().text();
    line().setText(validated(changed.replace(start, end - start, text)));
  }

 private:
  [[nodiscard]] QLineEdit& line() const { return static_cast<QLineEdit&>(*widget()); }

  // A single line is its own line, sentence and paragraph.
  static bool isWhole(QAccessible::TextBoundaryType boundary) {
    return boundary != QAccessible::CharBoundary && boundary != QAccessible::WordBoundary;
  }

  [[nodiscard]] QString validated(QString text) const {
    int caret = 0;
    if (const QValidator* validator = line().validator()) validator->validate(text, caret);
    return text;
  }

  // A word reaches to the next one: the blanks behind it are its own. The end belongs to the last.
  [[nodiscard]] int wordStart(int offset) const {
    const QString text = line().text();
    int start = std::clamp(offset, 0, std::max(0, characterCount() - 1));
    while (start > 0 && !(text.at(start - 1).isSpace() && !text.at(start).isSpace())) --start;
    return start;
  }
  [[nodiscard]] int wordEnd(int start) const {
    const QString text = line().text();
    int end = std::min(start + 1, characterCount());
    while (end < characterCount() && !(text.at(end - 1).isSpace() && !text.at(end).isSpace()))
      ++end;
    return end;
  }

  [[nodiscard]] QString word(int from, int* start, int* end) const {
    return range(from, wordEnd(from), start, end);
  }
  [[nodiscard]] QString range(int from, int to, int* start, int* end) const {
    *start = from;
    *end = to;
    return text(from, to);
  }
  static QString nothing(int* start, int* end) {
    *start = *end = -1;
    return {};
  }
};

QAccessibleInterface* lineFactory(const QString& className, QObject* object) {
  auto* line = className == QLatin1String("QLineEdit") ? qobject_cast<QLineEdit*>(object) : nullptr;
  const bool isPlain = line != nullptr && line->echoMode() == QLineEdit::Normal;
  return isPlain ? new AccessibleLine(line) : nullptr;
}

}  // namespace

void answerForLines() { QAccessible::installFactory(lineFactory); }

}  // namespace odmiennik::app
