// SPDX-License-Identifier: GPL-3.0-or-later
// What differs between systems, and nothing else: one source for Windows, one for other desktops.
// Free of Qt, so that each source is compiled with its system's own headers alone.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "app/logic/always_on_top.h"
#include "engine/utf8.h"

namespace odmiennik::app::platform {

// The arguments without the program's name, as the system has them: UTF-8 on Windows, elsewhere
// whatever bytes they are.
[[nodiscard]] std::vector<Utf8Text> arguments(int count, char** values);

// Has Qt draw letters as they look best on the system, unless the user's environment says otherwise;
// called before the application is made.
void chooseFontEngine();

// Says `text` where the program was started: on standard output or standard error; on
// Windows, where a program with windows has neither, in a message.
void tell(Utf8View text, bool isError);

// The program that shows all letters of a font, ready to be started; empty when there is none.
[[nodiscard]] std::string characterMap();

// The program that shows what the computer consists of; empty when there is none.
[[nodiscard]] std::string systemInformation();

// Starts a program, its window normal and focused, and returns at once; false when it could not be
// started.
bool start(const std::string& program);

// Makes a printer, named as the system names it, the user's default from now on; false when the
// system refuses. An empty name is refused.
bool makeDefaultPrinter(const Utf8Text& printer);

// Whether the print system refused the document that this thread has just handed over. Qt does not
// tell.
[[nodiscard]] bool hasPrintSystemRefused();

// Whether a program places its windows, keeps them above others and moves the pointer; under
// Wayland the compositor alone decides of all that, and tells neither places nor panels.
[[nodiscard]] bool mayPlaceWindows();

// Lays a window over the whole screen, above all others or no longer, without activating it.
// `handle` is the system's name of the window: QWidget::winId().
void setAlwaysOnTop(std::uintptr_t handle, bool isOnTop, const Screen& screen);

// Moves the user's pointer to a place in the desktop's own pixels, whatever the windows are scaled
// by; false where a program may not do that.
bool movePointer(int x, int y);

// Has `end` called, from the event loop, when the system asks the program to end without telling
// its windows; called once, after the application has been made. Asked a second time, the program
// ends without more ado. Windows tells the windows.
void onTermination(std::function<void()> end);

// The Windows virtual-key code that a key has by its place, whatever letter it types: of every key
// on Windows, of the digit row elsewhere; 0 for any other. Scan code and key as the system reports
// them: virtualKey(11, 0) -> 50, the key of "2".
int virtualKey(std::uint32_t scanCode, std::uint32_t nativeKey);

}  // namespace odmiennik::app::platform
