// Loading, showing and computing; what the buttons do stands in TE_Eingabe_Aktionen.cpp.
#include "bookings/forms/TE_Eingabe.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QSplitter>
#include <QTimer>

#include "bookings/Buchungsliste.h"
#include "bookings/Vorgaben.h"
#include "bookings/Zusammenfassung.h"
#include "bookings/forms/Slotfelder.h"
#include "core/globals.h"
#include "core/main_list.h"
#include "data/helpers.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"
#include "platform/locale/Deutsch.h"

using namespace TZ_Variablen;

namespace {

const QString TeilerSchlüssel = QStringLiteral("Teiler/TE_Eingabe");

bool istEingabetaste(const QKeyEvent& taste) {
  return taste.key() == Qt::Key_Return || taste.key() == Qt::Key_Enter;
}

Daten leererBlock() { return Datenblock::Bauer(std::vector<Spalte>{}).fertig(); }

}  // namespace

void TE_Eingabe::verbinden() {
  using Ereignis::wenn;
  wenn(m_opti, &QButtonGroup::idClicked, this, [this](int art) { artGewählt(art); });
  wenn(m_anzeige, &QButtonGroup::idClicked, this, [this](int n) { anzeigeGewählt(n); });
  wenn(m_volkli, &Grid::zeileAngeklickt, this, [this](int zeile) { volkAngeklickt(zeile); });
  wenn(m_li, &Grid::zeileAngeklickt, this, [this](int zeile) { zeileZeigen(zeile); });
  // The right button and a drawn mouse make a row current without a click. What is current is what
  // is shown: a change must never hit a row with another one's values.
  wenn(m_li, &Grid::zeileGewechselt, this, [this](int zeile) {
    if (m_füllt == 0) zeileZeigen(zeile);
  });
  wenn(m_kom, &QComboBox::activated, this, [this](int index) { standortGewählt(index); });
  for (int i = 0; i < 2; ++i) {
    wenn(m_neu[i], &QPushButton::clicked, this, [this, i] { neu(i); });
    wenn(m_nextvolk[i], &QPushButton::clicked, this, [this, i] { nachbarvolk(i); });
  }
  wenn(m_löschen, &QPushButton::clicked, this, [this] { löschen(); });
  wenn(m_standard[0], &QPushButton::clicked, this, [this] { maskeSichernUndMelden(); });
  wenn(m_standard[1], &QPushButton::clicked, this, [this] { maskeHolen(); });
  for (int slot = 1; slot < AnzahlSlots; ++slot) {
    if (slot == NotizSlot) continue;
    Eingabefeld* feld = m_slots->feld(slot);
    wenn(feld, &Eingabefeld::inhaltNeu, this, [this, slot] { slotGeändert(slot); });
    wenn(feld, &Eingabefeld::verlassen, this, [this, slot] { vorgabenHolen(slot); });
    wenn(feld, &Eingabefeld::ausListeGenommen, this, [this, slot] {
      if (BuchungsArt == 8 && (slot == 1 || slot == 2)) vorgabenHolen(slot);
    });
  }
  // The rows of both colony lists stand in the same order.
  m_volkli->horizontalHeader()->setSectionsClickable(false);
  for (QObject* objekt : QList<QObject*>{m_volkli, m_volkli->viewport(), m_li, m_li->viewport(),
                                         m_kom, m_slots->notiz()})
    objekt->installEventFilter(this);
}

// Enter books from the slots and the buttons; from a list it only leads back to the entry. A note
// takes it as a new line and is booked with Ctrl+Enter.
bool TE_Eingabe::eventFilter(QObject* objekt, QEvent* event) {
  if (objekt == m_volkli->viewport() && event->type() == QEvent::MouseButtonPress)
    m_volkPerTaste = false;
  // Marking by drawing the mouse over rows or with Ctrl+A is no click on one.
  if ((objekt == m_volkli->viewport() && event->type() == QEvent::MouseButtonRelease) ||
      (objekt == m_volkli && event->type() == QEvent::KeyRelease))
    QTimer::singleShot(0, this,
                       [this] { Ereignis::ausführen(this, [this] { markierungNachziehen(); }); });
  if (event->type() == QEvent::KeyPress) {
    const auto& taste = static_cast<const QKeyEvent&>(*event);
    if (objekt == m_volkli) m_volkPerTaste = true;
    if (istEingabetaste(taste)) {
      if (objekt == m_slots->notiz()) {
        if (!(taste.modifiers() & Qt::ControlModifier)) return false;
        m_neu[0]->click();
        return true;
      }
      m_slots->feld(0)->fokussieren();
      return true;
    }
  }
  return Datenformular::eventFilter(objekt, event);
}

// A key held down a moment too long must not book twice.
void TE_Eingabe::keyPressEvent(QKeyEvent* event) {
  if (istEingabetaste(*event) && event->isAutoRepeat())
    event->accept();
  else
    Datenformular::keyPressEvent(event);
}

// A type that can't be shown whole is told; the user may choose another one.
void TE_Eingabe::füllen() {
  m_offen = true;
  m_teiler->restoreState(Fensterablage::lesen(TeilerSchlüssel).toByteArray());
  Ereignis::ausführen(this, [this] { listenFüllen(); });
}

void TE_Eingabe::listenFüllen() {
  const Ereignis::Sanduhr sanduhr;
  const Füllen füllen(m_füllt);
  m_geänderteVölker.clear();
  m_slotarten.fill(Verwaltung::Art::Text);
  m_basis = {};
  m_slots->zurücksetzen(HeuteText);
  const int bereich = EinstellungenZahl[Zahlslots.anzeigebereich];
  m_anzeige->button(bereich == 1 || bereich == 2 ? bereich : 0)->setChecked(true);
  m_opti->button(BuchungsArt)->setChecked(true);
  volkliFüllen();

  m_kom->clear();
  m_kom->addItems(volkstandorte(m_db));
  m_kom->setCurrentIndex(-1);
  MaskeAufbauen();
}

// Built once: moving from colony to colony only moves the row.
void TE_Eingabe::volkliFüllen() {
  const Hauptliste& haupt = *hauptliste();
  const QStringList namen{"Volknr", "Volkname", "Standort"};
  std::vector<Spalte> spalten;
  for (const QString& name : namen) spalten.push_back({name, Feldtyp::Text, 0});
  Datenblock::Bauer bauer(spalten);
  for (int zeile = 0; zeile < haupt.zeilen(); ++zeile)
    for (const QString& name : namen) bauer.text(QStringView(haupt.zelle(zeile, name)));
  m_volkli->setDaten(bauer.fertig());
  m_volkli->setAktuelleZeile(haupt.aktuelleZeile());
  m_volkli->setMarkierteZeilen(haupt.markierteZeilen());
}

void TE_Eingabe::MaskeAufbauen() {
  const Füllen füllen(m_füllt);
  setUpdatesEnabled(false);  // one repaint for the whole change
  const auto zeichnen = qScopeGuard([this] { setUpdatesEnabled(true); });

  // A failure half way must not leave rows of another type or colony: they would be changed and
  // deleted as this one's.
  auto leeren = qScopeGuard([this] { listeLeeren(); });
  const Buchungstyp& typ = buchungstyp(BuchungsArt);
  einkleiden(m_slotarten, typ.art);
  m_slots->alleVerbergen();
  for (const Buchungsslot& slot : typ.plätze) FeldEinrichten(slot);
  if (m_angeordnet != typ.art) m_slots->anordnen(typ);
  m_angeordnet = typ.art;
  BuchungenLaden();
  leeren.dismiss();
  m_slots->feld(0)->fokussieren();
}

void TE_Eingabe::FeldEinrichten(const Buchungsslot& slot) {
  m_slots->einrichten(slot, Verwaltung::pickliste(m_db, slot));
}

void TE_Eingabe::BuchungenLaden() {
  const Ereignis::Sanduhr sanduhr;
  const Füllen füllen(m_füllt);
  QList<QWidget*> gesperrt{hilfeknopf(), schließknopf(), m_volkli};
  for (QAbstractButton* knopf : m_opti->buttons()) gesperrt.append(knopf);
  for (QWidget* control : gesperrt) control->setEnabled(false);
  const auto freigeben = qScopeGuard([&] {
    for (QWidget* control : gesperrt) control->setEnabled(true);
  });

  m_slots->bezeingabeart()->setText(buchungstyp(BuchungsArt).beschriftung);
  const Hauptliste& haupt = *hauptliste();
  const int volk = haupt.aktuelleZeile();
  m_wabenJeMagazin =
      static_cast<int>(Deutsch::gerade(ZahlLesen(haupt.zelle(volk, "Waben_je_Magazin"))));
  m_überschrift->setText(
      listenÜberschrift(haupt.zelle(volk, "Volknr"), haupt.zelle(volk, "Volkname")));
  listeBinden();

  const QString datum = m_slots->text(0);
  m_basis = {};
  if (m_li->zeilen() > 0) {
    m_li->setAktuelleZeile(m_li->zeilen() - 1);
    zeileZeigen(m_li->aktuelleZeile());
    m_slots->setText(0, datum);
  }
  m_slots->bezmw()->clear();
}

// The list shows the bookings of the current colony, or nothing at all: never rows of another type.
void TE_Eingabe::listeBinden() {
  m_li->setLayoutSchlüssel(listenLayoutSchlüssel(BuchungsArt));
  auto leeren = qScopeGuard([this] { listeLeeren(); });
  const auto bereich = static_cast<Anzeigebereich>(m_anzeige->checkedId());
  m_daten = buchungenLesen(m_db, BuchungsArt, volkId(), bereich);
  leeren.dismiss();
  m_li->setDaten(m_daten);
}

void TE_Eingabe::listeLeeren() {
  m_daten = leererBlock();
  m_li->setDaten(m_daten);
}

// The user may have sorted the list: the row is read as it is shown.
void TE_Eingabe::zeileZeigen(int zeile) {
  if (zeile < 0 || zeile >= m_li->zeilen()) return;
  const Füllen füllen(m_füllt);
  std::vector<Spalte> spalten;
  spalten.reserve(static_cast<size_t>(m_daten->spalten()));
  for (int i = 0; i < m_daten->spalten(); ++i) spalten.push_back(m_daten->spalte(i));
  Datenblock::Bauer bauer(spalten);
  for (const Spalte& spalte : spalten) bauer.wert(m_li->wert(zeile, spalte.name));
  einsetzen(zeilentexte(*bauer.fertig(), 0, BuchungsArt));
  if (BuchungsArt == 0) m_basis = wabenstand(m_slots->texte());
  m_slots->bezmw()->clear();
}

void TE_Eingabe::slotGeändert(int nummer) {
  if (m_füllt > 0 || !m_offen) return;
  einsetzen(folgeänderungen(BuchungsArt, nummer, m_slots->texte(), m_wabenJeMagazin));
  if (BuchungsArt == 0) m_slots->bezmw()->setText(wabenbilanz(m_basis, m_slots->texte()));
}

// Only when the user leaves a slot; the program moves the focus too.
void TE_Eingabe::vorgabenHolen(int nummer) {
  if (m_füllt > 0 || !m_offen || !m_db.IsOpen()) return;
  einsetzen(vorgabenBeimVerlassen(m_db, BuchungsArt, nummer, m_slots->texte()));
}

void TE_Eingabe::einsetzen(const QList<Slotänderung>& änderungen) {
  for (const Slotänderung& änderung : änderungen) m_slots->setText(änderung.slot, änderung.text);
}

QString TE_Eingabe::volkId() const {
  return hauptliste()->zelle(hauptliste()->aktuelleZeile(), "ID");
}

void TE_Eingabe::done(int ergebnis) {
  if (m_offen) {
    m_offen = false;
    Fensterablage::schreiben(TeilerSchlüssel, m_teiler->saveState());
    Ereignis::ausführen(this, [this] { abschließen(); });
    listeLeeren();
    m_db.Close();
  }
  Datenformular::done(ergebnis);
}

void TE_Eingabe::abschließen() {
  if (ListeNeuLesen != 1 || !m_db.IsOpen()) return;
  const Ereignis::Sanduhr sanduhr;
  try {
    VolkfelderNachziehen(m_db, m_geänderteVölker);
  } catch (const Datenbankfehler& fehler) {
    throw Datenbankfehler(
        fehler.art(),
        fehler.text() + CRLF + CRLF +
            QString("Die Buchungen sind gespeichert; nur die Angaben der gebuchten Völker in der "
                    "Hauptliste fehlen noch. TOVA trägt sie von selbst nach, sobald die Datenbank "
                    "wieder beschrieben werden kann, auch nach einem Neustart."),
        fehler.anweisung());
  }
}
