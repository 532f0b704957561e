#include "Blankfenster.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>

namespace {

constexpr int Spalten = 6;  // of the grid that the controls lie in

// What a control is made of (a line edit's button, a list's head) comes with the bare one too.
bool istTeil(const QWidget& bauteil) {
  for (const QWidget* eltern = bauteil.parentWidget(); eltern != nullptr;
       eltern = eltern->parentWidget())
    if (qobject_cast<const QLineEdit*>(eltern) != nullptr ||
        qobject_cast<const QComboBox*>(eltern) != nullptr ||
        qobject_cast<const QAbstractItemView*>(eltern) != nullptr)
      return true;
  return false;
}

}  // namespace

Bauteilzahl zähle(const QWidget& fenster) {
  Bauteilzahl zahl;
  for (const auto* bauteil : fenster.findChildren<QWidget*>()) {
    if (bauteil->isWindow() || istTeil(*bauteil)) continue;
    if (const auto* liste = qobject_cast<const QTableView*>(bauteil))
      zahl.listen.push_back(liste->model() == nullptr ? 0 : liste->model()->columnCount());
    else if (qobject_cast<const QLineEdit*>(bauteil) != nullptr ||
             qobject_cast<const QComboBox*>(bauteil) != nullptr ||
             qobject_cast<const QPlainTextEdit*>(bauteil) != nullptr)
      ++zahl.felder;
    else if (qobject_cast<const QAbstractButton*>(bauteil) != nullptr)
      ++zahl.knöpfe;
    else if (qobject_cast<const QLabel*>(bauteil) != nullptr)
      ++zahl.schilder;
  }
  return zahl;
}

void Blankliste::setZeilen(int zeilen) {
  beginResetModel();
  m_zeilen = zeilen;
  endResetModel();
}

int Blankliste::rowCount(const QModelIndex& eltern) const {
  return eltern.isValid() ? 0 : m_zeilen;
}

int Blankliste::columnCount(const QModelIndex& eltern) const {
  return eltern.isValid() ? 0 : m_spalten;
}

QVariant Blankliste::data(const QModelIndex& stelle, int rolle) const {
  if (rolle != Qt::DisplayRole || !stelle.isValid()) return {};
  return QStringLiteral("31.08.2026");
}

Blankfenster::Blankfenster(const Bauteilzahl& zahl) {
  new QGridLayout(this);
  for (int i = 0; i < zahl.schilder; ++i) setze(new QLabel(QStringLiteral("Beschriftung")));
  for (int i = 0; i < zahl.felder; ++i) {
    m_felder.push_back(new QLineEdit);
    setze(m_felder.back());
  }
  for (int i = 0; i < zahl.knöpfe; ++i) setze(new QPushButton(QStringLiteral("Knopf")));
  for (const int spalten : zahl.listen) {
    auto* ansicht = new QTableView;
    m_listen.push_back(new Blankliste(spalten, ansicht));
    ansicht->setModel(m_listen.back());
    setze(ansicht);
  }
}

void Blankfenster::fülle(int zeilen, const QString& text) {
  for (QLineEdit* feld : m_felder) feld->setText(text);
  for (Blankliste* liste : m_listen) liste->setZeilen(zeilen);
}

void Blankfenster::setze(QWidget* bauteil) {
  static_cast<QGridLayout*>(layout())->addWidget(bauteil, m_anzahl / Spalten, m_anzahl % Spalten);
  ++m_anzahl;
}
