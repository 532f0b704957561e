#include "colonies/forms/TV_Neues_Volk.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QTabBar>
#include <QTimer>

#include "colonies/forms/Formtest.h"
#include "gemeinsam/Bildschirm.h"
#include "platform/files/Textdatei.h"

namespace {

const QString WeilZeile = "Die Eingabe kann nicht übernommen werden, weil...\r\n\r\n";

class TVNeuesVolk : public Formtest {
 protected:
  static QString volknummern() {
    const Daten daten = db().Lesen("select Volknr from Bienenvolk order by ID");
    QStringList texte;
    for (int i = 0; i < daten->zeilen(); ++i) texte << daten->wert(i, 0).toString();
    return texte.join(' ');
  }
  static void dreiVölker() {
    for (const char* nummer : {"1", "2", "3"}) neuesVolk(nummer);
  }
};

TEST_F(TVNeuesVolk, JedesFeldHatNamenUndBeschriftung) {
  neu();
  EXPECT_EQ(form->objectName(), "TV_Neues_Volk");
  for (int i = 0; i < SevtAnzahl; ++i)
    EXPECT_FALSE(feld("sevt_" + QString::number(i))->accessibleName().isEmpty()) << i;
  for (int i = 0; i < SevtxAnzahl; ++i)
    EXPECT_FALSE(feld("sevtx_" + QString::number(i))->accessibleName().isEmpty()) << i;
  for (const char* name :
       {"ok", "oknächster_0", "oknächster_1", "standard", "comhilfe", "cmdabbrechen"})
    kind<QPushButton>(QString::fromUtf8(name));
  EXPECT_EQ(kind<QCheckBox>("kon")->text(), "Volk aktuell im Bestand");
  EXPECT_EQ(feld("sevtx_11")->accessibleName(), QString("Varroaschäden"));
  EXPECT_EQ(feld("Futtervorrat flüssig")->beschreibung().einheit, "Liter");
}

TEST_F(TVNeuesVolk, NeuZeigtDenErstenReiterMitNummerEins) {
  neu();
  EXPECT_EQ(form->windowTitle(), "Neues Volk eingeben");
  EXPECT_EQ(kind<QTabWidget>("reiter")->currentIndex(), 0);
  EXPECT_EQ(inhalt("Volknummer"), "1");
  EXPECT_EQ(inhalt("Waben je Magazin"), "10");
  EXPECT_TRUE(kind<QCheckBox>("kon")->isChecked());
  EXPECT_TRUE(feld("Volknummer")->hasFocus());
  EXPECT_TRUE(kind<QPushButton>("ok")->isDefault());
  EXPECT_FALSE(kind<QPushButton>("oknächster_1")->isVisible());
}

TEST_F(TVNeuesVolk, OkSpeichertUndSchließt) {
  neu();
  tippe("Volknummer", "12");
  tippe("Volkname", "Maja");
  tippe("Einkaufspreis", "12,50");
  tippe("Zugangsdatum", "1.5.2006");
  tippe("Volkstärke", "3,5");
  tippe("Honigwaben", "4");
  klicke("ok");
  EXPECT_FALSE(offen());
  EXPECT_EQ(TZ_Variablen::ListeNeuLesen, 1);
  EXPECT_EQ(volknummern(), "12");
  EXPECT_EQ(wert("select Volkname from Bienenvolk").toString(), "Maja");
  EXPECT_EQ(wert("select Volk_Einkaufspreis from Bienenvolk").toDouble(), 12.5);
  EXPECT_EQ(wert("select Volk_Zugangsdatum from Bienenvolk").toDate(), QDate(2006, 5, 1));
  EXPECT_EQ(wert("select Volkstärke from Bienenvolk").toDouble(), 3.5);
  EXPECT_EQ(wert("select Honigwaben from Bienenvolk").toInt(), 4);
  EXPECT_EQ(wert("select Akt_im_Bestand from Bienenvolk").toString(), "X");
}

TEST_F(TVNeuesVolk, EingabetasteSpeichert) {
  neu();
  tippe("Volknummer", "5");
  QTest::keyClick(feld("Volknummer"), Qt::Key_Return);
  EXPECT_FALSE(offen());
  EXPECT_EQ(volknummern(), "5");
}

TEST_F(TVNeuesVolk, EscSchließtOhneZuSpeichern) {
  neu();
  tippe("Volknummer", "5");
  QTest::keyClick(feld("Volknummer"), Qt::Key_Escape);
  EXPECT_FALSE(offen());
  EXPECT_EQ(volknummern(), "");
  EXPECT_EQ(TZ_Variablen::ListeNeuLesen, 0);
}

TEST_F(TVNeuesVolk, AbbrechenSchließtOhneFrage) {
  neu();
  tippe("Volknummer", "5");
  klicke("cmdabbrechen");
  EXPECT_FALSE(offen());
  EXPECT_EQ(volknummern(), "");
}

TEST_F(TVNeuesVolk, LeereNummerWirdAbgelehntUndDasFormularBleibt) {
  neu();
  tippe("Volkname", "Maja");
  tippe("Volknummer", "");
  boxen.hinweis(WeilZeile + "...die Volknummer angegeben werden muß.");
  klicke("ok");
  EXPECT_TRUE(offen());
  EXPECT_EQ(inhalt("Volkname"), "Maja");
  EXPECT_TRUE(feld("Volknummer")->hasFocus());
  EXPECT_EQ(anzahl("Bienenvolk"), 0);
  EXPECT_EQ(TZ_Variablen::ListeNeuLesen, 0);
}

TEST_F(TVNeuesVolk, DoppelteNummerWirdAbgelehnt) {
  neuesVolk("a1");
  neu();
  tippe("Volknummer", "A1");
  boxen.hinweis(WeilZeile + "...die Volknummer bereits existiert.");
  klicke(QString("oknächster_0"));
  EXPECT_TRUE(offen());
  EXPECT_EQ(inhalt("Volknummer"), "A1");
  EXPECT_EQ(volknummern(), "a1");
}

TEST_F(TVNeuesVolk, AbgangsdatumImBestandZeigtSeinFeld) {
  neu();
  tippe("Abgangsdatum", "01.06.2006");
  kind<QTabWidget>("reiter")->setCurrentIndex(1);
  boxen.hinweis(WeilZeile +
                "...das Volk als im Bestand markiert ist und gleichzeitig ein Abgangsdatum "
                "eingetragen wurde. Bitte entfernen Sie entweder das Abgangsdatum oder "
                "deaktivieren Sie das Feld 'Volk aktuell im Bestand'");
  klicke("ok");
  EXPECT_TRUE(feld("Abgangsdatum")->isVisible());
  EXPECT_TRUE(feld("Abgangsdatum")->hasFocus());
  klicke("kon");
  klicke("ok");
  EXPECT_FALSE(offen());
  EXPECT_EQ(wert("select Akt_im_Bestand from Bienenvolk").toString(), "");
  EXPECT_EQ(wert("select Abgangsdatum from Bienenvolk").toDate(), QDate(2006, 6, 1));
}

TEST_F(TVNeuesVolk, NächstesNeuesVolkZähltWeiterUndLeertDieFelder) {
  neu();
  tippe("Volkname", "Maja");
  tippe("Volkstärke", "3");
  klicke(QString("oknächster_0"));
  EXPECT_TRUE(offen());
  EXPECT_EQ(inhalt("Volknummer"), "2");
  EXPECT_EQ(inhalt("Volkname"), "");
  EXPECT_EQ(inhalt("Volkstärke"), "");
  EXPECT_EQ(feld("Volkname")->liste(), QStringList{"Maja"});
  EXPECT_EQ(kind<QTabWidget>("reiter")->currentIndex(), 0);
  EXPECT_TRUE(feld("Volknummer")->hasFocus());
  EXPECT_EQ(liste->zeilen(), 1);
  klicke(QString("oknächster_0"));
  EXPECT_EQ(inhalt("Volknummer"), "3");
  EXPECT_EQ(volknummern(), "1 2");
}

TEST_F(TVNeuesVolk, NachEinerTextnummerIstDasFeldLeer) {
  neu();
  tippe("Volknummer", "A7");
  klicke(QString("oknächster_0"));
  EXPECT_EQ(inhalt("Volknummer"), "");
  EXPECT_EQ(volknummern(), "A7");
}

TEST_F(TVNeuesVolk, OhneSlot57BleibtDieNummerLeer) {
  TZ_Variablen::EinstellungenZahl[Zahlslots.volknummerHochzählen] = 0;
  neu();
  EXPECT_EQ(inhalt("Volknummer"), "");
  tippe("Volknummer", "7");
  klicke(QString("oknächster_0"));
  EXPECT_EQ(inhalt("Volknummer"), "");
}

// The form stays one instance, but the count goes on from what this opening saw.
TEST_F(TVNeuesVolk, WiederGeöffnetBeginntDieNummerVonVorn) {
  neu();
  tippe("Volknummer", "41");
  klicke("cmdabbrechen");
  form->laden();
  EXPECT_EQ(inhalt("Volknummer"), "1");
}

TEST_F(TVNeuesVolk, NachDemÄndernZähltDasNeueVolkNichtWeiter) {
  neuesVolk("7");
  ändern();
  EXPECT_EQ(inhalt("Volknummer"), "7");
  klicke("cmdabbrechen");
  TZ_Variablen::VolkModus = "Neu";
  form->laden();
  EXPECT_EQ(inhalt("Volknummer"), "1");
}

TEST_F(TVNeuesVolk, StandardwerteWerdenGesichertUndVorgegeben) {
  neu();
  tippe("Bienenrasse", "Carnica");
  tippe("Waben je Magazin", "12");
  boxen.hinweis(
      "Die Standardwerte wurden gesichert und werden ab sofort bei jeder Volk-Neueingabe als "
      "Standardwerte vorgegeben.");
  klicke("standard");
  EXPECT_EQ(TZ_Variablen::EinstellungenZahl[Zahlslots.wabenJeMagazin], 12);
  EXPECT_TRUE(offen());
  EXPECT_EQ(anzahl("Bienenvolk"), 0);
  neu();
  EXPECT_EQ(inhalt("Bienenrasse"), "Carnica");
  EXPECT_EQ(inhalt("Waben je Magazin"), "12");
}

TEST_F(TVNeuesVolk, AuswahllistenZeigenVorhandeneWerte) {
  db().Execute("insert into Standorte(Standort) values ('Wald')");
  db().Execute("insert into Standorte(Standort) values ('Heide')");
  db().Execute("insert into Bienenvolk(Volknr, Bienenrasse) values ('1', 'Buckfast')");
  db().Execute("insert into Bienenvolk(Volknr, Bienenrasse) values ('2', 'Buckfast')");
  db().Execute("insert into Bienenvolk(Volknr) values ('3')");
  neu();
  EXPECT_EQ(feld("Standort")->liste(), QStringList({"Heide", "Wald"}));
  EXPECT_EQ(feld("Bienenrasse")->liste(), QStringList({"Buckfast"}));
  EXPECT_TRUE(feld("Volknummer")->liste().isEmpty());
}

TEST_F(TVNeuesVolk, FelderNehmenNurWasPasst) {
  neu();
  tippe("Volknummer", "12345678901");
  EXPECT_EQ(inhalt("Volknummer"), "1234567890");
  // What follows a refused key doesn't close the gap, until the user has begun anew.
  tippe("Mittelwände", "1a2");
  EXPECT_EQ(inhalt("Mittelwände"), "1");
  tippe("Mittelwände", "12");
  EXPECT_EQ(inhalt("Mittelwände"), "12");
  tippe("Einkaufspreis", "x3,5");
  EXPECT_EQ(inhalt("Einkaufspreis"), "");
  tippe("Einkaufspreis", "3,5");
  EXPECT_EQ(inhalt("Einkaufspreis"), "3,5");
}

TEST_F(TVNeuesVolk, ÄndernLädtDasAktuelleVolk) {
  dreiVölker();
  db().Execute("update Bienenvolk set Volkname = 'Maja', Honigwaben = 4 where Volknr = '2'");
  ändern(1);
  EXPECT_EQ(form->windowTitle(), QString("Volk ändern"));
  EXPECT_EQ(inhalt("Volknummer"), "2");
  EXPECT_EQ(inhalt("Volkname"), "Maja");
  EXPECT_EQ(inhalt("Honigwaben"), "4");
  EXPECT_TRUE(kind<QPushButton>("oknächster_1")->isVisible());
  tippe("Volkname", "Willi");
  klicke("ok");
  EXPECT_FALSE(offen());
  EXPECT_EQ(wert("select Volkname from Bienenvolk where Volknr = '2'").toString(), "Willi");
  EXPECT_EQ(volknummern(), "1 2 3");
}

TEST_F(TVNeuesVolk, ÄndernOhneÄnderungFragtNichtsUndErhältDieWerte) {
  db().Execute(
      QString("insert into Bienenvolk(Volknr, Akt_im_Bestand, Königin_Zugangsdatum, Mittelwände, "
              "Wabenanzahl, Standort, Honigmenge_Gesamt) values ('1', 'X', ?, 2, 11, 'Wald', "
              "3.33)"),
      {QDate(2005, 7, 1)});
  ändern();
  klicke("ok");
  EXPECT_FALSE(offen());
  EXPECT_EQ(wert("select Königin_Zugangsdatum from Bienenvolk").toDate(), QDate(2005, 7, 1));
  EXPECT_EQ(wert("select Honigmenge_Gesamt from Bienenvolk").toDouble(), 3.33);
  EXPECT_EQ(wert("select Standort from Bienenvolk").toString(), "Wald");
}

TEST_F(TVNeuesVolk, VorUndZurückLaufenUmDieEndenDerListe) {
  dreiVölker();
  ändern(1);
  klicke(QString("oknächster_0"));
  EXPECT_EQ(inhalt("Volknummer"), "3");
  klicke(QString("oknächster_0"));
  EXPECT_EQ(inhalt("Volknummer"), "1");
  klicke(QString("oknächster_1"));
  EXPECT_EQ(inhalt("Volknummer"), "3");
  klicke(QString("oknächster_1"));
  EXPECT_EQ(inhalt("Volknummer"), "2");
  EXPECT_EQ(liste->aktuelleZeile(), 1);
  EXPECT_TRUE(offen());
}

TEST_F(TVNeuesVolk, WeitergehenSpeichertUndBleibtAufDemReiter) {
  dreiVölker();
  ändern(0);
  tippe("Honigwaben", "5");
  const int reiter = kind<QTabWidget>("reiter")->currentIndex();
  klicke(QString("oknächster_0"));
  EXPECT_EQ(wert("select Honigwaben from Bienenvolk where Volknr = '1'").toInt(), 5);
  EXPECT_EQ(inhalt("Honigwaben"), "");
  EXPECT_EQ(kind<QTabWidget>("reiter")->currentIndex(), reiter);
  tippe("Honigwaben", "6");
  klicke("ok");
  EXPECT_EQ(wert("select Honigwaben from Bienenvolk where Volknr = '2'").toInt(), 6);
  EXPECT_EQ(wert("select Honigwaben from Bienenvolk where Volknr = '1'").toInt(), 5);
}

TEST_F(TVNeuesVolk, EinEinzigesVolkBleibtStehen) {
  neuesVolk("1");
  ändern(0);
  klicke(QString("oknächster_0"));
  EXPECT_EQ(inhalt("Volknummer"), "1");
  EXPECT_TRUE(offen());
}

TEST_F(TVNeuesVolk, StandortFrageSteuertDieWanderung) {
  const qint64 id = neuesVolk("1", "X", "Wald");
  wanderung(id, QDate(2006, 5, 2), "Wald");
  const QString frage =
      "Sie haben den neuen Standort Heide eingetragen. Lt. den Wanderungs-Buchungen ist der "
      "letzte Standort Wald (vom 02.05.2006). Soll der neue Standort mit dem heutigen Datum in den "
      "Wanderungsplan eingetragen werden?\r\n\r\nFalls Sie [Nein] auswählen, wird die "
      "Standort-Änderung nicht übernommen.";
  ändern();
  tippe("Standort", "Heide");
  boxen.hinweisMit("Sie haben Werte geändert").frage(frage, false);
  klicke("ok");
  EXPECT_EQ(wert("select Standort from Bienenvolk").toString(), "Wald");
  EXPECT_EQ(anzahl("Wanderung"), 1);
  ändern();
  tippe("Standort", "Heide");
  boxen.hinweisMit("Sie haben Werte geändert").frage(frage, true);
  klicke("ok");
  EXPECT_EQ(wert("select Standort from Bienenvolk").toString(), "Heide");
  EXPECT_EQ(anzahl("Wanderung"), 2);
}

TEST_F(TVNeuesVolk, RückkehrInDenBestandFragtNachAltenBuchungen) {
  const qint64 id = neuesVolk("1", "");
  db().Execute("insert into Stockkarte(Datum, Volk_ID) values (?, ?)", {QDate(2005, 5, 5), id});
  option("Kontrolle", "21.06", 0, "21.06");
  ändern();
  EXPECT_FALSE(kind<QCheckBox>("kon")->isChecked());
  klicke("kon");
  boxen.frageMit("Das Volk wurde neu in den Bestand aufgenommen.", true)
      .hinweisMit("Die letzten Stockkartendaten sind im Hauptmodul noch sichtbar")
      .hinweisMit("Das Volk war vorher nicht im Bestand");
  klicke("ok");
  EXPECT_EQ(anzahl("Stockkarte"), 0);
  EXPECT_EQ(anzahl("Termine"), 1);
}

TEST_F(TVNeuesVolk, GescheitertesSpeichernLässtDieEingabenStehen) {
  neu();
  tippe("Volknummer", "5");
  tippe("Volkname", "Maja");
  db().Execute("drop table Bienenvolk");
  boxen.hinweis("Die Tabelle \"Bienenvolk\" gibt es in der Datenbank nicht.");
  klicke("ok");
  EXPECT_TRUE(offen());
  EXPECT_EQ(inhalt("Volknummer"), "5");
  EXPECT_EQ(inhalt("Volkname"), "Maja");
}

TEST_F(TVNeuesVolk, NachDerMeldungEinerUngültigenOptionSchließtOkDasGespeicherteVolk) {
  option("Schalttag", "29.02", 0, "29.02");
  option("Kontrolle", "01.07", 0, "01.07");
  neu();
  boxen.hinweisMit("'Schalttag'");
  klicke("ok");
  EXPECT_FALSE(offen());
  EXPECT_EQ(TZ_Variablen::ListeNeuLesen, 1);
  EXPECT_EQ(volknummern(), "1");
  EXPECT_EQ(anzahl("Termine"), 1);
}

TEST_F(TVNeuesVolk, NachDerMeldungEinerUngültigenOptionKommtDasNächsteNeueVolk) {
  option("Schalttag", "29.02", 0, "29.02");
  neu();
  for (int i = 0; i < 2; ++i) {
    boxen.hinweisMit("'Schalttag'");
    klicke(QString("oknächster_0"));
  }
  EXPECT_TRUE(offen());
  EXPECT_EQ(inhalt("Volknummer"), "3");
  EXPECT_EQ(volknummern(), "1 2");
}

TEST_F(TVNeuesVolk, EineUngültigeOptionHältEinZurückgekehrtesVolkNichtAuf) {
  neuesVolk("1", "");
  option("Schalttag", "29.02", 0, "29.02");
  ändern();
  klicke("kon");
  boxen.frageMit("Das Volk wurde neu in den Bestand aufgenommen.", false)
      .hinweisMit("Das Volk war vorher nicht im Bestand")
      .hinweisMit("'Schalttag'");
  klicke("ok");
  EXPECT_FALSE(offen());
  EXPECT_EQ(wert("select Akt_im_Bestand from Bienenvolk").toString(), "X");
}

TEST_F(TVNeuesVolk, SchlechtesDatumWirdOhneMeldungLeer) {
  neu();
  tippe("Zugangsdatum", "31.02.2006");
  klicke("ok");
  EXPECT_FALSE(offen());
  EXPECT_TRUE(wert("select Volk_Zugangsdatum from Bienenvolk").isNull());
}

TEST_F(TVNeuesVolk, TabLäuftDurchDenReiterZuDenKnöpfen) {
  neu();
  QStringList weg;
  for (int i = 0; i < 23; ++i) {
    weg << form->focusWidget()->objectName();
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(
      weg.mid(0, 22),
      QStringList({"sevt_0",       "sevt_1",   "sevt_2",   "sevt_3",      "sevt_10", "sevt_11",
                   "sevt_12",      "sevt_4",   "sevt_5",   "sevt_6",      "sevt_18", "sevt_19",
                   "kon",          "sevt_13",  "sevt_14",  "sevt_15",     "sevt_16", "ok",
                   "oknächster_0", "standard", "comhilfe", "cmdabbrechen"}));
}

TEST_F(TVNeuesVolk, KeineTastenkürzelDoppelt) {
  neuesVolk("1");
  for (const QString& modus : {QString("Neu"), QString("Ändern")}) {
    öffne(modus);
    QStringList texte;
    for (const auto* k : form->findChildren<QAbstractButton*>())
      if (k->isVisible()) texte << k->text();
    for (const auto* l : form->findChildren<QLabel*>()) texte << l->text();
    const auto* leiste = kind<QTabWidget>("reiter")->tabBar();
    for (int i = 0; i < leiste->count(); ++i) texte << leiste->tabText(i);
    QSet<QChar> gesehen;
    for (const QString& text : texte) {
      const qsizetype stelle = text.indexOf('&');
      if (stelle < 0) continue;
      const QChar taste = text.at(stelle + 1).toLower();
      EXPECT_FALSE(gesehen.contains(taste)) << text.toStdString();
      gesehen.insert(taste);
    }
    EXPECT_GE(gesehen.size(), 8);
  }
}

TEST_F(TVNeuesVolk, PasstAufEinenKleinenBildschirm) {
  neuesVolk("1");
  const Schriftgröße schrift(150);
  ändern();
  passtAufKleinenSchirm(*form);
}

TEST_F(TVNeuesVolk, ZeigenIstModalBisGeschlossenWird) {
  liste = std::make_unique<Testliste>("select * from Bienenvolk");
  TZ_Variablen::VolkModus = "Neu";
  TV_Neues_Volk formular;
  bool modal = false;
  QTimer::singleShot(0, &formular, [&] {
    modal = formular.isModal() && formular.isVisible();
    QTest::mouseClick(formular.findChild<QPushButton*>("ok"), Qt::LeftButton);
  });
  formular.zeigen();
  EXPECT_TRUE(modal);
  EXPECT_EQ(volknummern(), "1");
}

TEST_F(TVNeuesVolk, WasNichtGeladenWerdenKannWirdNichtGezeigtUndHältDieDatenbankNicht) {
  liste = std::make_unique<Testliste>("select * from Bienenvolk");
  TZ_Variablen::VolkModus = "Neu";
  db().Execute("drop table Bienenvolk");
  form = std::make_unique<TV_Neues_Volk>();
  EXPECT_THROW(form->zeigen(), Datenbankfehler);
  EXPECT_FALSE(form->isVisible());
  feld("Volknummer")->setInhalt("1");
  boxen.hinweisMit("Die Datenbank ist geschlossen.");
  kind<QPushButton>("ok")->click();
}

class VolkLöschenMitFrage : public Formtest {
 protected:
  void SetUp() override {
    Formtest::SetUp();
    neuesVolk("1");
    m_zweites = neuesVolk("2");
    neuesVolk("3");
    for (const QString& tabelle : buchungstabellen() + QStringList{"Termine"})
      for (const qint64 id : {m_zweites, m_zweites + 1})
        db().Execute("insert into " + tabelle + "(Datum, Volk_ID) values (?, ?)",
                     {QDate(2005, 5, 5), id});
    liste = std::make_unique<Testliste>("select * from Bienenvolk order by ID");
    liste->setAktuelleZeile(1);
    liste->setMarkierteZeilen({0, 1, 2});
  }
  static qint64 buchungen() {
    qint64 summe = anzahl("Termine");
    for (const QString& tabelle : buchungstabellen()) summe += anzahl(tabelle);
    return summe;
  }
  void erwarteFrage(bool ja) {
    boxen.frage(
        "Das Löschen eines Volkes entfernt das markierte Volk unwiederbringlich mit allen zu "
        "diesem Volk gehörenden Buchungen aus der Datenbank.\r\n\r\nSoll das markierte Volk "
        "wirklich gelöscht werden?",
        ja, Meldungen::Vorgabe::Nein);
  }
  qint64 m_zweites = 0;
};

TEST_F(VolkLöschenMitFrage, NeinIstVorgabeUndLässtAllesStehen) {
  erwarteFrage(false);
  EXPECT_FALSE(volkLöschenMitFrage(nullptr));
  EXPECT_EQ(anzahl("Bienenvolk"), 3);
  EXPECT_EQ(buchungen(), 24);
}

TEST_F(VolkLöschenMitFrage, JaLöschtNurDasAktuelleVolkMitAllemWasDazugehört) {
  erwarteFrage(true);
  EXPECT_TRUE(volkLöschenMitFrage(nullptr));
  EXPECT_EQ(anzahl("Bienenvolk"), 2);
  EXPECT_EQ(anzahl("Bienenvolk", "ID = " + QString::number(m_zweites)), 0);
  EXPECT_EQ(buchungen(), 12);
  EXPECT_EQ(liste->zeilen(), 2);
}

TEST_F(VolkLöschenMitFrage, ListeOhneIdLöschtKeineTermineOhneVolk) {
  db().Execute("insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, 'T', 'N', 0)",
               {QDate(2006, 7, 1)});
  liste.reset();
  liste = std::make_unique<Testliste>("select Volknr from Bienenvolk order by ID");
  erwarteFrage(true);
  EXPECT_THROW(volkLöschenMitFrage(nullptr), Datenbankfehler);
  EXPECT_EQ(anzahl("Bienenvolk"), 3);
  EXPECT_EQ(buchungen(), 25);
}

TEST_F(VolkLöschenMitFrage, OhneAktuelleZeileGeschiehtNichts) {
  liste->setAktuelleZeile(-1);
  EXPECT_FALSE(volkLöschenMitFrage(nullptr));
  EXPECT_EQ(anzahl("Bienenvolk"), 3);
}

}  // namespace
