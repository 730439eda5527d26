// SPDX-License-Identifier: GPL-3.0-or-later
// A program whose window changes its size.
#pragma once

#include "app/controls/placement.h"
#include "app/layout/scaled_layout.h"
#include "tests/window/program_under_test.h"

namespace odmiennik::window_test {

struct ScaledProgram : ProgramUnderTest {
  [[nodiscard]] QWidget& surface() const { return *entry().parentWidget(); }
  [[nodiscard]] const app::Layout& layout() const { return window.scaling().layout(); }

  // Gives the surface a size in pixels; the layout has followed when this returns.
  void resizeTo(QSize size) const {
    const QSize rest = window.size() - surface().size();
    window.resize(size + rest);
    QTRY_COMPARE(surface().size(), size);
    QTRY_COMPARE(layout().design, (app::TwipSize{size.width() * 15, size.height() * 15}));
  }

  void maximiseAndRestore() const {
    const QSize before = surface().size();
    window.setWindowState(Qt::WindowMaximized);
    QTRY_VERIFY(surface().size() != before);
    window.setWindowState(Qt::WindowNoState);
    QTRY_COMPARE(surface().size(), before);
  }

  [[nodiscard]] QSize designed() const { return app::place(app::kMainWindow[0]).size(); }
};

}  // namespace odmiennik::window_test
