// What most of the work includes; compiled once. A source still names what it uses:
// tools/check --headers compiles every header without this.
#include <QByteArray>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>
