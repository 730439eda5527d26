// What most suites include, compiled once: Qt Test and what the window's own files start from.
#pragma once

#include <QtTest/QTest>

#include "app/precompiled.h"
