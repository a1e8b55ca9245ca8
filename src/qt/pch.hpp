// pch.hpp - what almost every view includes, read once.

#pragma once

#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <vector>
