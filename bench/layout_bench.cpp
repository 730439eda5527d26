// SPDX-License-Identifier: GPL-3.0-or-later
// Applying the layout to the main window, without painting: a frame of a drag has 16 ms.
#include <benchmark/benchmark.h>

#include "app/controls/controls.h"
#include "app/controls/form_columns.h"
#include "app/controls/form_surface.h"
#include "app/layout/scaled_layout.h"
#include "bench/qt_application.h"

namespace odmiennik::app {
namespace {

void agreeTo(DraggedLayout& layout, TwipSize window) {
  constexpr bool kIsMinimised = false;
  benchmark::DoNotOptimize(layout.resize(window, kIsMinimised, {}, [] { return true; }));
}

// The window grows and shrinks in turn, so that every place and every font changes each time.
void BM_ApplyLayout(benchmark::State& state) {
  needApplication();
  FormSurface surface(nullptr);
  const Controls controls(surface);
  FormColumns columns(controls);
  ScaledLayout scaled(controls, surface, columns);
  const TwipSize designed = scaled.layout().design;
  const TwipSize maximised{designed.width * 3 / 2, designed.height * 3 / 2};
  surface.show();
  bool isLarge = false;
  for (auto _ : state) {
    isLarge = !isLarge;
    agreeTo(scaled.dragged(), isLarge ? maximised : designed);
    scaled.apply();
  }
}
BENCHMARK(BM_ApplyLayout)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace odmiennik::app
