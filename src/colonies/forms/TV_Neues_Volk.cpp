#include "colonies/forms/TV_Neues_Volk.h"

#include <QCheckBox>
#include <QPushButton>
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

TV_Neues_Volk::TV_Neues_Volk(QWidget* öffner)
    : Datenformular("TV_Neues_Volk", "Neues Volk eingeben", öffner) {
  aufbauen();
}

bool TV_Neues_Volk::istNeu() const { return TZ_Variablen::VolkModus != QString("Ändern"); }

void TV_Neues_Volk::füllen() {
  setWindowTitle(istNeu() ? QString("Neues Volk eingeben") : QString("Volk ändern"));
  m_oknächster[0]->setText(istNeu() ? QString("Speichern, nächstes &neues Volk")
                                    : QString("Speichern, &nächstes Volk"));
  m_oknächster[1]->setVisible(!istNeu());
  listenFüllen();
  m_sevt[0]->setInhalt({});  // numbers are counted on from one opening only
  datenLaden();
  fokusAuf(m_sevt[0]);
}

void TV_Neues_Volk::listenFüllen() {
  for (const Volkfeld& f : volkfelder()) {
    if (f.hatPickliste()) feld(f)->setListe(Verwaltung::pickliste(m_db, f));
  }
}

void TV_Neues_Volk::datenLaden() {
  if (istNeu()) {
    m_id = 0;
    zeigeEingabe(volkNeu(m_sevt[0]->inhalt()));
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
  m_kon->setChecked(volk.kon);
  m_geladen = eingabe();
}

Volkeingabe TV_Neues_Volk::eingabe() const {
  Volkeingabe volk;
  for (const Volkfeld& f : volkfelder()) volk[f] = feld(f)->inhalt();
  volk.kon = m_kon->isChecked();
  return volk;
}

Eingabefeld* TV_Neues_Volk::feld(const Volkfeld& f) const {
  const auto i = static_cast<size_t>(f.index);
  return f.array == Volkarray::sevt ? m_sevt[i] : m_sevtx[i];
}

bool TV_Neues_Volk::speichern() {
  const Volkeingabe volk = eingabe();
  const QString gründe = volkPrüfen(m_db, m_id, volk);
  if (!gründe.isEmpty()) {
    Meldungen::Hinweis(gründe, this);
    fokusAuf(gründe.contains("...die Volknummer") ? m_sevt[0] : m_sevt[13]);
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
  listenFüllen();
  datenLaden();
  // Who walks through the colonies changes the same values in each, so the tab stays.
  fokusAuf(istNeu() ? m_sevt[0] : erstesFeld(m_reiter->currentIndex()));
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
  for (int i = 0; i < m_reiter->count(); ++i)
    if (m_reiter->widget(i)->isAncestorOf(feld)) m_reiter->setCurrentIndex(i);
  feld->fokussieren();
}

Eingabefeld* TV_Neues_Volk::erstesFeld(int reiterNummer) const {
  for (const Volkfeld& f : volkfelder())
    if (volkgruppen().at(f.gruppe).reiter == reiterNummer) return feld(f);
  return m_sevt[0];
}

bool volkLöschenMitFrage(QWidget* fenster) {
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
      liste->löscheZeile(zeile);
    });
  } catch (...) {
    // Part of it may be done; the list shows then what is left.
    TZ_Variablen::ListeNeuLesen = 1;
    throw;
  }
  return true;
}
