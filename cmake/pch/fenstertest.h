// What most tests of windows include; compiled once.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "fenster.h"
