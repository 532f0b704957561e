#include "evaluations/forms/Merkliste.h"

#include <QScrollBar>

namespace {

constexpr int SchlüsselRolle = Qt::UserRole;

}  // namespace

QString schlüsselVon(const QListWidgetItem* posten) {
  return posten->data(SchlüsselRolle).toString();
}

QListWidgetItem* neuerPosten(const QString& schlüssel, const QString& titel) {
  auto* posten = new QListWidgetItem(titel);
  posten->setData(SchlüsselRolle, schlüssel);
  return posten;
}

QSize kleinsteListe(const QListWidget& liste, int zeilen) {
  const int zeile = liste.fontMetrics().height() + 4;
  const int rand = 2 * liste.frameWidth();
  const int breite = liste.sizeHintForColumn(0) + liste.verticalScrollBar()->sizeHint().width() +
                     2 * liste.fontMetrics().averageCharWidth() + rand;
  const int schmal = 16 * liste.fontMetrics().averageCharWidth();
  return {std::max(breite, schmal), zeilen * zeile + rand};
}

Merkliste::Merkliste(const QString& name, QWidget* eltern) : QListWidget(eltern) {
  setObjectName(name);
  setSelectionMode(MultiSelection);
  setTabKeyNavigation(false);
  connect(this, &QListWidget::itemSelectionChanged, this, [this] { hakenZeigen(); });
}

void Merkliste::setPosten(const QStringList& schlüssel, const QStringList& titel) {
  clear();
  for (qsizetype i = 0; i < schlüssel.size(); ++i) {
    addItem(neuerPosten(schlüssel[i], titel[i]));
    item(count() - 1)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  }
  if (count() > 0) setCurrentRow(0, QItemSelectionModel::NoUpdate);
  hakenZeigen();
}

QStringList Merkliste::gewählt() const {
  QStringList alle;
  for (int i = 0; i < count(); ++i)
    if (item(i)->isSelected()) alle += schlüsselVon(item(i));
  return alle;
}

void Merkliste::setGewählt(const QStringList& schlüssel) {
  for (int i = 0; i < count(); ++i) item(i)->setSelected(schlüssel.contains(schlüsselVon(item(i))));
}

// The tick follows the selection, which the keys and the mouse change.
void Merkliste::hakenZeigen() {
  for (int i = 0; i < count(); ++i)
    item(i)->setCheckState(item(i)->isSelected() ? Qt::Checked : Qt::Unchecked);
}

QSize Merkliste::sizeHint() const { return kleinsteListe(*this, 8); }

QSize Merkliste::minimumSizeHint() const { return {kleinsteListe(*this, 3)}; }
