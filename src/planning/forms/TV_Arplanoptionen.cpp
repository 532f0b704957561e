#include "planning/forms/TV_Arplanoptionen.h"

#include <QPushButton>
#include <QScopeGuard>
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
#include "platform/database/Kollation.h"

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

TV_Arplanoptionen::TV_Arplanoptionen(QWidget* oeffner)
    : Formular("TV_Arplanoptionen", "Arbeitsplan-Optionen", oeffner) {
  aufbauen();
}

void TV_Arplanoptionen::setTerminverwaltung(std::function<void()> oeffnen) {
  m_terminverwaltung = std::move(oeffnen);
  terminverwaltung->setEnabled(static_cast<bool>(m_terminverwaltung));
}

void TV_Arplanoptionen::zeigen() {
  const auto ende = qScopeGuard([this] { entladen(); });
  laden();
  Formular::zeigen();
}

void TV_Arplanoptionen::laden() {
  calender->setText(QString("Alle Termine für das aktuelle Jahr ") + HeuteText.mid(6, 4) +
                    QString(" löschen und wieder neu setzen"));
  m_db = Arbeitsbereich.OpenDatabase(DatenbankPfad);
  arbeitsartenFuellen();
  leeren();
  listeLaden();
  sevt[0]->setFocus();
}

void TV_Arplanoptionen::entladen() {
  liarplan->setDaten({});
  m_db.Close();
}

void TV_Arplanoptionen::listeLaden() {
  liarplan->setDaten(m_db.Lesen(optionenAnweisung()));
  AlteArbeitsart.clear();
}

void TV_Arplanoptionen::arbeitsartenFuellen() {
  Eingabefeld::Beschreibung b = sevt[6]->beschreibung();
  b.auswahl = erledigtArbeitsarten(m_db);
  sevt[6]->einrichten(b);
}

void TV_Arplanoptionen::leeren() {
  for (Eingabefeld* feld : sevt) feld->setInhalt(feld->beschreibung().ersterText);
}

void TV_Arplanoptionen::zeileZeigen(int zeile) {
  if (zeile < 0 || zeile >= liarplan->zeilen()) return;
  for (size_t i = 0; i < sevt.size(); ++i) {
    const QString text = TextLesen(liarplan->wert(zeile, optionsfelder()[i].feld));
    const bool wahl = i >= 5;
    sevt[i]->setInhalt(wahl ? angebotener(text, sevt[i]->beschreibung().auswahl) : text);
  }
  AlteArbeitsart = liarplan->wert(zeile, "Arbeitsart").toString();
}

// Enter and the mnemonics leave the focus in a date: it is completed as on leaving it.
Optionseingabe TV_Arplanoptionen::eingabe() const {
  Optionseingabe texte;
  for (size_t i = 0; i < sevt.size(); ++i) texte[i] = sevt[i]->inhalt();
  for (const size_t i : {1, 2})
    if (const QString tag = Eingaberegel::tagMonat(texte[i]); !tag.isEmpty()) texte[i] = tag;
  return texte;
}

qint64 TV_Arplanoptionen::aktuelleId() const {
  const int zeile = liarplan->aktuelleZeile();
  return zeile < 0 ? 0 : liarplan->wert(zeile, "ID").toLongLong();
}

bool TV_Arplanoptionen::darfSpeichern(int index) {
  QString grund = optionPruefen(eingabe());
  if (grund.isEmpty() && index == 1 && aktuelleId() == 0)
    grund = QString("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  if (grund.isEmpty())
    grund = optionsnamePruefen(m_db, sevt[0]->inhalt(), index == 1 ? aktuelleId() : 0);
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
      optionUmbenennen(m_db, id, texte[0], AlteArbeitsart);
    else
      optionAnlegen(m_db, texte);
  } catch (...) {
    neuLesen(id);
    for (size_t i = 0; i < sevt.size(); ++i) sevt[i]->setInhalt(texte[i]);
    throw;
  }
  nachSpeichern(TextLesen(texte[0]));
}

void TV_Arplanoptionen::nachSpeichern(const QString& arbeitsart) {
  Tastenton();
  leeren();
  listeLaden();
  const int zeile = liarplan->findeZeile("Arbeitsart = '" + arbeitsart + "'");
  if (zeile >= 0) liarplan->setAktuelleZeile(zeile);
  zeileZeigen(zeile);
  sevt[0]->setFocus();
  sevt[0]->selectAll();  // the next name is typed over it
}

// After a failure: the list shows what is in the database now, and the record of before.
void TV_Arplanoptionen::neuLesen(qint64 id) {
  leeren();
  listeLaden();
  const int zeile = id == 0 ? -1 : liarplan->findeZeile("ID = " + QString::number(id));
  if (zeile >= 0) liarplan->setAktuelleZeile(zeile);
  zeileZeigen(zeile);
}

void TV_Arplanoptionen::loeschen() {
  const int zeile = liarplan->aktuelleZeile();
  if (zeile < 0) {
    Meldungen::Hinweis(
        QString("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten."), this);
    return;
  }
  if (!LoeschenBestaetigt()) return;
  const qint64 id = aktuelleId();
  const QString arbeitsart = AlteArbeitsart;  // the next row becomes current meanwhile
  try {
    optionLöschen(m_db, arbeitsart,
                  [&] { liarplan->loescheZeile(zeile, m_db, "Arbeitsplanoptionen"); });
  } catch (...) {
    // The row may have left the list although the option is still there.
    neuLesen(id);
    throw;
  }
  if (liarplan->aktuelleZeile() < 0) leeren();
  zeileZeigen(liarplan->aktuelleZeile());
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
  for (int i = 0; i < liarplan->zeilen(); ++i)
    optionen.append({liarplan->wert(i, "ID").toLongLong(),
                     liarplan->wert(i, "Arbeitsart").toString(),
                     liarplan->wert(i, QString("Volkabhängig")).toString()});
  {
    Laufanzeige anzeige(this);
    alleTermineBerechnen(m_db, optionen, [&anzeige](qint64 fertig, qint64 gesamt) {
      anzeige.zeige(fertig, gesamt);
    });
  }
  Meldungen::Hinweis(QString("Die Termine wurden gelöscht und neu gesetzt."), this);
}
