#include "colonies/forms/TV_Neues_Volk.h"

#include <QCheckBox>
#include <QPushButton>
#include <QScopeGuard>
#include <QTabWidget>

#include "colonies/Volk.h"
#include "core/globals.h"
#include "core/main_list.h"
#include "data/Pickliste.h"
#include "data/forms/helpers_forms.h"
#include "data/helpers.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Meldungen.h"

namespace {

[[noreturn]] void volkFehlt() {
  throw Datenbankfehler(Datenbankfehler::Art::Allgemein,
                        "Das markierte Volk ist in der Datenbank nicht mehr vorhanden.");
}

}  // namespace

TV_Neues_Volk::TV_Neues_Volk(QWidget* oeffner)
    : Formular("TV_Neues_Volk", "Neues Volk eingeben", oeffner) {
  aufbauen();
}

bool TV_Neues_Volk::istNeu() const { return TZ_Variablen::VolkModus != QString("Ändern"); }

void TV_Neues_Volk::zeigen() {
  const auto ende = qScopeGuard([this] { m_db.Close(); });
  laden();
  Formular::zeigen();
}

void TV_Neues_Volk::laden() {
  m_db = TZ_Variablen::Arbeitsbereich.OpenDatabase(TZ_Variablen::DatenbankPfad);
  setWindowTitle(istNeu() ? QString("Neues Volk eingeben") : QString("Volk ändern"));
  oknächster[0]->setText(istNeu() ? QString("Speichern, nächstes &neues Volk")
                                  : QString("Speichern, &nächstes Volk"));
  oknächster[1]->setVisible(!istNeu());
  listenFuellen();
  sevt[0]->setInhalt({});  // numbers are counted on from one opening only
  datenLaden();
  fokusAuf(sevt[0]);
}

void TV_Neues_Volk::listenFuellen() {
  for (const Volkfeld& f : volkfelder()) {
    const QString anweisung = f.listenAnweisung();
    if (!anweisung.isEmpty()) feld(f)->setListe(Pickliste::lesen(m_db, anweisung));
  }
}

void TV_Neues_Volk::datenLaden() {
  if (istNeu()) {
    m_id = 0;
    zeigeEingabe(volkNeu(sevt[0]->inhalt()));
    return;
  }
  Hauptliste* liste = hauptliste();
  const qint64 id = liste->zelle(liste->aktuelleZeile(), "ID").toLongLong();
  const std::optional<Volkeingabe> volk = volkLaden(m_db, id);
  if (!volk) volkFehlt();
  m_id = id;
  zeigeEingabe(*volk);
}

void TV_Neues_Volk::zeigeEingabe(const Volkeingabe& volk) {
  for (const Volkfeld& f : volkfelder()) feld(f)->setInhalt(volk[f]);
  kon->setChecked(volk.kon);
  m_geladen = eingabe();
}

Volkeingabe TV_Neues_Volk::eingabe() const {
  Volkeingabe volk;
  for (const Volkfeld& f : volkfelder()) volk[f] = feld(f)->inhalt();
  volk.kon = kon->isChecked();
  return volk;
}

Eingabefeld* TV_Neues_Volk::feld(const Volkfeld& f) const {
  const auto i = static_cast<size_t>(f.index);
  return f.array == Volkarray::sevt ? sevt[i] : sevtx[i];
}

bool TV_Neues_Volk::speichern() {
  const Volkeingabe volk = eingabe();
  const QString gründe = volkPruefen(m_db, m_id, volk);
  if (!gründe.isEmpty()) {
    Meldungen::Hinweis(gründe, this);
    fokusAuf(gründe.contains("...die Volknummer") ? sevt[0] : sevt[13]);
    return false;
  }
  const Volkfragen fragen{
      [this](const QString& text) { return Meldungen::Frage(text, Meldungen::Vorgabe::Ja, this); },
      [this](const QString& text) { Meldungen::Hinweis(text, this); }};
  volkSpeichern(m_db, m_id, volk, m_geladen, fragen);
  return true;
}

// Index 1 goes one row back, index 0 one row forward; a new colony is followed by the next new one.
void TV_Neues_Volk::speichernUndWeiter(int index) {
  if (!speichern()) return;
  if (istNeu()) {
    hauptliste()->datenvölkerlesen();
  } else if (hauptliste()->zeilen() >= 2) {
    VolkWechseln(index == 1 ? 0 : 1);
  }
  listenFuellen();
  datenLaden();
  // Who walks through the colonies changes the same values in each, so the tab stays.
  fokusAuf(istNeu() ? sevt[0] : erstesFeld(reiter->currentIndex()));
  Tastenton();
}

void TV_Neues_Volk::standardSichern() {
  volkStandardSchreiben(eingabe());
  Meldungen::Hinweis(
      "Die Standardwerte wurden gesichert und werden ab sofort bei jeder Volk-Neueingabe als "
      "Standardwerte vorgegeben.",
      this);
}

void TV_Neues_Volk::fokusAuf(Eingabefeld* feld) {
  for (int i = 0; i < reiter->count(); ++i)
    if (reiter->widget(i)->isAncestorOf(feld)) reiter->setCurrentIndex(i);
  feld->setFocus();
  feld->selectAll();
}

Eingabefeld* TV_Neues_Volk::erstesFeld(int reiterNummer) const {
  for (const Volkfeld& f : volkfelder())
    if (volkgruppen().at(f.gruppe).reiter == reiterNummer) return feld(f);
  return sevt[0];
}

bool volkLoeschenMitFrage(QWidget* fenster) {
  Hauptliste* liste = hauptliste();
  const int zeile = liste->aktuelleZeile();
  if (zeile < 0) return false;
  if (!Meldungen::Frage("Das Löschen eines Volkes entfernt das markierte Volk unwiederbringlich "
                        "mit allen zu diesem Volk gehörenden Buchungen aus der Datenbank." +
                            TZ_Variablen::CRLF + TZ_Variablen::CRLF +
                            "Soll das markierte Volk wirklich gelöscht werden?",
                        Meldungen::Vorgabe::Nein, fenster))
    return false;
  const qint64 id = liste->zelle(zeile, "ID").toLongLong();
  if (id == 0) volkFehlt();  // 0 would take the appointments that belong to no colony
  try {
    TZ_Variablen::DB.Sammelschreiben([&] {
      VolkLoeschen(TZ_Variablen::DB, id);
      liste->loescheZeile(zeile);
    });
  } catch (...) {
    // The row may have left the list although the colony is still there.
    TZ_Variablen::ListeNeuLesen = 1;
    throw;
  }
  return true;
}
