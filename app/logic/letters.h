// The French letters that are typed by clicking.
#pragma once

namespace odmiennik::app {

// What one run of a check box's click handler does.
struct LetterClick {
  bool insertsLetter = false;
  bool unticks = false;  // which raises the click once more
};

// `isTicked` is the value that the click has left. One click of the user so runs the handler twice,
// inserts the letter once and leaves the box unticked.
[[nodiscard]] LetterClick letterBoxClicked(bool isTicked, bool isReadOnly);

}  // namespace odmiennik::app
