#include "evaluations/Listengenerator.h"

#include <QFile>

#include "colonies/Testbetrieb.h"
#include "platform/files/Textdatei.h"

using TZ_Variablen::AppPfad;
using TZ_Variablen::AusgabeDatei;

namespace {

class ListengeneratorTest : public Testbetrieb {
 protected:
  static qint64 volk(const QVariantHash& felder) {
    QStringList namen;
    QStringList fragezeichen;
    QVariantList werte;
    for (auto feld = felder.begin(); feld != felder.end(); ++feld) {
      namen += feld.key();
      fragezeichen += "?";
      werte += feld.value();
    }
    db().Execute(
        "insert into Bienenvolk(" + namen.join(u',') + ") values (" + fragezeichen.join(u',') + ")",
        werte);
    return db().LetzteID();
  }
  static void arbeit(qint64 volkId, const QVariant& tag, const QString& art) {
    db().Execute("insert into Arbeiten(Datum, Arbeitsart, Volk_ID) values (?, ?, ?)",
                 {tag, art, volkId});
  }
  // One line for one colony, in bars that show its ends.
  static std::string zeile(const QString& vorlage, qint64 volkId) {
    return '|' + Listengenerator::zeilen(db(), {vorlage}, {volkId}, 0).join(u'\n').toStdString() +
           '|';
  }
  static std::string datei(const QString& pfad) {
    return QString::fromLatin1(Textdatei::bytesLesen(pfad)).toStdString();
  }
  static std::string golden(const QString& name) {
    QFile datei(QStringLiteral(TOVA_TESTDATEN "/") + name);
    EXPECT_TRUE(datei.open(QFile::ReadOnly)) << name.toStdString();
    return datei.readAll().toStdString();
  }
  static std::string beispiel(const QString& name, const QList<qint64>& völker) {
    Listengenerator::beispieleSchreiben();
    return (Listengenerator::zeilen(db(), Textdatei::lesen(AppPfad + name), völker, 0).join(u'\n') +
            u'\n')
        .toStdString();
  }

  // A colony of which everything is known, and one that has just come.
  static qint64 anna() {
    const qint64 id = volk({{"Volknr", "12"},
                            {"Volkname", "Anna"},
                            {"Standort", "Hausgarten am Mühlbach, Reihe2"},
                            {"Volkstärke", 7.5},
                            {"Brutstand", 6},
                            {"Wabensitz", 8},
                            {"Sanftmut", 9},
                            {"Schwarmtrieb", 1.5},
                            {"Frühjahrsentw", 7},
                            {"Winterfestigkeit", 10},
                            {"Varroabefall", 0},
                            {"Belagert", 8.5},
                            {"Magazine", 2},
                            {"Wabenanzahl", 20},
                            {"Mittelwände", 2},
                            {"Honigwaben", 8},
                            {"Brutwaben", 7},
                            {"Pollenwaben", 2},
                            {"Drohnenwaben", 1},
                            {"Leerwaben", 1},
                            {"Futterwaben", 1},
                            {"HW_verdeckelt", 3},
                            {"BW_Stift", 2},
                            {"BW_offen", 3},
                            {"BW_verdeckelt", 4},
                            {"Futtervorrat_eigen", 3.5},
                            {"Futtervorrat_flüssig", 12},
                            {"Futtervorrat_Teig", 0},
                            {"Beuteart", "Zander"},
                            {"Bienenrasse", "Carnica"},
                            {"Königin_Nr", "B 17"},
                            {"Königin_Farbe", "blau"},
                            {"Königin_Zugangsdatum", QDate(2005, 7, 3)},
                            {"Belegstelle", "Norderney"},
                            {"Zuchtbuchnr", "2005-17"},
                            {"Volk_Zugangsdatum", QDate(2004, 4, 1)},
                            {"Volk_Herkunft", "Ableger von Müller"},
                            {"L_Honigernte", QDate(2006, 6, 10)},
                            {"L_Honigmenge_kg", 12.5},
                            {"Honigmenge_Gesamt", 118.25}});
    arbeit(id, QDate(2006, 5, 2), "Drohnenrahmen schneiden");
    arbeit(id, QDate(2006, 6, 12), "Honigraum aufsetzen");
    db().Execute("update Arbeiten set Bemerkung = ? where Arbeitsart = ?",
                 {"dritter Honigraum, gute Tracht", "Honigraum aufsetzen"});
    const auto behandlung =
        "insert into Behandlung(Datum, Behandlungsart, Mittel, Menge_g, "
        "Zulassungsnr, Wartezeit, Bemerkung, Anz_Varroen, Volk_ID) values (?, "
        "?, ?, ?, ?, ?, ?, ?, ?)";
    db().Execute(behandlung, {QDate(2005, 12, 27), "Winterbehandlung", "Oxalsäure", 35, "Z 4711", 0,
                              "brutfrei", 214, id});
    db().Execute(behandlung, {QDate(2005, 8, 5), "Sommerbehandlung", "Ameisensäure 60 %", 200, "",
                              14, "", 86, id});
    db().Execute("insert into Gewichtsmessung(Datum, Gewicht_kg, Volk_ID) values (?, ?, ?)",
                 {QDate(2006, 6, 1), 48.75, id});
    return id;
  }
  static qint64 neuling() { return volk({{"Volknr", "13a"}, {"Volkname", "Bärbel"}}); }
};

TEST_F(ListengeneratorTest, AlleFelderHabenEinenEigenenPlatzhalter) {
  QStringList platzhalter;
  QStringList bezeichnungen;
  for (const auto& feld : Listengenerator::datenfelder()) {
    EXPECT_TRUE(feld.platzhalter.startsWith(u'{') && feld.platzhalter.endsWith(u'}'));
    EXPECT_EQ(feld.platzhalter.count(u'{') + feld.platzhalter.count(u'}'), 2);
    platzhalter += feld.platzhalter.toLower();
    bezeichnungen += feld.bezeichnung;
  }
  EXPECT_EQ(platzhalter.size(), 80);
  EXPECT_EQ(platzhalter.removeDuplicates(), 0);
  EXPECT_EQ(bezeichnungen.removeDuplicates(), 0);
}

TEST_F(ListengeneratorTest, EinEintragIstBezeichnungUndPlatzhalter) {
  QStringList einträge;
  for (const auto& feld : Listengenerator::datenfelder())
    einträge += Listengenerator::eintrag(feld);
  EXPECT_EQ(einträge.first().toStdString(), "Volknr -> {Volknr--}");
  EXPECT_EQ(einträge.last().toStdString(), "Vorletzte Behandlung Anz_Varroen -> {VBVa}");
  for (const char* bekannt :
       {"Volkname -> {Volkname----------}", "Schwarmtrieb -> {ST}", "Drohnenwaben -> {DW}",
        "Magazine -> {MZ}", "Wabenanzahl -> {WZ}", "Frühjahrsentwicklung -> {FJ}",
        "Volkstärke -> {VS}", "Brutstand -> {BS}", "Wabensitz -> {WS}",
        "Letzte Arbeit Datum -> {LA_Datum}", "Letztes Gewicht -> {LG_Gew}",
        "Vorletzte Behandlung Wartezeit -> {VBWz}"})
    EXPECT_TRUE(einträge.contains(QString(bekannt))) << bekannt;
}

TEST_F(ListengeneratorTest, ZahlenStehenRechtsTexteUndTageLinks) {
  const qint64 id = volk({{"Volknr", "12"},
                          {"Volkname", "Anna"},
                          {"Volkstärke", 7.5},
                          {"L_Honigernte", QDate(2006, 6, 1)},
                          {"Volk_Einkaufspreis", 85}});
  EXPECT_EQ(zeile("{Volknr--}", id), "|        12|");
  EXPECT_EQ(zeile("{Volkname----------}", id), "|Anna                |");
  EXPECT_EQ(zeile("[{VS}] [{L_Honig-}]", id), "|[ 7,5] [01.06.2006]|");
  EXPECT_EQ(zeile("{EK_Preis} €", id), "|     85,00 €|");
}

TEST_F(ListengeneratorTest, EinTextDerKeineZahlIstStehtLinks) {
  EXPECT_EQ(zeile("{Volknr--}", volk({{"Volknr", "12a"}})), "|12a       |");
  EXPECT_EQ(zeile("{Volknr--}", volk({{"Volknr", "-3,5"}})), "|      -3,5|");
}

TEST_F(ListengeneratorTest, EinLängererWertWirdAbgeschnitten) {
  const QString name = "Anna-Magdalena von der Tannhöhe";
  EXPECT_EQ(Listengenerator::gesetzt(name.left(30), 20).toStdString(), "Anna-Magdalena von d");
  const qint64 id = volk({{"Volknr", "1"},
                          {"Standort", "Streuobstwiese am Hang hinter dem Hof"},
                          {"Honigwaben", 12345}});
  EXPECT_EQ(zeile("{Standort--------------------}!", id), "|Streuobstwiese am Hang hinter !|");
  EXPECT_EQ(zeile("{HW}!", id), "|1234!|");
}

TEST_F(ListengeneratorTest, VorletzteArbeitBeiEinerEinzigenSindLeerzeichen) {
  const qint64 id = volk({{"Volknr", "1"}});
  arbeit(id, QDate(2006, 5, 2), "Durchsicht");
  EXPECT_EQ(zeile("{LA_Datum}/{VA_Datum}/", id), "|02.05.2006/          /|");
  EXPECT_EQ(zeile("{VA_Arbeit-------------------}", id), '|' + std::string(30, ' ') + '|');
}

TEST_F(ListengeneratorTest, AnEinemTagIstDieZuerstGebuchteDieLetzte) {
  const qint64 id = volk({{"Volknr", "1"}});
  arbeit(id, {}, "ohne Tag");
  arbeit(id, QDate(2006, 5, 2), "morgens");
  arbeit(id, QDate(2006, 5, 2), "abends");
  arbeit(id, QDate(2006, 4, 2), "früher");
  EXPECT_EQ(zeile("{LA_Arbeit-------------------}", id), "|morgens                       |");
  EXPECT_EQ(zeile("{VA_Arbeit-------------------}", id), "|abends                        |");
}

TEST_F(ListengeneratorTest, LetzteErnteUndBehandlungSindFelderDesVolkes) {
  const qint64 id = volk({{"Volknr", "1"}, {"L_Behandlung", QDate(2005, 12, 27)}});
  db().Execute("insert into Behandlung(Datum, Volk_ID) values (?, ?)", {QDate(2006, 1, 5), id});
  EXPECT_EQ(zeile("{L_Behand} {LB_Datum}", id), "|27.12.2005 05.01.2006|");
}

TEST_F(ListengeneratorTest, EineKlammerOhneFeldBleibtStehen) {
  const qint64 id = volk({{"Volknr", "12"}});
  EXPECT_EQ(zeile("{", id), "|{|");
  EXPECT_EQ(zeile("{{MZ} {Volknr-} {vs} {Volknr--", id), "|{     {Volknr-} {vs} {Volknr--|");
  EXPECT_EQ(zeile("} {nichts} {Volknr--}", id), "|} {nichts}         12|");
}

TEST_F(ListengeneratorTest, EinWertMitKlammernIstKeinPlatzhalter) {
  EXPECT_EQ(zeile("{Volkname----------}", volk({{"Volkname", "{Volkname----------}"}})),
            "|{Volkname----------}|");
}

TEST_F(ListengeneratorTest, SeitenwechselNachDerAnzahlJeSeite) {
  QList<qint64> völker;
  for (const char* nummer : {"A", "B", "C", "D"}) völker += volk({{"Volknr", nummer}});
  const auto nummern = [](const QList<qint64>& ids, int jeSeite) {
    QStringList zeilen = Listengenerator::zeilen(db(), {"{Volknr--}"}, ids, jeSeite);
    for (QString& zeile : zeilen) zeile = zeile.trimmed();
    return zeilen.join(u' ').toStdString();
  };
  EXPECT_EQ(nummern(völker.first(3), 2), "A B # C");
  EXPECT_EQ(nummern(völker, 2), "A B # C D #");
  EXPECT_EQ(nummern(völker, 0), "A B C D");
}

TEST_F(ListengeneratorTest, DieVölkerKommenInDerReihenfolgeDerListe) {
  const qint64 erstes = volk({{"Volknr", "A"}});
  const qint64 zweites = volk({{"Volknr", "B"}});
  EXPECT_EQ(Listengenerator::zeilen(db(), {"{Volknr--}."}, {zweites, 4711, erstes}, 0),
            QStringList({"B         .", "A         ."}));
}

TEST_F(ListengeneratorTest, DieListeStehtInLISTETXTUndDerTextInDruckTxt) {
  const qint64 id = volk({{"Volknr", "12"}});
  Listengenerator::listen(db(), "Völker\n{Volknr--}", {id}, 1);
  EXPECT_EQ(AusgabeDatei.toStdString(), (AppPfad + "LISTE.TXT").toStdString());
  EXPECT_EQ(datei(AusgabeDatei), QString("Völker\r\n        12\r\n#\r\n").toStdString());
  EXPECT_EQ(datei(AppPfad + "druck.txt"), QString("Völker\r\n{Volknr--}").toStdString());
}

TEST_F(ListengeneratorTest, ZeichenDieDieDateiNichtHatWerdenGenannt) {
  EXPECT_EQ(Listengenerator::fremdeZeichen("Völker €ß – „Süd“"), "");
  EXPECT_EQ(Listengenerator::fremdeZeichen("a → b ≥ c → d"), "→ ≥");
  EXPECT_EQ(Listengenerator::fremdeZeichen(QString("a") + QChar(0x308)), "");  // ä of two parts
}

TEST_F(ListengeneratorTest, EinTextWirdGesichertWieErSteht) {
  Listengenerator::sichern("Mein.TKS", "Völker\n\n{VS}\r\n");
  EXPECT_EQ(datei(AppPfad + "Mein.TKS"), QString("Völker\r\n\r\n{VS}\r\n").toStdString());
}

TEST_F(ListengeneratorTest, DieBeispieleWerdenNurGeschriebenWennSieFehlen) {
  const QString karte = AppPfad + "Beispiel_Wabeneintrag.TKS";
  Textdatei::schreibenGanz(karte, "meins");
  Listengenerator::beispieleSchreiben();
  EXPECT_EQ(datei(karte), "meins");
  EXPECT_TRUE(QFile::exists(AppPfad + "Beispiel_Gesamtinfos.TKS"));
}

TEST_F(ListengeneratorTest, DieBeispieleBeginnenUndEndenWieVereinbart) {
  Listengenerator::beispieleSchreiben();
  const QStringList karte = Textdatei::lesen(AppPfad + "Beispiel_Wabeneintrag.TKS");
  EXPECT_TRUE(
      karte[0].startsWith("Volknr: {Volknr--}   Volkname: {Volkname----------}   Standort: "));
  EXPECT_EQ(karte[1], "Volkinformationen:");
  EXPECT_EQ(karte[2], "Volkstärke:{VS} ____  Brutstand:{BS} ____      Wabensitz:{WS} ____");
  EXPECT_EQ(karte.last(), QString(85, u'-'));
  const QStringList infos = Textdatei::lesen(AppPfad + "Beispiel_Gesamtinfos.TKS");
  for (const char* kopf : {"Volkinformationen", "Wabeninformationen", "Letzte Arbeiten",
                           "Letzte Behandlungen", "Letzte Gewichtsmessungen"})
    EXPECT_TRUE(infos.contains(QString(kopf))) << kopf;
  // Where the site has no more than 21 letters.
  for (const QString& zeile : karte + infos) {
    const QString ohneOrt = QString(zeile).replace("{Standort--------------------}", "Standort");
    EXPECT_LE(ohneOrt.size(), 85) << zeile.toStdString();
  }
}

TEST_F(ListengeneratorTest, DieKarteEinesBekanntenUndEinesNeuenVolkes) {
  const qint64 bekannt = anna();
  EXPECT_EQ(beispiel("Beispiel_Wabeneintrag.TKS", {bekannt, neuling()}),
            golden("Listengenerator_Wabeneintrag.golden.txt"));
}

TEST_F(ListengeneratorTest, DieZusammenfassungEinesBekanntenUndEinesNeuenVolkes) {
  const qint64 bekannt = anna();
  EXPECT_EQ(beispiel("Beispiel_Gesamtinfos.TKS", {bekannt, neuling()}),
            golden("Listengenerator_Gesamtinfos.golden.txt"));
}

// More colonies than are read at once, so that no group loses or doubles one.
TEST_F(ListengeneratorTest, VieleVölkerKommenAlleUndJedesMitSeinerArbeit) {
  QList<qint64> völker;
  db().Sammelschreiben([&] {
    for (int i = 0; i < 600; ++i) {
      völker += volk({{"Volknr", QString::number(i)}});
      arbeit(völker.last(), QDate(2006, 5, 2), "Arbeit " + QString::number(i));
    }
  });
  const QStringList zeilen =
      Listengenerator::zeilen(db(), {"{Volknr--} {LA_Arbeit-------------------}"}, völker, 0);
  ASSERT_EQ(zeilen.size(), 600);
  for (int i = 0; i < 600; ++i)
    ASSERT_EQ(zeilen[i].simplified().toStdString(), QString("%1 Arbeit %1").arg(i).toStdString());
}

}  // namespace
