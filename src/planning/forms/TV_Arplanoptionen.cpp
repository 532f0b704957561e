#include "planning/forms/TV_Arplanoptionen.h"

#include <QPushButton>
#include <algorithm>

#include "core/globals.h"
#include "data/forms/helpers_forms.h"
#include "data/helpers.h"
#include "planning/forms/Terminlauf.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Eingaberegel.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"
#include "platform/database/werte/Kollation.h"

using namespace TZ_Variablen;

namespace {

// What the choice offers of this text, as the choice spells it; empty when it doesn't.
QString angebotener(const QString& text, const QStringList& angebot) {
  const auto treffer = std::find_if(angebot.cbegin(), angebot.cend(), [&](const QString& anderer) {
    return Kollation::vergleiche(anderer, text) == 0;
  });
  return treffer == angebot.cend() ? QString() : *treffer;
}

}  // namespace

TV_Arplanoptionen::TV_Arplanoptionen(QWidget* öffner)
    : Datenformular("TV_Arplanoptionen", "Arbeitsplan-Optionen", öffner) {
  aufbauen();
}

void TV_Arplanoptionen::füllen() {
  m_calender->setText(QString("Alle Termine für das aktuelle Jahr ") + HeuteText.mid(6, 4) +
                      QString(" löschen und wieder neu setzen"));
  arbeitsartenFüllen();
  leeren();
  listeLaden();
  m_sevt[0]->fokussieren();
}

void TV_Arplanoptionen::loslassen() {
  m_liarplan->setDaten({});
  Datenformular::loslassen();
}

void TV_Arplanoptionen::listeLaden() {
  m_liarplan->setDaten(m_db.Lesen(optionenAnweisung()));
  m_alteArbeitsart.clear();
}

void TV_Arplanoptionen::arbeitsartenFüllen() {
  Eingabefeld::Beschreibung b = m_sevt[6]->beschreibung();
  b.auswahl = erledigtArbeitsarten(m_db);
  m_sevt[6]->einrichten(b);
}

void TV_Arplanoptionen::leeren() {
  for (Eingabefeld* feld : m_sevt) feld->setInhalt(feld->beschreibung().ersterText);
}

void TV_Arplanoptionen::zeileZeigen(int zeile) {
  if (zeile < 0 || zeile >= m_liarplan->zeilen()) return;
  for (size_t i = 0; i < m_sevt.size(); ++i) {
    const QString text = TextLesen(m_liarplan->wert(zeile, optionsfelder()[i].feld));
    const bool wahl = i >= 5;
    m_sevt[i]->setInhalt(wahl ? angebotener(text, m_sevt[i]->beschreibung().auswahl) : text);
  }
  m_alteArbeitsart = m_liarplan->wert(zeile, "Arbeitsart").toString();
}

// Enter and the mnemonics leave the focus in a date: it is completed as on leaving it.
Optionseingabe TV_Arplanoptionen::eingabe() const {
  Optionseingabe texte;
  for (size_t i = 0; i < m_sevt.size(); ++i) texte[i] = m_sevt[i]->inhalt();
  for (const size_t i : {1, 2})
    if (const QString tag = Eingaberegel::tagMonat(texte[i]); !tag.isEmpty()) texte[i] = tag;
  return texte;
}

qint64 TV_Arplanoptionen::aktuelleId() const {
  const int zeile = m_liarplan->aktuelleZeile();
  return zeile < 0 ? 0 : m_liarplan->wert(zeile, "ID").toLongLong();
}

bool TV_Arplanoptionen::darfSpeichern(int index) {
  QString grund = optionPrüfen(eingabe());
  if (grund.isEmpty() && index == 1 && aktuelleId() == 0)
    grund = QString("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  if (grund.isEmpty())
    grund = optionsnamePrüfen(m_db, m_sevt[0]->inhalt(), index == 1 ? aktuelleId() : 0);
  if (grund.isEmpty()) return true;
  Meldungen::Hinweis(grund, this);
  return false;
}

void TV_Arplanoptionen::neu(int index) {
  if (!darfSpeichern(index)) return;
  const Optionseingabe texte = eingabe();
  if (index == 1)
    Meldungen::Hinweis(
        QString("Sie haben [Ändern] ausgewählt. Bitte beachten Sie, daß lediglich der Inhalt des "
                "Feldes Arbeitsart geändert wird. Falls Sie ein anderes Datenfeld ändern möchten, "
                "dann müssen Sie den Termin vorher löschen und wieder neu anlegen."),
        this);
  const qint64 id = aktuelleId();
  try {
    const Ereignis::Sanduhr sanduhr;
    if (index == 1)
      optionUmbenennen(m_db, id, texte[0], m_alteArbeitsart);
    else
      optionAnlegen(m_db, texte);
  } catch (...) {
    neuLesen(id);
    for (size_t i = 0; i < m_sevt.size(); ++i) m_sevt[i]->setInhalt(texte[i]);
    throw;
  }
  nachSpeichern(TextLesen(texte[0]));
}

void TV_Arplanoptionen::nachSpeichern(const QString& arbeitsart) {
  Tastenton();
  leeren();
  listeLaden();
  const int zeile = m_liarplan->findeZeile("Arbeitsart = '" + arbeitsart + "'");
  if (zeile >= 0) m_liarplan->setAktuelleZeile(zeile);
  zeileZeigen(zeile);
  m_sevt[0]->fokussieren();  // the next name is typed over it
}

// After a failure: the list shows what is in the database now, and the record of before.
void TV_Arplanoptionen::neuLesen(qint64 id) {
  leeren();
  listeLaden();
  const int zeile = id == 0 ? -1 : m_liarplan->findeZeile("ID = " + QString::number(id));
  if (zeile >= 0) m_liarplan->setAktuelleZeile(zeile);
  zeileZeigen(zeile);
}

void TV_Arplanoptionen::löschen() {
  const int zeile = m_liarplan->aktuelleZeile();
  if (zeile < 0) {
    Meldungen::Hinweis(
        QString("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten."), this);
    return;
  }
  if (!LoeschenBestaetigt()) return;
  const qint64 id = aktuelleId();
  const QString arbeitsart = m_alteArbeitsart;  // the next row becomes current meanwhile
  try {
    optionLöschen(m_db, arbeitsart,
                  [&] { m_liarplan->löscheZeile(zeile, m_db, "Arbeitsplanoptionen"); });
  } catch (...) {
    neuLesen(id);
    throw;
  }
  if (m_liarplan->aktuelleZeile() < 0) leeren();
  zeileZeigen(m_liarplan->aktuelleZeile());
}

void TV_Arplanoptionen::alleBerechnen() {
  const QString frage =
      QString(
          "Durch diese Aktion werden alle Termine lt. Arbeitsplanoptionen aus dem aktuellen "
          "Jahr ") +
      HeuteText.mid(6, 4) +
      QString(
          " gelöscht und neu berechnet. Es werden auch die erledigten Termine gelöscht. Berechnet "
          "werden die Termine lediglich ab dem aktuellen Datum ") +
      HeuteText + u'.' + CRLF + CRLF + QString("Soll die Aktion wirklich ausgeführt werden?");
  if (!Meldungen::Frage(frage, Meldungen::Vorgabe::Ja, this)) return;
  QList<Optionszeile> optionen;
  for (int i = 0; i < m_liarplan->zeilen(); ++i)
    optionen.append({m_liarplan->wert(i, "ID").toLongLong(),
                     m_liarplan->wert(i, "Arbeitsart").toString(),
                     m_liarplan->wert(i, QString("Volkabhängig")).toString()});
  {
    Laufanzeige anzeige(this);
    alleTermineBerechnen(m_db, optionen, [&anzeige](qint64 fertig, qint64 gesamt) {
      anzeige.zeige(fertig, gesamt);
    });
  }
  Meldungen::Hinweis(QString("Die Termine wurden gelöscht und neu gesetzt."), this);
}
