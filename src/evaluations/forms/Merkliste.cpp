#include "evaluations/forms/Merkliste.h"

#include <QScrollBar>
#include <algorithm>

namespace {

constexpr int SchlüsselRolle = Qt::UserRole;

QString schlüsselVon(const QListWidgetItem* posten) {
  return posten->data(SchlüsselRolle).toString();
}

}  // namespace

Merkliste::Merkliste(const QString& name, Wahl wahl, QWidget* eltern) : QListWidget(eltern) {
  setObjectName(name);
  setTabKeyNavigation(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // it is as wide as its texts
  if (wahl == Wahl::Eine) return;
  setSelectionMode(MultiSelection);
  blassMarkieren();
  connect(this, &QListWidget::itemSelectionChanged, this, [this] { hakenZeigen(); });
}

// The tick says what is chosen; full colour on most of a list would hide the rest.
void Merkliste::blassMarkieren() {
  constexpr double Anteil = 0.18;
  QPalette farben = palette();
  const auto gemischt = [&](auto teil) {
    const double grund = teil(farben.color(QPalette::Base));
    return int(grund + Anteil * (teil(farben.color(QPalette::Highlight)) - grund));
  };
  const QColor blass(gemischt([](const QColor& c) { return c.red(); }),
                     gemischt([](const QColor& c) { return c.green(); }),
                     gemischt([](const QColor& c) { return c.blue(); }));
  farben.setColor(QPalette::Highlight, blass);
  farben.setColor(QPalette::HighlightedText, farben.color(QPalette::Text));
  setPalette(farben);
}

void Merkliste::setPosten(const QStringList& schlüssel, const QStringList& titel) {
  clear();
  for (qsizetype i = 0; i < schlüssel.size(); ++i) {
    auto* posten = new QListWidgetItem(titel[i], this);
    posten->setData(SchlüsselRolle, schlüssel[i]);
    posten->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  }
  updateGeometry();
  if (selectionMode() != MultiSelection) return;
  if (count() > 0) setCurrentRow(0, QItemSelectionModel::NoUpdate);
  hakenZeigen();
}

QStringList Merkliste::gewählt() const {
  QStringList alle;
  for (int i = 0; i < count(); ++i)
    if (item(i)->isSelected()) alle += schlüsselVon(item(i));
  return alle;
}

QString Merkliste::aktueller() const {
  return currentItem() != nullptr ? schlüsselVon(currentItem()) : QString();
}

void Merkliste::setGewählt(const QStringList& schlüssel) {
  for (int i = 0; i < count(); ++i) item(i)->setSelected(schlüssel.contains(schlüsselVon(item(i))));
}

void Merkliste::führeNeben(Merkliste* andere) {
  setSelectionMode(NoSelection);
  setVerticalScrollMode(andere->verticalScrollMode());
  const auto koppeln = [](const QListWidget* von, const QListWidget* nach) {
    connect(von->verticalScrollBar(), &QScrollBar::valueChanged, nach->verticalScrollBar(),
            &QScrollBar::setValue);
  };
  koppeln(this, andere);
  koppeln(andere, this);
}

// The tick follows the selection, which the keys and the mouse change.
void Merkliste::hakenZeigen() {
  for (int i = 0; i < count(); ++i)
    item(i)->setCheckState(item(i)->isSelected() ? Qt::Checked : Qt::Unchecked);
}

QSize Merkliste::größe(int zeilen) const {
  constexpr int Zeichen = 16;
  constexpr int Luft = 4;  // between two rows
  const int rand = 2 * frameWidth();
  const int luft = 2 * fontMetrics().averageCharWidth();
  const int inhalt = sizeHintForColumn(0) + verticalScrollBar()->sizeHint().width() + luft;
  const int breite = std::max(inhalt, Zeichen * fontMetrics().averageCharWidth());
  return {breite + rand, zeilen * (fontMetrics().height() + Luft) + rand};
}

QSize Merkliste::sizeHint() const { return größe(12); }

QSize Merkliste::minimumSizeHint() const { return größe(3); }
