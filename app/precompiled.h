// SPDX-License-Identifier: GPL-3.0-or-later
// What most files of the window include, compiled once. It saves time only: every file still
// includes what it uses, and a build with -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON shows that it does.
#pragma once

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QString>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>
#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>
