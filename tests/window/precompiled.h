// SPDX-License-Identifier: GPL-3.0-or-later
// What most suites include, compiled once: Qt Test, what the window's own files start from, and the
// program that the suites drive.
#pragma once

#include <QtTest/QTest>

#include "app/precompiled.h"
#include "tests/window/edited_program.h"
#include "tests/window/program_under_test.h"
