#include "evaluations/Listenzeilen.h"

#include "data/helpers.h"

namespace Auswertung {

namespace {

struct Feld {
  QString schlüssel;
  QString titel;
};

const Feld Felder[] = {{QStringLiteral("volknr"), QStringLiteral("Volknr")},
                       {QStringLiteral("volkname"), QStringLiteral("Volkname")},
                       {QStringLiteral("standort"), QStringLiteral("Standort")}};
constexpr int Kennung = 3;  // the column behind them

}  // namespace

void Volkplätze::setze(qint64 id, int platz) {
  constexpr qint64 Grenze = 1 << 20;
  if (id < 0 || id >= Grenze) {
    m_große[id] = platz;
    return;
  }
  const auto stelle = static_cast<size_t>(id);
  if (stelle >= m_kleine.size()) m_kleine.resize(stelle + 1, -1);
  m_kleine[stelle] = platz;
}

void kontierWennKeine(Eingaben& eingaben) {
  const auto an = [&](int feld) { return eingaben.an(QStringLiteral("kontier"), feld); };
  if (an(0) || an(1) || an(2)) return;
  for (const int feld : {0, 1, 2}) eingaben.setAn(QStringLiteral("kontier"), feld, true);
}

Listenzeilen Listenzeilen::jeVolk(Lauf& lauf, const QString& rest, Jahre jahre) {
  Listenzeilen zeilen(jahre);
  zeilen.m_jeVolk = true;
  zeilen.völkerLesen(lauf, rest);
  for (int feld = 0; feld < Kennung; ++feld)
    if (lauf.eingaben.an(QStringLiteral("kontier"), feld)) zeilen.m_felder += feld;
  return zeilen;
}

Listenzeilen Listenzeilen::jeJahr(Jahre jahre) { return Listenzeilen(jahre); }

Listenzeilen Listenzeilen::jeJahr(Lauf& lauf, const QString& rest, Jahre jahre) {
  Listenzeilen zeilen(jahre);
  zeilen.völkerLesen(lauf, rest);
  return zeilen;
}

Listenzeilen Listenzeilen::wieGewählt(Lauf& lauf) {
  const QString rest = qualifizierterRest(lauf.eingaben);
  const Jahre zeitraum = Auswertung::jahre(lauf.eingaben);
  return nachVölkern(lauf.eingaben) ? jeVolk(lauf, rest, zeitraum) : jeJahr(lauf, rest, zeitraum);
}

void Listenzeilen::völkerLesen(Lauf& lauf, const QString& rest) {
  m_nurVölker = true;
  m_völker =
      lauf.db.Lesen(QStringLiteral("select Volknr, Volkname, Standort, ID from Bienenvolk") + rest);
  for (int i = 0; i < m_völker->zeilen(); ++i) m_plätze.setze(m_völker->ganzzahl(i, Kennung), i);
}

int Listenzeilen::anzahl() const { return m_jeVolk ? m_völker->zeilen() : m_jahre.anzahl(); }

void Listenzeilen::kopfspalten(Tabelle& tabelle, const QString& jahr) const {
  if (!m_jeVolk) tabelle.spalte(jahr, QStringLiteral("Jahr"));
  for (const int feld : m_felder) tabelle.spalte(Felder[feld].schlüssel, Felder[feld].titel);
}

void Listenzeilen::kopf(Tabelle& tabelle, int zeile) const {
  if (!m_jeVolk) tabelle.text(QString::number(m_jahre.von + zeile));
  for (const int feld : m_felder) tabelle.text(TextLesen(m_völker->wert(zeile, feld)));
}

void Listenzeilen::schluss(Tabelle& tabelle, const QString& wort) const {
  const qsizetype spalten = m_jeVolk ? m_felder.size() : 1;
  for (qsizetype i = 0; i < spalten; ++i) tabelle.text(i == 0 ? wort : QString());
}

}  // namespace Auswertung
