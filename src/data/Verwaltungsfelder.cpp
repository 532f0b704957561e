#include "data/Verwaltungsfelder.h"

#include "core/globals.h"
#include "data/Pickliste.h"
#include "data/helpers.h"
#include "platform/database/Recordset.h"
#include "platform/locale/Deutsch.h"

using TZ_Variablen::CRLF;

namespace Verwaltung {

namespace {

// The characters of a whole number, its sign included.
int stellen(qint64 zahl) { return static_cast<int>(QString::number(zahl).size()); }

}  // namespace

Feld Feld::vorgabe(const QString& text) const {
  Feld neu = *this;
  neu.ersterText = text;
  return neu;
}

Feld Feld::liste(const QString& anweisung) const {
  Feld neu = *this;
  neu.listenAnweisung = anweisung;
  return neu;
}

Feld Feld::listeAus(const QString& tabelle) const {
  return liste("select distinct " + feld + " from " + tabelle + " order by " + feld);
}

Feld Feld::genannt(const QString& name) const {
  Feld neu = *this;
  neu.gesprochen = name;
  return neu;
}

Feld Feld::daneben(const QString& name) const {
  Feld neu = genannt(name);
  neu.beschriftung.clear();
  return neu;
}

Feld Feld::angebot(const QStringList& angebotene) const {
  Feld neu = *this;
  neu.texte = angebotene;
  return neu;
}

Feld Feld::knapp() const {
  Feld neu = *this;
  neu.ohneFüllnullen = true;
  return neu;
}

bool Feld::hatPickliste() const {
  return !listenAnweisung.isEmpty() || (art == Art::Text && !texte.isEmpty());
}

Feld Feld::einheit(const QString& text) const {
  Feld neu = *this;
  neu.zeichen = text;
  return neu;
}

Feld Feld::gezeigt() const {
  Feld neu = *this;
  neu.nurAnzeige = true;
  return neu;
}

Feld Feld::ab(qint64 kleinste) const {
  Feld neu = *this;
  neu.von = kleinste;
  neu.maxLänge = std::max(neu.maxLänge, stellen(kleinste));
  return neu;
}

Feld text(const QString& feld, const QString& beschriftung, int länge) {
  return {Art::Text, feld, beschriftung, länge};
}

Feld auswahl(const QString& feld, const QString& beschriftung, const QStringList& texte) {
  return {Art::Auswahl, feld, beschriftung, 0, 0, 0, texte};
}

Feld ganzzahl(const QString& feld, const QString& beschriftung, qint64 bis) {
  return {Art::Ganzzahl, feld, beschriftung, stellen(bis), 0, bis};
}

Feld dezimal(const QString& feld, const QString& beschriftung, int länge, int nachkommastellen) {
  return {Art::Dezimal, feld, beschriftung, länge, nachkommastellen};
}

Feld geld(const QString& feld, const QString& beschriftung, int länge) {
  return dezimal(feld, beschriftung, länge, 2).einheit("€");
}

Feld notiz(const QString& feld, const QString& name) {
  Feld neu{Art::Notiz, feld, {}};
  neu.gesprochen = name;
  return neu;
}

Feld datum(const QString& feld, const QString& beschriftung) {
  return {Art::Datum, feld, beschriftung, 10};
}

Feld tagMonat(const QString& feld, const QString& beschriftung) {
  return {Art::TagMonat, feld, beschriftung};
}

Feld Feld::wörtlich() const {
  Feld neu = *this;
  neu.unverändert = true;
  return neu;
}

Texte vorgaben(const Felder& felder) {
  Texte texte;
  for (const Feld& feld : felder) texte[feld.feld] = feld.ersterText;
  return texte;
}

QString feldtext(const Feld& feld, const QVariant& wert) {
  if (wert.isNull()) return {};
  if (feld.unverändert) return wert.toString();
  if (feld.art != Art::Dezimal) return TextLesen(wert);
  QString genau = Deutsch::schlicht(wert.toDouble());
  if (feld.ohneFüllnullen) return genau;
  const QString gerundet = Deutsch::zahl(wert.toDouble(), feld.nachkommastellen);
  const bool passt = feld.maxLänge == 0 || gerundet.size() <= feld.maxLänge;
  return passt && ZahlLesenDoppelt(gerundet) == ZahlLesenDoppelt(genau) ? gerundet : genau;
}

QVariant feldwert(const Feld& feld, const QString& text) {
  switch (feld.art) {
    case Art::Ganzzahl:
      return GanzLesen(text);
    case Art::Dezimal:
      return ZahlLesen(text);
    case Art::Datum:
      return IstDatum(text) ? QVariant(DatumLesen(text)) : QVariant();
    case Art::Text:
    case Art::Auswahl:
    case Art::TagMonat:
    case Art::Notiz:
      break;
  }
  return feld.unverändert ? text : TextLesen(text);
}

QStringList pickliste(Database& datenbank, const Feld& feld) {
  if (!feld.hatPickliste()) return {};
  if (feld.listenAnweisung.isEmpty()) return feld.texte;
  return Pickliste::lesen(datenbank, feld.listenAnweisung);
}

qint64 speichern(Database& datenbank, const QString& tabelle, const Felder& felder,
                 const Texte& texte, std::optional<qint64> id, const QVariantHash& weitere) {
  Recordset zeile =
      id ? datenbank.OpenRecordset("select top 1 * from " + tabelle + " where ID = ?", {*id})
         : datenbank.OpenRecordset("select top 1 * from " + tabelle);
  if (id && zeile.RecordCount() == 0)
    throw Datenbankfehler(Datenbankfehler::Art::Allgemein,
                          "Der Datensatz kann nicht geändert werden, weil er in der Datenbank "
                          "nicht mehr vorhanden ist.");
  if (id)
    zeile.Edit();
  else
    zeile.AddNew();
  for (auto wert = weitere.begin(); wert != weitere.end(); ++wert) zeile[wert.key()] = wert.value();
  for (const Feld& feld : felder)
    if (!feld.nurAnzeige) zeile[feld.feld] = feldwert(feld, texte.value(feld.feld));
  zeile.Update();
  return id ? *id : datenbank.LetzteID();
}

bool vorhanden(Database& datenbank, const QString& tabelle, const Feld& feld, const QString& text,
               std::optional<qint64> id) {
  const QVariant wert = feldwert(feld, text);
  if (wert.isNull()) return false;
  QString anweisung = "select " + feld.feld + " from " + tabelle + " where " + feld.feld + " = ?";
  QVariantList werte{wert};
  if (id) {
    anweisung += " and ID <> ?";
    werte << *id;
  }
  return datenbank.Lesen(anweisung, werte)->zeilen() > 0;
}

QString ablehnung(const QStringList& gründe) {
  return "Die Daten werden nicht gespeichert, weil..." + CRLF + CRLF + gründe.join(CRLF);
}

}  // namespace Verwaltung
