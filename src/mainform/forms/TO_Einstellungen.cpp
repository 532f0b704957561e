#include "mainform/forms/TO_Einstellungen.h"

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>

#include "bookings/Buchungsliste.h"
#include "core/globals.h"
#include "mainform/Volkliste.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Meldungen.h"

using Einstellungen::Stand;

namespace {

void setHaken(QListWidget* liste, const QList<bool>& gezeigt, qsizetype ab) {
  for (int i = 0; i < liste->count(); ++i)
    liste->item(i)->setCheckState(gezeigt.value(ab + i) ? Qt::Checked : Qt::Unchecked);
}

void hakenAn(const QListWidget* liste, QList<bool>& gezeigt) {
  for (int i = 0; i < liste->count(); ++i) gezeigt << (liste->item(i)->checkState() == Qt::Checked);
}

// Drawn widths stay with their fields.
void breitenUmordnen(const QString& layout, const QStringList& vorher, const QStringList& nachher) {
  if (vorher == nachher) return;
  const QString schlüssel = QStringLiteral("Spaltenbreiten/") + layout;
  const QVariantList breiten =
      Einstellungen::umgeordnet(Fensterablage::lesen(schlüssel).toList(), vorher, nachher);
  if (!breiten.isEmpty()) Fensterablage::schreiben(schlüssel, breiten);
}

}  // namespace

TO_Einstellungen::TO_Einstellungen(QWidget* öffner)
    : Formular("TO_Einstellungen", "Einstellungen", öffner) {
  aufbauen();
}

void TO_Einstellungen::füllen() {
  listenfelderPrüfen();
  stockkartenfelderPrüfen();
  const Stand stand = Einstellungen::lesen(TZ_Variablen::DB);
  m_feldlisten[0].geladen = m_feldlisten[0].felder = stand.volkfelder;
  m_feldlisten[1].geladen = m_feldlisten[1].felder = stand.stockfelder;
  for (Feldliste& f : m_feldlisten) {
    f.liste->clear();
    f.liste->addItems(f.felder);
    f.liste->setCurrentRow(0);
  }
  zeigeSortierfelder(stand.volkfelder);
  zeige(stand);
  setHaken(m_litext1, stand.gezeigt, 0);
  setHaken(m_litext2, stand.gezeigt, m_litext1->count());
  for (QListWidget* liste : {m_litext1, m_litext2}) liste->setCurrentRow(0);
  m_reiter->setCurrentIndex(0);
  m_kon[0]->setFocus();
}

void TO_Einstellungen::zeigeSortierfelder(const QStringList& felder) {
  for (const Einstellungen::Eingabe& e : Einstellungen::eingaben()) {
    if (!e.istListenfeld()) continue;
    Eingabefeld::Beschreibung b = m_sevt[e.index]->beschreibung();
    b.auswahl = QStringList{QString()} + felder;
    m_sevt[e.index]->einrichten(b);
  }
}

void TO_Einstellungen::zeige(const Stand& stand) {
  for (auto k = m_kon.cbegin(); k != m_kon.cend(); ++k) k.value()->setChecked(stand.kon[k.key()]);
  for (auto f = m_sevt.cbegin(); f != m_sevt.cend(); ++f) f.value()->setInhalt(stand.sevt[f.key()]);
}

Stand TO_Einstellungen::stand() const {
  Stand stand;
  for (auto k = m_kon.cbegin(); k != m_kon.cend(); ++k) stand.kon[k.key()] = k.value()->isChecked();
  for (auto f = m_sevt.cbegin(); f != m_sevt.cend(); ++f) stand.sevt[f.key()] = f.value()->inhalt();
  stand.volkfelder = m_feldlisten[0].felder;
  stand.stockfelder = m_feldlisten[1].felder;
  hakenAn(m_litext1, stand.gezeigt);
  hakenAn(m_litext2, stand.gezeigt);
  return stand;
}

void TO_Einstellungen::standardSetzen() {
  if (!Meldungen::Frage(Einstellungen::standardFrage(), Meldungen::Vorgabe::Ja, this)) return;
  Stand neu = stand();
  Einstellungen::standardSetzen(neu);
  zeige(neu);
}

void TO_Einstellungen::speichern() {
  Einstellungen::speichern(stand(), TZ_Variablen::DB);
  breitenUmordnen(VolklisteLayout, m_feldlisten[0].geladen, m_feldlisten[0].felder);
  breitenUmordnen(listenLayoutSchlüssel(0), m_feldlisten[1].geladen, m_feldlisten[1].felder);
  accept();
}

void TO_Einstellungen::alleAnhaken(bool ja) {
  const QList<bool> haken(m_litext1->count() + m_litext2->count(), ja);
  setHaken(m_litext1, haken, 0);
  setHaken(m_litext2, haken, 0);
}

void TO_Einstellungen::verschieben(size_t liste, int schritt) {
  Feldliste& f = m_feldlisten[liste];
  const int zeile = f.liste->currentRow();
  if (zeile < 0) return;
  const int neu = Feldfolge::verschieben(f.felder, zeile, schritt);
  if (neu < 0) {
    // A button held down would go on behind the box and open the next one.
    for (QToolButton* knopf : f.knopf) knopf->setDown(false);
    Meldungen::Hinweis(Feldfolge::unbeweglichText(), this);
    return;
  }
  if (neu == zeile) return;
  f.liste->insertItem(neu, f.liste->takeItem(zeile));
  f.liste->setCurrentRow(neu);
}
