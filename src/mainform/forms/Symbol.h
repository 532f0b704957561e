#pragma once

#include <QIcon>

// One of the main form's own symbols, by its file's name without extension.
QIcon symbol(const QString& name);
