#include "colonies/Volk.h"

#include <QFileInfo>

#include "colonies/Testbetrieb.h"
#include "data/schema.h"
#include "platform/database/Dateigrenze.h"

namespace {

const QString WeilZeile = "Die Eingabe kann nicht übernommen werden, weil...\r\n\r\n";
const QString OhneNummer = "...die Volknummer angegeben werden muß.";
const QString NummerDoppelt = "...die Volknummer bereits existiert.";
const QString AbgangImBestand =
    "...das Volk als im Bestand markiert ist und gleichzeitig ein Abgangsdatum eingetragen wurde. "
    "Bitte entfernen Sie entweder das Abgangsdatum oder deaktivieren Sie das Feld 'Volk aktuell "
    "im Bestand'";
const QString SechsWerte =
    "Hinweis: Sie haben Werte geändert, die auch über den Hauptmenuepunkt 'Eingabe' eingetragen "
    "werden könnten. Dies bezieht sich auf die Werte Standort, Königing-Nr, Königin-Farbe, "
    "Zugangsdatum Königin, Mittelwände und Wabenanzahl. Falls in den Eingaben zu diesen "
    "Datenfeldern auch Eintragungen gemacht wurden, werden Ihre aktuellen Eintragungen ggf. wieder "
    "rückgängig gemacht.";
const QString StandortFrage =
    "Frage: Sie haben den neuen Standort Heide eingetragen. Lt. den Wanderungs-Buchungen ist der "
    "letzte Standort Wald (vom 02.05.2006). Soll der neue Standort mit dem heutigen Datum in den "
    "Wanderungsplan eingetragen werden?\r\n\r\nFalls Sie [Nein] auswählen, wird die "
    "Standort-Änderung nicht übernommen.";
const QString AlteBuchungen =
    "Frage: Das Volk wurde neu in den Bestand aufgenommen. Sollen ggf. existierende alte Buchungen "
    "(Stockkarten, Ernten, Wanderungen etc.) von diesem Volk gelöscht werden?";
const QString NochSichtbar =
    "Hinweis: Die letzten Stockkartendaten sind im Hauptmodul noch sichtbar, bis eine neue "
    "Stockkarte eingetragen wurde.";
const QString TermineNeu =
    "Hinweis: Das Volk war vorher nicht im Bestand und wurde neu als 'Aktuell im Bestand' "
    "markiert. Deshalb werden die Termine für dieses Volk neu berechnet.";

class Volk : public Testbetrieb {
 protected:
  // Saves a new colony and answers no box.
  qint64 speichereNeu(const Volkeingabe& e) { return volkSpeichern(db(), 0, e, e, fragen({})); }

  // Changes a colony: loads it, lets the test change the inputs, saves.
  template <typename Ändern>
  void ändere(qint64 id, Ändern ändern, const QList<bool>& antworten = {}) {
    const Volkeingabe geladen = *volkLaden(db(), id);
    Volkeingabe e = geladen;
    ändern(e);
    volkSpeichern(db(), id, e, geladen, fragen(antworten));
    EXPECT_EQ(m_gefragt, antworten.size());
  }

  Volkfragen fragen(const QList<bool>& antworten) {
    boxen.clear();
    m_gefragt = 0;
    return {[this, antworten](const QString& text) {
              boxen << "Frage: " + text;
              return m_gefragt < antworten.size() && antworten[m_gefragt++];
            },
            [this](const QString& text) { boxen << "Hinweis: " + text; }};
  }

  static void termin(qint64 volkId, const QString& erledigt) {
    db().Execute("insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, 'T', ?, ?)",
                 {QDate(2006, 6, 1), erledigt, volkId});
  }

  // One row in each booking table and one appointment.
  static void alleBuchungen(qint64 volkId) {
    for (const QString& tabelle : buchungstabellen())
      db().Execute("insert into " + tabelle + "(Datum, Volk_ID) values (?, ?)",
                   {QDate(2005, 5, 5), volkId});
    termin(volkId, "N");
  }
  static qint64 zahlDerBuchungen(qint64 volkId) {
    qint64 summe = 0;
    for (const QString& tabelle : buchungstabellen())
      summe += anzahl(tabelle, "Volk_ID = " + QString::number(volkId));
    return summe;
  }
  static qint64 zahlDerTermine(qint64 volkId) {
    return anzahl("Termine", "Volk_ID = " + QString::number(volkId));
  }

  // Two options for colonies (three appointments from the 20th of June on), one for none.
  static void dreiOptionen() {
    db().Execute("delete from Arbeitsplanoptionen");
    option("Kontrolle", "21.06", 9, "30.06");
    option(QString("Fütterung"), "01.09", 0, "01.09");
    option("Beuten bauen", "01.12", 0, "01.12", "N");
  }

  static Volkeingabe eingabe(const QString& nummer) {
    Volkeingabe e;
    e.sevt[0] = nummer;
    return e;
  }

  QStringList boxen;  // in the order shown

 private:
  qsizetype m_gefragt = 0;
};

class Volkprüfung : public Volk {};
class Volkspeicherung : public Volk {};
class Standortfrage : public Volk {};
class Bestandswechsel : public Volk {};

TEST_F(Volkprüfung, GuteEingabeHatKeinenGrund) { EXPECT_EQ(volkPrüfen(db(), 0, eingabe("1")), ""); }

TEST_F(Volkprüfung, LeereNummer) {
  EXPECT_EQ(volkPrüfen(db(), 0, eingabe("")), WeilZeile + OhneNummer);
  EXPECT_EQ(volkPrüfen(db(), 0, eingabe("   ")), WeilZeile + OhneNummer);
}

TEST_F(Volkprüfung, NummerGibtEsSchon) {
  neuesVolk("7");
  EXPECT_EQ(volkPrüfen(db(), 0, eingabe("7")), WeilZeile + NummerDoppelt);
  EXPECT_EQ(volkPrüfen(db(), 0, eingabe(" 7 ")), WeilZeile + NummerDoppelt);
}

TEST_F(Volkprüfung, NummerEinesAbgegangenenVolkesIstVergeben) {
  neuesVolk("7", "");
  EXPECT_EQ(volkPrüfen(db(), 0, eingabe("7")), WeilZeile + NummerDoppelt);
}

TEST_F(Volkprüfung, GroßUndKleinschreibungUnterscheidetNummernNicht) {
  neuesVolk("a1");
  EXPECT_EQ(volkPrüfen(db(), 0, eingabe("A1")), WeilZeile + NummerDoppelt);
}

TEST_F(Volkprüfung, ApostrophZähltAlsBacktick) {
  neuesVolk("7`a");
  EXPECT_EQ(volkPrüfen(db(), 0, eingabe("7'a")), WeilZeile + NummerDoppelt);
}

TEST_F(Volkprüfung, EigeneNummerBeimÄndernIstErlaubt) {
  const qint64 id = neuesVolk("7");
  EXPECT_EQ(volkPrüfen(db(), id, eingabe("7")), "");
}

TEST_F(Volkprüfung, FremdeNummerBeimÄndernIstVergeben) {
  neuesVolk("7");
  const qint64 id = neuesVolk("8");
  EXPECT_EQ(volkPrüfen(db(), id, eingabe("7")), WeilZeile + NummerDoppelt);
}

TEST_F(Volkprüfung, AbgangsdatumBeiVolkImBestand) {
  Volkeingabe e = eingabe("1");
  e.sevt[13] = "01.06.2006";
  EXPECT_EQ(volkPrüfen(db(), 0, e), WeilZeile + AbgangImBestand);
  e.kon = false;
  EXPECT_EQ(volkPrüfen(db(), 0, e), "");
}

TEST_F(Volkprüfung, AlleGründeStehenUntereinander) {
  Volkeingabe e = eingabe("");
  e.sevt[13] = "01.06.2006";
  EXPECT_EQ(volkPrüfen(db(), 0, e), WeilZeile + OhneNummer + "\r\n" + AbgangImBestand);
}

TEST_F(Volkspeicherung, NeuesVolkSchreibtAlleFelder) {
  Volkeingabe e;
  for (const Volkfeld& f : volkfelder()) {
    switch (f.art) {
      case Verwaltung::Art::Text:
        e[f] = "T" + QString::number(f.index);
        break;
      case Verwaltung::Art::Ganzzahl:
        e[f] = QString::number(f.index + 1);
        break;
      case Verwaltung::Art::Dezimal:
        e[f] = QString::number(f.index) + ",25";
        break;
      default:
        ASSERT_EQ(f.art, Verwaltung::Art::Datum);
        e[f] = QString::number(f.index + 1) + ".05.2006";
        break;
    }
  }
  e.kon = true;
  const qint64 id = speichereNeu(e);
  for (const Volkfeld& f : volkfelder()) {
    const QVariant w = wert("select " + f.feld + " from Bienenvolk where ID = ?", {id});
    switch (f.art) {
      case Verwaltung::Art::Text:
        EXPECT_EQ(w.toString(), "T" + QString::number(f.index)) << f.feld.toStdString();
        break;
      case Verwaltung::Art::Ganzzahl:
        EXPECT_EQ(w.toLongLong(), f.index + 1) << f.feld.toStdString();
        break;
      case Verwaltung::Art::Dezimal:
        EXPECT_EQ(w.toDouble(), f.index + 0.25) << f.feld.toStdString();
        break;
      default:
        ASSERT_EQ(f.art, Verwaltung::Art::Datum);
        EXPECT_EQ(w.toDate(), QDate(2006, 5, f.index + 1)) << f.feld.toStdString();
        break;
    }
  }
  EXPECT_EQ(wert("select Akt_im_Bestand from Bienenvolk").toString(), "X");
  EXPECT_FALSE(wert("select Selektiert from Bienenvolk").isNull());
  EXPECT_EQ(wert("select Selektiert from Bienenvolk").toString(), "");
  EXPECT_FALSE(wert("select STop from Bienenvolk").isNull());
  EXPECT_EQ(wert("select STop from Bienenvolk").toInt(), 0);
  EXPECT_EQ(wert("select SLeft from Bienenvolk").toInt(), 0);
  EXPECT_TRUE(boxen.isEmpty());
  EXPECT_EQ(TZ_Variablen::ListeNeuLesen, 1);
}

TEST_F(Volkspeicherung, NeueVölkerBekommenVerschiedeneNummern) {
  const qint64 erstes = speichereNeu(eingabe("1"));
  const qint64 zweites = speichereNeu(eingabe("2"));
  EXPECT_NE(erstes, zweites);
  EXPECT_EQ(wert("select Volknr from Bienenvolk where ID = ?", {zweites}).toString(), "2");
}

TEST_F(Volkspeicherung, LeereZahlenWerdenNull0UndLeereDatenNull) {
  const qint64 id = speichereNeu(eingabe("1"));
  for (const QString& name : {QString("Mittelwände"), QString("Volkstärke"),
                              QString("Volk_Einkaufspreis"), QString("Honigwaben")}) {
    const QVariant w = wert("select " + name + " from Bienenvolk where ID = ?", {id});
    EXPECT_FALSE(w.isNull()) << name.toStdString();
    EXPECT_EQ(w.toDouble(), 0) << name.toStdString();
  }
  EXPECT_TRUE(wert("select L_Honigernte from Bienenvolk").isNull());
  EXPECT_TRUE(wert("select Abgangsdatum from Bienenvolk").isNull());
  EXPECT_FALSE(wert("select Volkname from Bienenvolk").isNull());
}

TEST_F(Volkspeicherung, SchlechtesDatumWirdOhneMeldungNull) {
  Volkeingabe e = eingabe("1");
  e.sevt[6] = "31.02.2006";
  e.sevtx[12] = "gestern";
  speichereNeu(e);
  EXPECT_TRUE(wert("select Königin_Zugangsdatum from Bienenvolk").isNull());
  EXPECT_TRUE(wert("select L_Honigernte from Bienenvolk").isNull());
  EXPECT_TRUE(boxen.isEmpty());
}

TEST_F(Volkspeicherung, BuchstabenInZahlenWerdenGelesenWieSieStehen) {
  Volkeingabe e = eingabe("1");
  e.sevt[8] = "1,5";  // a whole number is read up to the comma
  e.sevt[9] = "abc";
  e.sevt[12] = "-3,5";  // signs fall away
  e.sevtx[0] = "1.234,5";
  speichereNeu(e);
  EXPECT_EQ(wert("select Mittelwände from Bienenvolk").toInt(), 1);
  EXPECT_EQ(wert("select Wabenanzahl from Bienenvolk").toInt(), 0);
  EXPECT_EQ(wert("select Volk_Einkaufspreis from Bienenvolk").toDouble(), 3.5);
  EXPECT_EQ(wert("select Volkstärke from Bienenvolk").toDouble(), 1234.5);
  EXPECT_TRUE(boxen.isEmpty());
}

TEST_F(Volkspeicherung, TexteWerdenGetrimmtUndApostropheErsetzt) {
  Volkeingabe e = eingabe(" 1 ");
  e.sevt[1] = " Maja's Volk ";
  speichereNeu(e);
  EXPECT_EQ(wert("select Volknr from Bienenvolk").toString(), "1");
  EXPECT_EQ(wert("select Volkname from Bienenvolk").toString(), "Maja`s Volk");
}

TEST_F(Volkspeicherung, UnverändertGespeichertBleibtAllesGleichUndOhneMeldung) {
  const qint64 id = speichereNeu(eingabe("1"));
  const Volkeingabe vorher = *volkLaden(db(), id);
  db().Execute("update Bienenvolk set Selektiert = 'X', STop = 5");
  ändere(id, [](Volkeingabe&) {});
  EXPECT_TRUE(boxen.isEmpty());
  EXPECT_EQ(volkLaden(db(), id)->sevt, vorher.sevt);
  EXPECT_EQ(volkLaden(db(), id)->sevtx, vorher.sevtx);
  EXPECT_EQ(wert("select Selektiert from Bienenvolk").toString(), "X");
  EXPECT_EQ(wert("select STop from Bienenvolk").toInt(), 5);
}

TEST_F(Volkspeicherung, JederDerSechsWerteBringtDenHinweis) {
  const qint64 id = neuesVolk("1");
  const QList<QPair<size_t, QString>> sechs = {{3, "Wald"},       {4, "Q1"}, {5, "rot"},
                                               {6, "01.06.2006"}, {8, "2"},  {9, "11"}};
  for (const auto& [index, text] : sechs) {
    ändere(id, [&](Volkeingabe& e) { e.sevt[index] = text; });
    EXPECT_EQ(boxen, QStringList{SechsWerte}) << index;
  }
}

TEST_F(Volkspeicherung, AndereWerteBringenKeinenHinweis) {
  const qint64 id = neuesVolk("1");
  ändere(id, [](Volkeingabe& e) {
    for (const size_t i : {1U, 2U, 7U, 11U, 15U, 18U, 19U}) e.sevt[i] = "neu";
    e.sevtx[0] = "4";
  });
  EXPECT_TRUE(boxen.isEmpty());
  EXPECT_EQ(wert("select Abnehmer from Bienenvolk").toString(), "neu");
}

TEST_F(Volkspeicherung, ÄndernTrifftNurDasEineVolk) {
  const qint64 id = neuesVolk("1");
  neuesVolk("2");
  ändere(id, [](Volkeingabe& e) { e.sevt[1] = "Maja"; });
  EXPECT_EQ(anzahl("Bienenvolk", "Volkname = 'Maja'"), 1);
  EXPECT_EQ(anzahl("Bienenvolk"), 2);
}

TEST_F(Volkspeicherung, VerschwundenesVolkIstEinFehler) {
  EXPECT_THROW(volkSpeichern(db(), 99, eingabe("1"), eingabe("1"), fragen({})), Datenbankfehler);
  EXPECT_EQ(anzahl("Bienenvolk"), 0);
}

TEST_F(Volkspeicherung, ZuLangerTextIstEinFehlerUndSchreibtNichts) {
  Volkeingabe e = eingabe("12345678901");
  EXPECT_THROW(volkSpeichern(db(), 0, e, e, fragen({})), Datenbankfehler);
  EXPECT_EQ(anzahl("Bienenvolk"), 0);
}

TEST_F(Standortfrage, JaBuchtEineWanderungHeute) {
  const qint64 id = neuesVolk("1", "X", "Wald");
  wanderung(id, QDate(2006, 4, 1), "Garten");
  wanderung(id, QDate(2006, 5, 2), "Wald");
  ändere(id, [](Volkeingabe& e) { e.sevt[3] = "Heide"; }, {true});
  EXPECT_EQ(boxen, QStringList({SechsWerte, StandortFrage}));
  EXPECT_EQ(wert("select Standort from Bienenvolk").toString(), "Heide");
  ASSERT_EQ(anzahl("Wanderung"), 3);
  Recordset neu = db().OpenRecordset("select * from Wanderung where Standort = 'Heide'");
  EXPECT_EQ(neu.Wert("Datum").toDate(), QDate(2006, 6, 20));
  EXPECT_EQ(neu.Wert("Volk_ID").toLongLong(), id);
  EXPECT_EQ(neu.Wert(QString("Prämie_erhalten")).toString(), "N");
  for (const QString& name : {QString("Zeit_h"), QString("Kosten"), QString("Standortprämie")}) {
    EXPECT_FALSE(neu.Wert(name).isNull()) << name.toStdString();
    EXPECT_EQ(neu.Wert(name).toDouble(), 0) << name.toStdString();
  }
  EXPECT_FALSE(neu.Wert("Bemerkung").isNull());
  EXPECT_EQ(neu.Wert("Bemerkung").toString(), "");
}

TEST_F(Standortfrage, NeinStelltDenAltenStandortWiederHer) {
  const qint64 id = neuesVolk("1", "X", "Wald");
  wanderung(id, QDate(2006, 5, 2), "Wald");
  ändere(id,
         [](Volkeingabe& e) {
           e.sevt[3] = "Heide";
           e.sevt[1] = "Maja";
         },
         {false});
  EXPECT_EQ(boxen, QStringList({SechsWerte, StandortFrage}));
  EXPECT_EQ(wert("select Standort from Bienenvolk").toString(), "Wald");
  EXPECT_EQ(wert("select Volkname from Bienenvolk").toString(), "Maja");
  EXPECT_EQ(anzahl("Wanderung"), 1);
}

TEST_F(Standortfrage, KommtAuchWennSchonDerGeladeneStandortAbwich) {
  const qint64 id = neuesVolk("1", "X", "Heide");
  wanderung(id, QDate(2006, 5, 2), "Wald");
  ändere(id, [](Volkeingabe&) {}, {false});
  EXPECT_EQ(boxen, QStringList({StandortFrage}));
  EXPECT_EQ(wert("select Standort from Bienenvolk").toString(), "Wald");
}

TEST_F(Standortfrage, GeleerterStandortFragtNicht) {
  const qint64 id = neuesVolk("1", "X", "Wald");
  wanderung(id, QDate(2006, 5, 2), "Wald");
  ändere(id, [](Volkeingabe& e) { e.sevt[3] = ""; });
  EXPECT_EQ(boxen, QStringList({SechsWerte}));
  EXPECT_EQ(wert("select Standort from Bienenvolk").toString(), "");
  EXPECT_EQ(anzahl("Wanderung"), 1);
}

TEST_F(Standortfrage, OhneWanderungKommtDerStandortOhneFrage) {
  const qint64 id = neuesVolk("1", "X", "Wald");
  const qint64 anderes = neuesVolk("2");
  wanderung(anderes, QDate(2006, 5, 2), "Garten");
  ändere(id, [](Volkeingabe& e) { e.sevt[3] = "Heide"; });
  EXPECT_EQ(boxen, QStringList({SechsWerte}));
  EXPECT_EQ(wert("select Standort from Bienenvolk where ID = ?", {id}).toString(), "Heide");
  EXPECT_EQ(anzahl("Wanderung"), 1);
}

TEST_F(Standortfrage, GleicherStandortFragtNicht) {
  const qint64 id = neuesVolk("1", "X", "Wald");
  wanderung(id, QDate(2006, 5, 2), "Wald");
  ändere(id, [](Volkeingabe&) {});
  EXPECT_TRUE(boxen.isEmpty());
}

TEST_F(Standortfrage, NeuesVolkBekommtKeineWanderung) {
  wanderung(0, QDate(2006, 5, 2), "Wald");  // of no colony, so of no new one either
  Volkeingabe e = eingabe("1");
  e.sevt[3] = "Heide";
  speichereNeu(e);
  EXPECT_EQ(wert("select Standort from Bienenvolk").toString(), "Heide");
  EXPECT_EQ(anzahl("Wanderung"), 1);
  EXPECT_TRUE(boxen.isEmpty());
}

TEST_F(Bestandswechsel, NeuesVolkImBestandBekommtSeineTermine) {
  dreiOptionen();
  const qint64 id = speichereNeu(eingabe("1"));
  EXPECT_EQ(zahlDerTermine(id), 3);
  EXPECT_EQ(anzahl("Termine"), 3);
  EXPECT_TRUE(boxen.isEmpty());
}

TEST_F(Bestandswechsel, NeuesVolkOhneBestandBekommtKeineTermine) {
  dreiOptionen();
  Volkeingabe e = eingabe("1");
  e.kon = false;
  const qint64 id = speichereNeu(e);
  EXPECT_EQ(zahlDerTermine(id), 0);
  EXPECT_EQ(wert("select Akt_im_Bestand from Bienenvolk").toString(), "");
  EXPECT_FALSE(wert("select Akt_im_Bestand from Bienenvolk").isNull());
}

TEST_F(Bestandswechsel, AbgangLöschtAlleTermineAuchErledigte) {
  dreiOptionen();
  const qint64 id = neuesVolk("1");
  const qint64 anderes = neuesVolk("2");
  termin(id, "N");
  termin(id, "J");
  termin(anderes, "N");
  alleBuchungen(id);
  ändere(id, [](Volkeingabe& e) {
    e.kon = false;
    e.sevt[13] = "19.06.2006";
  });
  EXPECT_EQ(zahlDerTermine(id), 0);
  EXPECT_EQ(zahlDerTermine(anderes), 1);
  EXPECT_EQ(zahlDerBuchungen(id), 11);
  EXPECT_TRUE(boxen.isEmpty());
  EXPECT_EQ(wert("select Abgangsdatum from Bienenvolk where ID = ?", {id}).toDate(),
            QDate(2006, 6, 19));
}

TEST_F(Bestandswechsel, BleibtImBestandBekommtKeineNeuenTermine) {
  dreiOptionen();
  const qint64 id = neuesVolk("1");
  termin(id, "J");
  ändere(id, [](Volkeingabe& e) { e.sevt[1] = "Maja"; });
  EXPECT_EQ(zahlDerTermine(id), 1);
  EXPECT_TRUE(boxen.isEmpty());
}

TEST_F(Bestandswechsel, BleibtAbgegangenUndBehältSeineBuchungen) {
  dreiOptionen();
  const qint64 id = neuesVolk("1", "");
  alleBuchungen(id);
  db().Execute("delete from Termine");
  ändere(id, [](Volkeingabe& e) { e.sevt[1] = "Maja"; });
  EXPECT_EQ(zahlDerTermine(id), 0);
  EXPECT_EQ(zahlDerBuchungen(id), 11);
  EXPECT_TRUE(boxen.isEmpty());
}

TEST_F(Bestandswechsel, RückkehrMitNeinBehältDieBuchungen) {
  dreiOptionen();
  const qint64 id = neuesVolk("1", "");
  alleBuchungen(id);
  db().Execute("delete from Termine");
  ändere(id, [](Volkeingabe& e) { e.kon = true; }, {false});
  EXPECT_EQ(boxen, QStringList({AlteBuchungen, TermineNeu}));
  EXPECT_EQ(zahlDerBuchungen(id), 11);
  EXPECT_EQ(zahlDerTermine(id), 3);
  EXPECT_EQ(wert("select Akt_im_Bestand from Bienenvolk").toString(), "X");
}

TEST_F(Bestandswechsel, RückkehrMitJaLöschtDieAltenBuchungen) {
  dreiOptionen();
  const qint64 id = neuesVolk("1", "");
  const qint64 anderes = neuesVolk("2");
  alleBuchungen(id);
  alleBuchungen(anderes);
  ändere(id, [](Volkeingabe& e) { e.kon = true; }, {true});
  EXPECT_EQ(boxen, QStringList({AlteBuchungen, NochSichtbar, TermineNeu}));
  EXPECT_EQ(zahlDerBuchungen(id), 0);
  EXPECT_EQ(zahlDerBuchungen(anderes), 11);
  EXPECT_EQ(zahlDerTermine(id), 3);
  EXPECT_EQ(anzahl("Bienenvolk"), 2);
}

TEST_F(Bestandswechsel, NullKennzeichenZähltAlsAbgegangen) {
  dreiOptionen();
  db().Execute("insert into Bienenvolk(Volknr) values ('1')");
  const qint64 id = db().LetzteID();
  ändere(id, [](Volkeingabe& e) { e.kon = true; }, {false});
  EXPECT_EQ(boxen, QStringList({AlteBuchungen, TermineNeu}));
  EXPECT_EQ(zahlDerTermine(id), 3);
}

// A new migration is booked before the old bookings go, so it goes with them.
TEST_F(Bestandswechsel, RückkehrMitNeuemStandortFragtErstNachDemStandort) {
  dreiOptionen();
  const qint64 id = neuesVolk("1", "", "Wald");
  wanderung(id, QDate(2006, 5, 2), "Wald");
  ändere(id,
         [](Volkeingabe& e) {
           e.kon = true;
           e.sevt[3] = "Heide";
         },
         {true, true});
  EXPECT_EQ(boxen,
            QStringList({SechsWerte, StandortFrage, AlteBuchungen, NochSichtbar, TermineNeu}));
  EXPECT_EQ(anzahl("Wanderung"), 0);
  EXPECT_EQ(wert("select Standort from Bienenvolk").toString(), "Heide");
}

TEST_F(Bestandswechsel, GescheiterteTermineLassenDasVolkGespeichert) {
  dreiOptionen();
  option("Schalttag", "29.02", 0, "29.02");
  const qint64 id = neuesVolk("1", "");
  ändere(id, [](Volkeingabe& e) { e.kon = true; }, {false});
  ASSERT_EQ(boxen.size(), 3);
  EXPECT_EQ(boxen.mid(0, 2), QStringList({AlteBuchungen, TermineNeu}));
  EXPECT_TRUE(boxen[2].contains("'Schalttag'")) << boxen[2].toStdString();
  EXPECT_EQ(wert("select Akt_im_Bestand from Bienenvolk").toString(), "X");
  EXPECT_EQ(zahlDerTermine(id), 3);
  EXPECT_EQ(TZ_Variablen::ListeNeuLesen, 1);
}

// The option that can't be computed stands in front of the others.
TEST_F(Bestandswechsel, EineUngültigeOptionNimmtEinemNeuenVolkDieAnderenTermineNicht) {
  db().Execute("delete from Arbeitsplanoptionen");
  option("Schalttag", "29.02", 0, "29.02");
  option("Seltsam", "01.07", 0, "01.07", "J", "Gibtesnicht");
  option("Kontrolle", "21.06", 9, "30.06");
  option("Beuten bauen", "01.12", 0, "01.12", "N");
  const qint64 id = speichereNeu(eingabe("1"));
  ASSERT_EQ(boxen.size(), 1);  // one box for both
  const QString text = boxen[0];
  EXPECT_TRUE(text.contains("'Schalttag'")) << text.toStdString();
  EXPECT_TRUE(text.contains("'Seltsam'")) << text.toStdString();
  EXPECT_TRUE(
      text.endsWith("Die Termine aller anderen Arbeitsplan-Optionen wurden eingetragen."
                    "\r\n\r\nDas Volk ist gespeichert."))
      << text.toStdString();
  EXPECT_EQ(wert("select Volknr from Bienenvolk where ID = ?", {id}), "1");
  EXPECT_EQ(anzahl("Termine", "Termin = 'Kontrolle'"), 2);
  EXPECT_EQ(zahlDerTermine(id), 2);
  EXPECT_EQ(anzahl("Termine"), 2);
}

TEST_F(Bestandswechsel, EineUngültigeOptionNimmtEinemZurückgekehrtenVolkDieAnderenTermineNicht) {
  db().Execute("delete from Arbeitsplanoptionen");
  option("Schalttag", "29.02", 0, "29.02");
  option("Kontrolle", "21.06", 9, "30.06");
  const qint64 id = neuesVolk("1", "");
  ändere(id, [](Volkeingabe& e) { e.kon = true; }, {false});
  EXPECT_EQ(boxen.size(), 3);
  EXPECT_EQ(zahlDerTermine(id), 2);
}

// Nobody reads that the colony is saved when nothing was.
TEST_F(Bestandswechsel, OhnePlatzAufDemDatenträgerWirdKeineOptionGenannt) {
  db().Execute("delete from Arbeitsplanoptionen");
  option("Schalttag", "29.02", 0, "29.02");
  option("Taeglich", "21.06", 1, "31.12");
  {
    const Dateigrenze grenze(static_cast<rlim_t>(QFileInfo(TZ_Variablen::DatenbankPfad).size()) +
                             4096);
    EXPECT_THROW(speichereNeu(eingabe("1")), Datenbankfehler);
  }
  EXPECT_EQ(boxen, QStringList());
  EXPECT_EQ(anzahl("Bienenvolk"), 0);
  EXPECT_EQ(anzahl("Termine"), 0);
}

TEST_F(Bestandswechsel, EineUngültigeOptionOhneVolkStörtEinNeuesVolkNicht) {
  db().Execute("delete from Arbeitsplanoptionen");
  option("Schalttag", "29.02", 0, "29.02", "N");
  option("Kontrolle", "21.06", 9, "30.06");
  EXPECT_EQ(zahlDerTermine(speichereNeu(eingabe("1"))), 2);
}

TEST_F(Volk, LöschenNimmtAlleBuchungenUndTermineDesEinenVolkes) {
  const qint64 id = neuesVolk("1");
  const qint64 anderes = neuesVolk("2");
  alleBuchungen(id);
  alleBuchungen(anderes);
  VolkLoeschen(db(), id);
  EXPECT_EQ(zahlDerBuchungen(id), 0);
  EXPECT_EQ(zahlDerTermine(id), 0);
  EXPECT_EQ(zahlDerBuchungen(anderes), 11);
  EXPECT_EQ(zahlDerTermine(anderes), 1);
  EXPECT_EQ(anzahl("Bienenvolk"), 2);
}

TEST_F(Volk, LöschenOhneBuchungenTutNichts) {
  EXPECT_NO_THROW(VolkLoeschen(db(), 99));
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 18);
}

}  // namespace
