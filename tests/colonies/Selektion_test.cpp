#include "colonies/Selektion.h"

#include "colonies/Testbetrieb.h"

using Selektion::Auftrag;

namespace {

enum Regelnummer {
  Alle,
  Keine,
  NachStandort,
  NachBeuteart,
  NachRasse,
  NachHerkunft,
  NachAbnehmer,
  ImBestand,
  Wo
};

class Selektieren : public Testbetrieb {
 protected:
  // A colony with one field set.
  static qint64 volk(const QString& nummer, const QString& feld, const QVariant& inhalt,
                     const QString& imBestand = "X") {
    const qint64 id = neuesVolk(nummer, imBestand);
    db().Execute("update Bienenvolk set " + feld + " = ? where ID = ?", {inhalt, id});
    return id;
  }
  static Auftrag auftrag(int regel, const QString& eingabe = {}) {
    Auftrag a;
    a.regel = regel;
    const int sevt = Selektion::regeln().at(regel).sevt;
    if (sevt >= 0) a.sevt[static_cast<size_t>(sevt)] = eingabe;
    return a;
  }
  static Auftrag wo(const QString& feld, const QString& zahl) {
    Auftrag a = auftrag(Wo, feld);
    a.sevt[6] = zahl;
    return a;
  }
  // Runs the order; the numbers of the colonies selected afterwards.
  static std::string nach(const Auftrag& a) {
    EXPECT_EQ(Selektion::prüfen(a).toStdString(), "");
    Selektion::ausführen(db(), a);
    return selektiert();
  }
  static std::string selektiert() {
    const Daten daten =
        db().Lesen("select Volknr from Bienenvolk where Selektiert = 'X' order by ID");
    QStringList nummern;
    for (int i = 0; i < daten->zeilen(); ++i) nummern << daten->wert(i, 0).toString();
    return nummern.join(' ').toStdString();
  }
  static void merke(const QString& nummer) {
    db().Execute("update Bienenvolk set Selektiert = 'X' where Volknr = ?", {nummer});
  }
  static std::string grund(int regel, const QString& eingabe = {}) {
    return Selektion::prüfen(auftrag(regel, eingabe)).toStdString();
  }
  // How often something was committed to the file so far: it counts that in its header.
  static quint32 festschreibungen() {
    QFile datei(TZ_Variablen::DatenbankPfad);
    EXPECT_TRUE(datei.open(QFile::ReadOnly));
    datei.seek(24);
    const QByteArray zahl = datei.read(4);
    quint32 ergebnis = 0;
    for (const char c : zahl) ergebnis = ergebnis << 8 | static_cast<quint8>(c);
    return ergebnis;
  }
};

// --- the table of the rules ---------------------------------------------------------------------

TEST_F(Selektieren, BeschriftungenDerNeunRegelnInIhrerReihenfolge) {
  QStringList texte;
  for (const auto& regel : Selektion::regeln()) texte << regel.beschriftung;
  EXPECT_EQ(texte, QStringList({"Alle Völker selektieren", "Alle Völker entselektieren",
                                "Völker mit Standort --->", "Völker mit Beuteart  --->",
                                "Völker der Rasse --->", "Völker der Herkunft --->",
                                "Völker an Abnehmer --->", "Völker die aktuell im Bestand sind",
                                "Völker wo..."}));
}

TEST_F(Selektieren, DieSiebzehnFelderFürVölkerWo) {
  EXPECT_EQ(Selektion::zahlfelder().join(' ').toStdString(),
            "Volkstärke Mittelwände Magazine Wabenanzahl Honigwaben Brutwaben Pollenwaben "
            "Drohnenwaben Leerwaben Futterwaben Brutstand Wabensitz Sanftmut Schwarmtrieb "
            "Frühjahrsentw Winterfestigkeit Varroabefall");
}

TEST_F(Selektieren, AnweisungenDerFünfAuswahllisten) {
  const QStringList felder{"Standort", "Beuteart", "Bienenrasse", "Volk_Herkunft", "Abnehmer"};
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(Selektion::listenAnweisung(i),
              "select distinct " + felder[i] + " from Bienenvolk order by " + felder[i]);
  EXPECT_EQ(Selektion::listenAnweisung(5), "");
  EXPECT_EQ(Selektion::listenAnweisung(6), "");
}

TEST_F(Selektieren, AlleVölkerAuchDieAbgegangenen) {
  neuesVolk("1");
  neuesVolk("2", "");
  EXPECT_EQ(nach(auftrag(Alle)), "1 2");
}

TEST_F(Selektieren, EntselektierenLeertAlleOhneNeuZuSetzen) {
  neuesVolk("1");
  neuesVolk("2", "");
  nach(auftrag(Alle));
  EXPECT_EQ(nach(auftrag(Keine)), "");
  EXPECT_EQ(anzahl("Bienenvolk", "Selektiert = ''"), 2);
}

TEST_F(Selektieren, EntselektierenLeertAuchDieAbgegangenenTrotzNurBestand) {
  neuesVolk("1");
  neuesVolk("2", "");
  nach(auftrag(Alle));
  Auftrag a = auftrag(Keine);
  a.nurBestand = true;
  EXPECT_EQ(nach(a), "");
}

TEST_F(Selektieren, NachStandort) {
  neuesVolk("1", "X", "Hof");
  neuesVolk("2", "X", "Wald");
  neuesVolk("3", "X", "Hof");
  EXPECT_EQ(nach(auftrag(NachStandort, "Hof")), "1 3");
}

TEST_F(Selektieren, NachBeuteart) {
  volk("1", "Beuteart", "Zander");
  volk("2", "Beuteart", "Dadant");
  EXPECT_EQ(nach(auftrag(NachBeuteart, "Dadant")), "2");
}

TEST_F(Selektieren, NachRasse) {
  volk("1", "Bienenrasse", "Carnica");
  volk("2", "Bienenrasse", "Buckfast");
  EXPECT_EQ(nach(auftrag(NachRasse, "Buckfast")), "2");
}

TEST_F(Selektieren, NachHerkunft) {
  volk("1", "Volk_Herkunft", "Schwarm");
  volk("2", "Volk_Herkunft", "Ableger");
  EXPECT_EQ(nach(auftrag(NachHerkunft, "Schwarm")), "1");
}

TEST_F(Selektieren, NachAbnehmer) {
  volk("1", "Abnehmer", "Huber", "");
  volk("2", "Abnehmer", "Maier", "");
  EXPECT_EQ(nach(auftrag(NachAbnehmer, "Maier")), "2");
}

TEST_F(Selektieren, AktuellImBestand) {
  neuesVolk("1");
  neuesVolk("2", "");
  volk("3", "Akt_im_Bestand", QVariant());
  EXPECT_EQ(nach(auftrag(ImBestand)), "1");
}

TEST_F(Selektieren, WoJedesDerSiebzehnFelderGleichDerZahlIst) {
  db().Sammelschreiben([] {
    for (const QString& feld : Selektion::zahlfelder()) {
      db().Execute("delete from Bienenvolk");
      volk("1", feld, 4);
      volk("2", feld, 5);
      EXPECT_EQ(nach(wo(feld, "5")), "2") << feld.toStdString();
    }
  });
}

// --- what counts as equal -----------------------------------------------------------------------

TEST_F(Selektieren, WoFindetDreiKommaDreiWieEsGetipptIst) {
  volk("1", "Volkstärke", 3.3);
  volk("2", "Volkstärke", 3.31);
  volk("3", "Volkstärke", 33);
  EXPECT_EQ(nach(wo("Volkstärke", "3,3")), "1");
}

TEST_F(Selektieren, WoFindetJedesZehntelBisFünf) {
  db().Sammelschreiben([] {
    for (int i = 1; i <= 50; ++i) volk(QString::number(i), "Sanftmut", i / 10.0);
    for (int i = 1; i <= 50; ++i) {
      Auftrag a = wo("Sanftmut", QString("%1,%2").arg(i / 10).arg(i % 10));
      a.alteLöschen = true;
      EXPECT_EQ(nach(a), std::to_string(i));
    }
  });
}

TEST_F(Selektieren, WoMitLeererZahlVergleichtMitNull) {
  volk("1", "Honigwaben", 0);
  volk("2", "Honigwaben", 1);
  EXPECT_EQ(nach(wo("Honigwaben", "")), "1");
}

TEST_F(Selektieren, EinFeldOhneZahlZähltAlsNull) {
  volk("1", "Honigwaben", QVariant());
  volk("2", "Honigwaben", 1);
  EXPECT_EQ(nach(wo("Honigwaben", "0")), "1");
  EXPECT_EQ(nach(wo("Honigwaben", "1")), "1 2");
}

TEST_F(Selektieren, WoVergleichtNichtGrößerUndNichtKleiner) {
  for (int i = 8; i <= 12; ++i) volk(QString::number(i), "Magazine", i);
  EXPECT_EQ(nach(wo("Magazine", "10")), "10");
}

TEST_F(Selektieren, WoMitKommazahlTrifftKeinGanzzahligesFeld) {
  volk("1", "Magazine", 2);
  EXPECT_EQ(nach(wo("Magazine", "2,5")), "");
}

TEST_F(Selektieren, TextregelVergleichtDenGanzenWert) {
  neuesVolk("1", "X", "Hof");
  neuesVolk("2", "X", "Hof Nord");
  neuesVolk("3", "X", "Bauernhof");
  EXPECT_EQ(nach(auftrag(NachStandort, "Hof")), "1");
}

TEST_F(Selektieren, EinLeeresFeldTrifftNieEinenGefülltenText) {
  neuesVolk("1", "X", "");
  volk("2", "Standort", QVariant());
  neuesVolk("3", "X", "Hof");
  EXPECT_EQ(nach(auftrag(NachStandort, "Hof")), "3");
}

TEST_F(Selektieren, TextregelKenntKeineGroßKleinschreibungUndKeineEndblanks) {
  neuesVolk("1", "X", "Straße am Hof");
  neuesVolk("2", "X", "STRASSE AM HOF");
  neuesVolk("3", "X", "Strase am Hof");
  EXPECT_EQ(nach(auftrag(NachStandort, "strasse am hof ")), "1 2");
}

TEST_F(Selektieren, UmlautIstEinAndererText) {
  volk("1", "Abnehmer", "Müller");
  volk("2", "Abnehmer", "Muller");
  EXPECT_EQ(nach(auftrag(NachAbnehmer, "Müller")), "1");
}

TEST_F(Selektieren, EinGespeicherterApostrophPasstZumGezeigtenBacktick) {
  neuesVolk("1", "X", "Val d'Or");
  neuesVolk("2", "X", "Val d`Or");
  neuesVolk("3", "X", "Val dOr");
  EXPECT_EQ(nach(auftrag(NachStandort, "Val d`Or")), "1 2");
  Auftrag getippt = auftrag(NachStandort, "Val d'Or");
  getippt.alteLöschen = true;
  EXPECT_EQ(nach(getippt), "1 2");
}

// --- the two check boxes ------------------------------------------------------------------------

TEST_F(Selektieren, OhneLöschenKommtEineSelektionZurAltenDazu) {
  neuesVolk("1", "X", "Hof");
  neuesVolk("2", "X", "Wald");
  neuesVolk("3", "X", "Heide");
  EXPECT_EQ(nach(auftrag(NachStandort, "Hof")), "1");
  EXPECT_EQ(nach(auftrag(NachStandort, "Heide")), "1 3");
}

TEST_F(Selektieren, MitLöschenErsetztEineSelektionDieAlte) {
  neuesVolk("1", "X", "Hof");
  neuesVolk("2", "X", "Wald");
  nach(auftrag(NachStandort, "Hof"));
  Auftrag a = auftrag(NachStandort, "Wald");
  a.alteLöschen = true;
  EXPECT_EQ(nach(a), "2");
}

TEST_F(Selektieren, AbgegangeneVölkerSindOhneNurBestandWählbar) {
  neuesVolk("1", "X", "Hof");
  neuesVolk("2", "", "Hof");
  EXPECT_EQ(nach(auftrag(NachStandort, "Hof")), "1 2");
}

TEST_F(Selektieren, NurBestandLässtAbgegangeneBeiJederRegelAus) {
  for (const char* akt : {"X", ""}) {
    const qint64 id = neuesVolk(akt[0] != 0 ? "1" : "2", akt, "Hof");
    db().Execute(
        "update Bienenvolk set Beuteart = 'Hof', Bienenrasse = 'Hof', Volk_Herkunft = 'Hof', "
        "Abnehmer = 'Hof' where ID = ?",
        {id});
  }
  QList<Auftrag> alle{auftrag(Alle), auftrag(ImBestand), wo("Magazine", "0")};
  for (const int regel : {NachStandort, NachBeuteart, NachRasse, NachHerkunft, NachAbnehmer})
    alle << auftrag(regel, "Hof");
  for (Auftrag& a : alle) {
    a.alteLöschen = true;
    EXPECT_NE(nach(a).find('1'), std::string::npos) << a.regel;
    a.nurBestand = true;
    EXPECT_EQ(nach(a), "1") << a.regel;
  }
}

TEST_F(Selektieren, NurBestandLässtDieFlaggeEinesAbgegangenenStehen) {
  neuesVolk("1", "X", "Hof");
  neuesVolk("2", "", "Hof");
  merke("2");
  Auftrag a = auftrag(NachStandort, "Hof");
  a.nurBestand = true;
  EXPECT_EQ(nach(a), "1 2");
}

TEST_F(Selektieren, WasNichtPasstBehältSeineFlagge) {
  neuesVolk("1", "X", "Hof");
  neuesVolk("2", "X", "Wald");
  merke("2");
  EXPECT_EQ(nach(auftrag(NachStandort, "Hof")), "1 2");
}

// --- what is missing ----------------------------------------------------------------------------

TEST_F(Selektieren, JedeRegelNenntWasIhrFehlt) {
  const QString anfang = "Der Selektionswunsch kann nicht ausgeführt werden, weil ";
  const QList<std::pair<int, QString>> worte{
      {NachStandort, "der Standort"}, {NachBeuteart, "die Beuteart"}, {NachRasse, "die Rasse"},
      {NachHerkunft, "die Herkunft"}, {NachAbnehmer, "der Abnehmer"}, {Wo, "der Bezug"}};
  for (const auto& [regel, wort] : worte)
    EXPECT_EQ(grund(regel), (anfang + wort + " nicht ausgewählt ist.").toStdString());
}

TEST_F(Selektieren, NurBlanksSindKeineAuswahl) {
  EXPECT_NE(grund(NachStandort, "   "), "");
  EXPECT_NE(grund(Wo, " "), "");
}

TEST_F(Selektieren, RegelnOhneEingabeBrauchenKeine) {
  for (const int regel : {Alle, Keine, ImBestand}) EXPECT_EQ(grund(regel), "");
  EXPECT_EQ(grund(Wo, "Magazine"), "");
}

TEST_F(Selektieren, EinFeldAußerhalbDerListeGiltAlsNichtAusgewählt) {
  EXPECT_NE(grund(Wo, "Volkname"), "");
}

TEST_F(Selektieren, EineFremdeEingabeErsetztDieEigeneNicht) {
  Auftrag a;
  a.regel = NachBeuteart;
  a.sevt[0] = "Hof";
  EXPECT_NE(Selektion::prüfen(a), "");
}

// --- one action, one commit ---------------------------------------------------------------------

TEST_F(Selektieren, DieListeWirdNeuGelesen) {
  neuesVolk("1");
  TZ_Variablen::ListeNeuLesen = 0;
  nach(auftrag(Keine));
  EXPECT_EQ(TZ_Variablen::ListeNeuLesen, 1);
}

TEST_F(Selektieren, ZehntausendVölkerInEinemZug) {
  db().Sammelschreiben([] {
    for (int i = 0; i < 10000; ++i) {
      db().Execute(
          "insert into Bienenvolk(Volknr, Akt_im_Bestand, Standort, Volkstärke) values (?, ?, ?, "
          "?)",
          {QString::number(i), i % 10 == 0 ? "" : "X", QString("Stand %1").arg(i % 50),
           i % 50 / 10.0});
    }
  });
  const auto einZug = [](const Auftrag& a) {
    const quint32 vorher = festschreibungen();
    Selektion::ausführen(db(), a);
    EXPECT_EQ(festschreibungen(), vorher + 1);
    return Selektion::selektierte(db()).alle;
  };
  EXPECT_EQ(einZug(auftrag(Alle)), 10000);
  Auftrag standort = auftrag(NachStandort, "stand 7");
  standort.alteLöschen = true;
  EXPECT_EQ(einZug(standort), 200);
  Auftrag zahl = wo("Volkstärke", "3,3");
  zahl.nurBestand = true;
  EXPECT_EQ(einZug(zahl), 400);
  EXPECT_EQ(einZug(auftrag(Keine)), 0);
}

TEST_F(Selektieren, EinScheiternAufHalbemWegBehältDasGeschriebene) {
  neuesVolk("1", "X", "Hof");
  merke("1");
  Auftrag a = wo("Magazine", "1");
  a.sevt[5] = "Gibtsnicht";
  a.alteLöschen = true;
  const quint32 vorher = festschreibungen();
  TZ_Variablen::ListeNeuLesen = 0;
  EXPECT_THROW(Selektion::ausführen(db(), a), Datenbankfehler);
  EXPECT_EQ(selektiert(), "");
  EXPECT_EQ(festschreibungen(), vorher + 1);
  EXPECT_EQ(TZ_Variablen::ListeNeuLesen, 1);
}

// --- by ID --------------------------------------------------------------------------------------

TEST_F(Selektieren, NurDieseLöschtErstAlleAuchVerborgene) {
  const qint64 eins = neuesVolk("1");
  neuesVolk("2");
  neuesVolk("3", "");
  merke("2");
  merke("3");
  Selektion::nurDiese(db(), {eins});
  EXPECT_EQ(selektiert(), "1");
}

TEST_F(Selektieren, NurDieseOhneVölkerLeertDieSelektion) {
  neuesVolk("1");
  merke("1");
  Selektion::nurDiese(db(), {});
  EXPECT_EQ(selektiert(), "");
}

TEST_F(Selektieren, NurDieseÜbergehtEinVolkDasEsNichtGibt) {
  const qint64 eins = neuesVolk("1");
  const qint64 zwei = neuesVolk("2");
  Selektion::nurDiese(db(), {eins, 4711, zwei});
  EXPECT_EQ(selektiert(), "1 2");
}

TEST_F(Selektieren, NurDieseSchreibtAllesInEinemZug) {
  QList<qint64> ids;
  db().Sammelschreiben([&] {
    for (int i = 0; i < 10000; ++i) ids << neuesVolk(QString::number(i));
  });
  const quint32 vorher = festschreibungen();
  Selektion::nurDiese(db(), ids);
  EXPECT_EQ(festschreibungen(), vorher + 1);
  EXPECT_EQ(Selektion::selektierte(db()).alle, 10000);
}

// --- the line that tells it ---------------------------------------------------------------------

TEST_F(Selektieren, DieZeileNenntDieAnzahlUndWasNichtMehrImBestandIst) {
  const auto zeile = [] {
    return Selektion::anzahlText(Selektion::selektierte(db())).toStdString();
  };
  EXPECT_EQ(zeile(), "Zur Zeit ist kein Volk selektiert.");
  neuesVolk("1");
  neuesVolk("2");
  neuesVolk("3", "");
  merke("1");
  EXPECT_EQ(zeile(), "Zur Zeit ist 1 Volk selektiert.");
  merke("2");
  EXPECT_EQ(zeile(), "Zur Zeit sind 2 Völker selektiert.");
  merke("3");
  EXPECT_EQ(zeile(), "Zur Zeit sind 3 Völker selektiert, davon 1 nicht mehr im Bestand.");
}

}  // namespace
