// What most tests of the work include; compiled once.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include "kern.h"
