// The suites of this folder; each is run by its name.
#pragma once

#include <QObject>
#include <memory>

namespace odmiennik::window_test {

[[nodiscard]] std::unique_ptr<QObject> designSuite();
[[nodiscard]] std::unique_ptr<QObject> conjugatingSuite();
[[nodiscard]] std::unique_ptr<QObject> entryBoxSuite();
[[nodiscard]] std::unique_ptr<QObject> menuSuite();
[[nodiscard]] std::unique_ptr<QObject> messageBoxSuite();
[[nodiscard]] std::unique_ptr<QObject> lookSuite();

}  // namespace odmiennik::window_test
