#include "evaluations/Auswertung.h"

#include <algorithm>

#include "core/globals.h"
#include "data/helpers.h"
#include "platform/locale/Deutsch.h"

using namespace TZ_Variablen;

namespace Auswertung {

// ---- inputs ----

namespace {

Eingabe eingabe(Art art, const QString& name, const QString& titel) {
  Eingabe e;
  e.art = art;
  e.name = name;
  e.titel = titel;
  return e;
}

Eingabe offeneListe(Art art, const QString& name, const QString& titel, Postenquelle posten) {
  Eingabe e = eingabe(art, name, titel);
  e.posten = std::move(posten);
  return e;
}

}  // namespace

Eingabe haken(const QString& name, int index, const QString& titel) {
  return haken(Eingaben::glied(name, index), titel);
}

Eingabe haken(const QString& name, const QString& titel) {
  return eingabe(Art::Haken, name, titel);
}

Eingabe optionen(const QString& name, const QStringList& titel, int vorgabe) {
  Eingabe e = eingabe(Art::Optionen, name, {});
  e.texte = titel;
  e.vorgabe = QString::number(vorgabe);
  return e;
}

Eingabe auswahl(const QString& name, const QString& titel, Postenquelle posten) {
  return offeneListe(Art::Auswahl, name, titel, std::move(posten));
}

Eingabe liste(const QString& name, const QString& titel, Postenquelle posten) {
  return offeneListe(Art::Liste, name, titel, std::move(posten));
}

Eingabe merkliste(const QString& name, const QString& titel, Postenquelle posten) {
  return offeneListe(Art::Merkliste, name, titel, std::move(posten));
}

Eingabe wahltext(const QString& name, const QString& titel, Postenquelle posten) {
  return offeneListe(Art::Wahltext, name, titel, std::move(posten));
}

Eingabe nebenliste(const QString& name, const QString& titel, const QString& liste) {
  return eingabe(Art::Nebenliste, name, titel).abhängigVon(liste);
}

Eingabe text(const QString& name, const QString& titel, int maxLänge) {
  Eingabe e = eingabe(Art::Text, name, titel);
  e.maxLänge = maxLänge;
  return e;
}

Eingabe betrag(const QString& name, const QString& titel) {
  return eingabe(Art::Betrag, name, titel);
}

Eingabe ganzzahl(const QString& name, const QString& titel, qint64 bis) {
  Eingabe e = eingabe(Art::Ganzzahl, name, titel);
  e.bis = bis;
  return e;
}

Eingabe datum(const QString& name, const QString& titel) {
  return eingabe(Art::Datum, name, titel);
}

Eingabe jahr(const QString& name, const QString& titel) {
  return offeneListe(Art::Jahr, name, titel, [](Database&, const Eingaben&) {
    constexpr int Spanne = 10;
    QList<Posten> jahre;
    for (int i = -Spanne; i <= Spanne; ++i) {
      const QString j = QString::number(diesesJahr().toInt() + i);
      jahre.append({j, j});
    }
    return jahre;
  });
}

Eingabe anzeige(const QString& name) { return eingabe(Art::Anzeige, name, {}); }

Eingabe lesetext(const QString& name, const QString& titel, const QStringList& zeilen) {
  Eingabe e = eingabe(Art::Lesetext, name, titel);
  e.texte = zeilen;
  return e;
}

Eingabe knopf(const QString& name, const QString& titel) {
  return eingabe(Art::Befehl, name, titel);
}

Postenquelle feste(const QStringList& texte) {
  QList<Posten> posten;
  for (const QString& t : texte) posten.append({t, t});
  return feste(posten);
}

Postenquelle feste(const QList<Posten>& posten) {
  return [posten](Database&, const Eingaben&) { return posten; };
}

Postenquelle felderVon(const QString& tabelle, const QStringList& ohne) {
  return [tabelle, ohne](Database& db, const Eingaben&) {
    QList<Posten> posten;
    for (const Spalte& s : db.Felder(tabelle))
      if (!ohne.contains(s.name)) posten.append({s.name, s.name});
    return posten;
  };
}

Gruppe völkerwahl(int spalte) {
  // "befindlichichen" is how all these forms have it.
  return {QStringLiteral("Völkerauswahl"),
          {optionen(QStringLiteral("optitieraus"),
                    {QStringLiteral("Alle im Bestand befindlichichen Völker"),
                     QStringLiteral("Alle Völker"), QStringLiteral("Selektierte Völker"),
                     QStringLiteral("Alle nicht im Bestand befindl. Völker"),
                     QStringLiteral("Aktuelles Volk")})
               .slot(Zahlslots.völkerwahl)},
          spalte};
}

Gruppe volkfelder(const QString& titel, const QList<Zahlslot>& ablage, int spalte) {
  const QStringList texte{QStringLiteral("Volknummer"), QStringLiteral("Volkname"),
                          QStringLiteral("Standort")};
  Gruppe gruppe{titel, {}, spalte, 3};
  for (int i = 0; i < ablage.size(); ++i)
    gruppe.eingaben += haken(QStringLiteral("kontier"), i, texte.at(i)).slot(ablage.at(i));
  return gruppe;
}

Gruppe buchungsauswahl(const QString& titel, const QStringList& texte, const Zahlslot& ablage,
                       int spalte) {
  const QString optibuch = QStringLiteral("optibuch");
  return {titel,
          {optionen(optibuch, texte).slot(ablage),
           datum(QStringLiteral("tdat_0"), {}).slot(Textslots.datumVon).wählt(optibuch, 1),
           datum(QStringLiteral("tdat_1"), QStringLiteral("bis"))
               .slot(Textslots.datumBis)
               .wählt(optibuch, 1)
               .rechtsDavon()},
          spalte};
}

QStringList buchungsauswahlTexte() {
  return {QStringLiteral("Alle Buchungen"), QStringLiteral("Datum von"),
          QStringLiteral("Nur die letzte (aktuellste) Buchung je Volk")};
}

// ---- description ----

const Befehl* Beschreibung::befehl(const QString& gesucht) const {
  const auto treffer = std::ranges::find(befehle, gesucht, &Befehl::name);
  return treffer == befehle.end() ? nullptr : &*treffer;
}

const Eingabe* Beschreibung::eingabe(const QString& gesucht) const {
  for (const Gruppe& gruppe : gruppen)
    for (const Eingabe& e : gruppe.eingaben)
      if (e.name == gesucht) return &e;
  return nullptr;
}

// ---- slots ----

namespace {

bool hakenLaden(const Eingabe& e) {
  if (e.zahlslot) return EinstellungenZahl[*e.zahlslot] == (e.slotwert < 0 ? 1 : e.slotwert);
  if (e.textslot) {
    const QString& zeichen = EinstellungenText[*e.textslot];
    return e.stelle < zeichen.size() && zeichen.at(e.stelle) == u'1';
  }
  return e.vorgabe == u"1";
}

// How many entries a list or a group of options has.
qsizetype anzahl(const Eingabe& e, const Eingaben& eingaben) {
  return e.art == Art::Optionen ? e.texte.size() : eingaben.angebot(e.name).size();
}

int wahlLaden(const Eingabe& e, const Eingaben& eingaben) {
  const int index = e.zahlslot ? EinstellungenZahl[*e.zahlslot] : e.vorgabe.toInt();
  if (index >= 0 && index < anzahl(e, eingaben)) return index;
  if (e.darfLeerSein) return -1;
  return std::min(e.vorgabe.toInt(), static_cast<int>(anzahl(e, eingaben)) - 1);
}

QString textLaden(const Eingabe& e) {
  if (e.zahlslot) {
    const int zahl = EinstellungenZahl[*e.zahlslot];
    return zahl == 0 && e.nullIstVorgabe ? e.vorgabe : QString::number(zahl);
  }
  if (e.textslot) {
    const QString& text = EinstellungenText[*e.textslot];
    return text.isEmpty() ? e.vorgabe : text;
  }
  return e.vorgabe;
}

QStringList merklisteLaden(const Eingabe& e, const Eingaben& eingaben) {
  const QString liste = e.textslot ? EinstellungenText[*e.textslot] : e.vorgabe;
  QStringList gewählt;
  for (const QString& name : eingaben.angebot(e.name))
    if (inListe(liste, name)) gewählt += name;
  return gewählt;
}

void eingabeLaden(const Eingabe& e, Eingaben& eingaben) {
  switch (e.art) {
    case Art::Haken:
      return eingaben.setAn(e.name, hakenLaden(e));
    case Art::Optionen:
    case Art::Auswahl:
    case Art::Liste:
      return eingaben.setWahl(e.name, wahlLaden(e, eingaben));
    case Art::Merkliste:
      return eingaben.setGewählt(e.name, merklisteLaden(e, eingaben));
    case Art::Nebenliste:
    case Art::Lesetext:
    case Art::Befehl:
      return;
    default:
      return eingaben.setText(e.name, textLaden(e));
  }
}

void hakenSichern(const Eingabe& e, bool an) {
  if (e.zahlslot && e.slotwert < 0) {
    EinstellungenZahl[*e.zahlslot] = an ? 1 : 0;
  } else if (e.zahlslot) {
    if (an) EinstellungenZahl[*e.zahlslot] = static_cast<qint16>(e.slotwert);
  } else if (e.textslot) {
    QString& zeichen = EinstellungenText[*e.textslot];
    zeichen = zeichen.leftJustified(std::max<qsizetype>(e.stelle + 1, zeichen.size()), u'0');
    zeichen[e.stelle] = an ? u'1' : u'0';
  }
}

qint16 alsSlotzahl(const QString& text) {
  return static_cast<qint16>(std::clamp<qint64>(GanzLesen(text), std::numeric_limits<qint16>::min(),
                                                std::numeric_limits<qint16>::max()));
}

void eingabeSichern(const Eingabe& e, const Eingaben& eingaben) {
  switch (e.art) {
    case Art::Haken:
      return hakenSichern(e, eingaben.an(e.name));
    case Art::Optionen:
    case Art::Auswahl:
    case Art::Liste:
      if (e.zahlslot && eingaben.wahl(e.name) >= 0)
        EinstellungenZahl[*e.zahlslot] = static_cast<qint16>(eingaben.wahl(e.name));
      return;
    case Art::Merkliste:
      if (e.textslot) EinstellungenText[*e.textslot] = alsListe(eingaben.gewählt(e.name));
      return;
    case Art::Nebenliste:
    case Art::Lesetext:
    case Art::Befehl:
      return;
    default:
      if (e.zahlslot) EinstellungenZahl[*e.zahlslot] = alsSlotzahl(eingaben.text(e.name));
      if (e.textslot) EinstellungenText[*e.textslot] = eingaben.text(e.name);
  }
}

// Boxes that share a slot leave it at 0 when none is on; a text of boxes is built anew.
void geteilteLeeren(const Eingabe& e) {
  if (e.art != Art::Haken) return;
  if (e.zahlslot && e.slotwert >= 0) EinstellungenZahl[*e.zahlslot] = 0;
  if (e.textslot) EinstellungenText[*e.textslot].clear();
}

void jede(const Beschreibung& beschreibung, const std::function<void(const Eingabe&)>& aktion) {
  for (const Gruppe& gruppe : beschreibung.gruppen)
    for (const Eingabe& e : gruppe.eingaben) aktion(e);
}

}  // namespace

void laden(const Beschreibung& beschreibung, Eingaben& eingaben) {
  jede(beschreibung, [&](const Eingabe& e) { eingabeLaden(e, eingaben); });
  if (beschreibung.nachLaden) beschreibung.nachLaden(eingaben);
}

void sichern(const Beschreibung& beschreibung, const Eingaben& eingaben) {
  jede(beschreibung, [](const Eingabe& e) { geteilteLeeren(e); });
  jede(beschreibung, [&](const Eingabe& e) { eingabeSichern(e, eingaben); });
  if (beschreibung.sichern) beschreibung.sichern(eingaben);
}

QString ablehnung(const Beschreibung& beschreibung, const QStringList& gründe) {
  if (gründe.isEmpty()) return {};
  return beschreibung.kopf + CRLF + CRLF + gründe.join(CRLF);
}

// ---- what runs have in common ----

namespace {

enum Völkerwahl { ImBestand, Alle, Selektiert, NichtImBestand, Aktuell };

}  // namespace

QString schlichterRest(const Eingaben& eingaben) {
  switch (eingaben.wahl(QStringLiteral("optitieraus"))) {
    case Alle:
      return {};
    case Selektiert:
      return QStringLiteral(" where Selektiert = 'X'");
    case NichtImBestand:
      return QStringLiteral(" where Akt_im_Bestand <> 'X'");
    case Aktuell:
      return QStringLiteral(" where Bienenvolk.ID = ") + QString::number(eingaben.volk);
    default:
      return QStringLiteral(" where Akt_im_Bestand = 'X'");
  }
}

QString qualifizierterRest(const Eingaben& eingaben) {
  switch (eingaben.wahl(QStringLiteral("optitieraus"))) {
    case Alle:
      return QStringLiteral(" where Bienenvolk.Volknr IS NOT NULL");
    case Selektiert:
      return QStringLiteral(" where Bienenvolk.Selektiert = 'X'");
    case NichtImBestand:
      return QStringLiteral(" where Bienenvolk.Akt_im_Bestand <> 'X'");
    case Aktuell:
      return QStringLiteral(" where Bienenvolk.ID = ") + QString::number(eingaben.volk);
    default:
      return QStringLiteral(" where Bienenvolk.Akt_im_Bestand = 'X'");
  }
}

QString alsListe(const QStringList& namen) {
  return namen.isEmpty() ? QString() : u';' + namen.join(u';') + u';';
}

bool inListe(const QString& liste, const QString& name) {
  return liste.contains(u';' + name + u';');
}

// A date in any form that is taken for one, "1.7.06" too.
static QString sortiert(const QString& tag) {
  return DatumSortiert(Deutsch::datumText(DatumLesen(tag)));
}

QStringList zeitraumGründe(const Eingaben& eingaben) {
  QStringList gründe;
  if (eingaben.wahl(QStringLiteral("optibuch")) != 1) return gründe;
  const QString von = eingaben.text(QStringLiteral("tdat"), 0).trimmed();
  const QString bis = eingaben.text(QStringLiteral("tdat"), 1).trimmed();
  bool sindTage = true;
  for (const QString& tag : {von, bis}) {
    if (tag.isEmpty() || IstDatum(tag)) continue;
    sindTage = false;
    gründe += QStringLiteral("...'%1' kein Datum ist.").arg(tag);
  }
  if (sindTage && sortiert(von) > sortiert(bis))
    gründe += QStringLiteral("...das 'Datum von' größer ist als das 'Datum bis'.");
  if (von.isEmpty() || bis.isEmpty())
    gründe += QStringLiteral("...das Datum von...bis eingegeben werden muß.");
  return gründe;
}

QString zeitraumRest(const Eingaben& eingaben, const QString& feld) {
  if (eingaben.wahl(QStringLiteral("optibuch")) != 1) return {};
  return QStringLiteral(" and %1 >= %2 and %1 <= %3")
      .arg(feld, SqlDatum(eingaben.text(QStringLiteral("tdat"), 0).trimmed()),
           SqlDatum(eingaben.text(QStringLiteral("tdat"), 1).trimmed()));
}

QString diesesJahr() { return HeuteText.mid(6, 4); }

}  // namespace Auswertung
