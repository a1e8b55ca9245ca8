// pch.hpp - what almost every test of the face includes, read once.

#pragma once

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <string>
#include <vector>
