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
  static void dreiVoelker() {
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
  EXPECT_EQ(feld("sevtx_9")->beschreibung().einheit, "Liter");
}

TEST_F(TVNeuesVolk, NeuZeigtDenErstenReiterMitNummerEins) {
  neu();
  EXPECT_EQ(form->windowTitle(), "Neues Volk eingeben");
  EXPECT_EQ(kind<QTabWidget>("reiter")->currentIndex(), 0);
  EXPECT_EQ(inhalt("sevt_0"), "1");
  EXPECT_EQ(inhalt("sevt_17"), "10");
  EXPECT_TRUE(kind<QCheckBox>("kon")->isChecked());
  EXPECT_TRUE(feld("sevt_0")->hasFocus());
  EXPECT_TRUE(kind<QPushButton>("ok")->isDefault());
  EXPECT_FALSE(kind<QPushButton>("oknächster_1")->isVisible());
}

TEST_F(TVNeuesVolk, OkSpeichertUndSchliesst) {
  neu();
  tippe("sevt_0", "12");
  tippe("sevt_1", "Maja");
  tippe("sevt_12", "12,50");
  tippe("sevt_10", "1.5.2006");
  tippe("sevtx_0", "3,5");
  tippe("sevtx_16", "4");
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
  tippe("sevt_0", "5");
  QTest::keyClick(feld("sevt_0"), Qt::Key_Return);
  EXPECT_FALSE(offen());
  EXPECT_EQ(volknummern(), "5");
}

TEST_F(TVNeuesVolk, EscSchliesstOhneZuSpeichern) {
  neu();
  tippe("sevt_0", "5");
  QTest::keyClick(feld("sevt_0"), Qt::Key_Escape);
  EXPECT_FALSE(offen());
  EXPECT_EQ(volknummern(), "");
  EXPECT_EQ(TZ_Variablen::ListeNeuLesen, 0);
}

TEST_F(TVNeuesVolk, AbbrechenSchliesstOhneFrage) {
  neu();
  tippe("sevt_0", "5");
  klicke("cmdabbrechen");
  EXPECT_FALSE(offen());
  EXPECT_EQ(volknummern(), "");
}

TEST_F(TVNeuesVolk, LeereNummerWirdAbgelehntUndDasFormularBleibt) {
  neu();
  tippe("sevt_1", "Maja");
  tippe("sevt_0", "");
  boxen.hinweis(WeilZeile + "...die Volknummer angegeben werden muß.");
  klicke("ok");
  EXPECT_TRUE(offen());
  EXPECT_EQ(inhalt("sevt_1"), "Maja");
  EXPECT_TRUE(feld("sevt_0")->hasFocus());
  EXPECT_EQ(anzahl("Bienenvolk"), 0);
  EXPECT_EQ(TZ_Variablen::ListeNeuLesen, 0);
}

TEST_F(TVNeuesVolk, DoppelteNummerWirdAbgelehnt) {
  neuesVolk("a1");
  neu();
  tippe("sevt_0", "A1");
  boxen.hinweis(WeilZeile + "...die Volknummer bereits existiert.");
  klicke(QString("oknächster_0"));
  EXPECT_TRUE(offen());
  EXPECT_EQ(inhalt("sevt_0"), "A1");
  EXPECT_EQ(volknummern(), "a1");
}

TEST_F(TVNeuesVolk, AbgangsdatumImBestandZeigtSeinFeld) {
  neu();
  tippe("sevt_13", "01.06.2006");
  kind<QTabWidget>("reiter")->setCurrentIndex(1);
  boxen.hinweis(WeilZeile +
                "...das Volk als im Bestand markiert ist und gleichzeitig ein Abgangsdatum "
                "eingetragen wurde. Bitte entfernen Sie entweder das Abgangsdatum oder "
                "deaktivieren Sie das Feld 'Volk aktuell im Bestand'");
  klicke("ok");
  EXPECT_TRUE(feld("sevt_13")->isVisible());
  EXPECT_TRUE(feld("sevt_13")->hasFocus());
  klicke("kon");
  klicke("ok");
  EXPECT_FALSE(offen());
  EXPECT_EQ(wert("select Akt_im_Bestand from Bienenvolk").toString(), "");
  EXPECT_EQ(wert("select Abgangsdatum from Bienenvolk").toDate(), QDate(2006, 6, 1));
}

TEST_F(TVNeuesVolk, NaechstesNeuesVolkZaehltWeiterUndLeertDieFelder) {
  neu();
  tippe("sevt_1", "Maja");
  tippe("sevtx_0", "3");
  klicke(QString("oknächster_0"));
  EXPECT_TRUE(offen());
  EXPECT_EQ(inhalt("sevt_0"), "2");
  EXPECT_EQ(inhalt("sevt_1"), "");
  EXPECT_EQ(inhalt("sevtx_0"), "");
  EXPECT_EQ(feld("sevt_1")->liste(), QStringList{"Maja"});
  EXPECT_EQ(kind<QTabWidget>("reiter")->currentIndex(), 0);
  EXPECT_TRUE(feld("sevt_0")->hasFocus());
  EXPECT_EQ(liste->zeilen(), 1);
  klicke(QString("oknächster_0"));
  EXPECT_EQ(inhalt("sevt_0"), "3");
  EXPECT_EQ(volknummern(), "1 2");
}

TEST_F(TVNeuesVolk, NachEinerTextnummerIstDasFeldLeer) {
  neu();
  tippe("sevt_0", "A7");
  klicke(QString("oknächster_0"));
  EXPECT_EQ(inhalt("sevt_0"), "");
  EXPECT_EQ(volknummern(), "A7");
}

TEST_F(TVNeuesVolk, OhneSlot57BleibtDieNummerLeer) {
  TZ_Variablen::EinstellungenZahl[57] = 0;
  neu();
  EXPECT_EQ(inhalt("sevt_0"), "");
  tippe("sevt_0", "7");
  klicke(QString("oknächster_0"));
  EXPECT_EQ(inhalt("sevt_0"), "");
}

// The form stays one instance, but the count goes on from what this opening saw.
TEST_F(TVNeuesVolk, WiederGeoeffnetBeginntDieNummerVonVorn) {
  neu();
  tippe("sevt_0", "41");
  klicke("cmdabbrechen");
  form->laden();
  EXPECT_EQ(inhalt("sevt_0"), "1");
}

TEST_F(TVNeuesVolk, NachDemAendernZaehltDasNeueVolkNichtWeiter) {
  neuesVolk("7");
  aendern();
  EXPECT_EQ(inhalt("sevt_0"), "7");
  klicke("cmdabbrechen");
  TZ_Variablen::VolkModus = "Neu";
  form->laden();
  EXPECT_EQ(inhalt("sevt_0"), "1");
}

TEST_F(TVNeuesVolk, StandardwerteWerdenGesichertUndVorgegeben) {
  neu();
  tippe("sevt_2", "Carnica");
  tippe("sevt_17", "12");
  boxen.hinweis(
      "Die Standardwerte wurden gesichert und werden ab sofort bei jeder Volk-Neueingabe als "
      "Standardwerte vorgegeben.");
  klicke("standard");
  EXPECT_EQ(TZ_Variablen::EinstellungenZahl[56], 12);
  EXPECT_TRUE(offen());
  EXPECT_EQ(anzahl("Bienenvolk"), 0);
  neu();
  EXPECT_EQ(inhalt("sevt_2"), "Carnica");
  EXPECT_EQ(inhalt("sevt_17"), "12");
}

TEST_F(TVNeuesVolk, AuswahllistenZeigenVorhandeneWerte) {
  db().Execute("insert into Standorte(Standort) values ('Wald')");
  db().Execute("insert into Standorte(Standort) values ('Heide')");
  db().Execute("insert into Bienenvolk(Volknr, Bienenrasse) values ('1', 'Buckfast')");
  db().Execute("insert into Bienenvolk(Volknr, Bienenrasse) values ('2', 'Buckfast')");
  db().Execute("insert into Bienenvolk(Volknr) values ('3')");
  neu();
  EXPECT_EQ(feld("sevt_3")->liste(), QStringList({"Heide", "Wald"}));
  EXPECT_EQ(feld("sevt_2")->liste(), QStringList({"Buckfast"}));
  EXPECT_TRUE(feld("sevt_0")->liste().isEmpty());
}

TEST_F(TVNeuesVolk, FelderNehmenNurWasPasst) {
  neu();
  tippe("sevt_0", "12345678901");
  EXPECT_EQ(inhalt("sevt_0"), "1234567890");
  tippe("sevt_8", "1a2");
  EXPECT_EQ(inhalt("sevt_8"), "12");
  tippe("sevt_12", "x3,5");
  EXPECT_EQ(inhalt("sevt_12"), "3,5");
}

TEST_F(TVNeuesVolk, AendernLaedtDasAktuelleVolk) {
  dreiVoelker();
  db().Execute("update Bienenvolk set Volkname = 'Maja', Honigwaben = 4 where Volknr = '2'");
  aendern(1);
  EXPECT_EQ(form->windowTitle(), QString("Volk ändern"));
  EXPECT_EQ(inhalt("sevt_0"), "2");
  EXPECT_EQ(inhalt("sevt_1"), "Maja");
  EXPECT_EQ(inhalt("sevtx_16"), "4");
  EXPECT_TRUE(kind<QPushButton>("oknächster_1")->isVisible());
  tippe("sevt_1", "Willi");
  klicke("ok");
  EXPECT_FALSE(offen());
  EXPECT_EQ(wert("select Volkname from Bienenvolk where Volknr = '2'").toString(), "Willi");
  EXPECT_EQ(volknummern(), "1 2 3");
}

TEST_F(TVNeuesVolk, AendernOhneAenderungFragtNichtsUndErhaeltDieWerte) {
  db().Execute(
      QString("insert into Bienenvolk(Volknr, Akt_im_Bestand, Königin_Zugangsdatum, Mittelwände, "
              "Wabenanzahl, Standort, Honigmenge_Gesamt) values ('1', 'X', ?, 2, 11, 'Wald', "
              "3.33)"),
      {QDate(2005, 7, 1)});
  aendern();
  klicke("ok");
  EXPECT_FALSE(offen());
  EXPECT_EQ(wert("select Königin_Zugangsdatum from Bienenvolk").toDate(), QDate(2005, 7, 1));
  EXPECT_EQ(wert("select Honigmenge_Gesamt from Bienenvolk").toDouble(), 3.33);
  EXPECT_EQ(wert("select Standort from Bienenvolk").toString(), "Wald");
}

TEST_F(TVNeuesVolk, VorUndZurueckLaufenUmDieEndenDerListe) {
  dreiVoelker();
  aendern(1);
  klicke(QString("oknächster_0"));
  EXPECT_EQ(inhalt("sevt_0"), "3");
  klicke(QString("oknächster_0"));
  EXPECT_EQ(inhalt("sevt_0"), "1");
  klicke(QString("oknächster_1"));
  EXPECT_EQ(inhalt("sevt_0"), "3");
  klicke(QString("oknächster_1"));
  EXPECT_EQ(inhalt("sevt_0"), "2");
  EXPECT_EQ(liste->aktuelleZeile(), 1);
  EXPECT_TRUE(offen());
}

TEST_F(TVNeuesVolk, WeitergehenSpeichertUndBleibtAufDemReiter) {
  dreiVoelker();
  aendern(0);
  tippe("sevtx_16", "5");
  const int reiter = kind<QTabWidget>("reiter")->currentIndex();
  klicke(QString("oknächster_0"));
  EXPECT_EQ(wert("select Honigwaben from Bienenvolk where Volknr = '1'").toInt(), 5);
  EXPECT_EQ(inhalt("sevtx_16"), "");
  EXPECT_EQ(kind<QTabWidget>("reiter")->currentIndex(), reiter);
  tippe("sevtx_16", "6");
  klicke("ok");
  EXPECT_EQ(wert("select Honigwaben from Bienenvolk where Volknr = '2'").toInt(), 6);
  EXPECT_EQ(wert("select Honigwaben from Bienenvolk where Volknr = '1'").toInt(), 5);
}

TEST_F(TVNeuesVolk, EinEinzigesVolkBleibtStehen) {
  neuesVolk("1");
  aendern(0);
  klicke(QString("oknächster_0"));
  EXPECT_EQ(inhalt("sevt_0"), "1");
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
  aendern();
  tippe("sevt_3", "Heide");
  boxen.hinweisMit("Sie haben Werte geändert").frage(frage, false);
  klicke("ok");
  EXPECT_EQ(wert("select Standort from Bienenvolk").toString(), "Wald");
  EXPECT_EQ(anzahl("Wanderung"), 1);
  aendern();
  tippe("sevt_3", "Heide");
  boxen.hinweisMit("Sie haben Werte geändert").frage(frage, true);
  klicke("ok");
  EXPECT_EQ(wert("select Standort from Bienenvolk").toString(), "Heide");
  EXPECT_EQ(anzahl("Wanderung"), 2);
}

TEST_F(TVNeuesVolk, RueckkehrInDenBestandFragtNachAltenBuchungen) {
  const qint64 id = neuesVolk("1", "");
  db().Execute("insert into Stockkarte(Datum, Volk_ID) values (?, ?)", {QDate(2005, 5, 5), id});
  option("Kontrolle", "21.06", 0, "21.06");
  aendern();
  EXPECT_FALSE(kind<QCheckBox>("kon")->isChecked());
  klicke("kon");
  boxen.frageMit("Das Volk wurde neu in den Bestand aufgenommen.", true)
      .hinweisMit("Die letzten Stockkartendaten sind im Hauptmodul noch sichtbar")
      .hinweisMit("Das Volk war vorher nicht im Bestand");
  klicke("ok");
  EXPECT_EQ(anzahl("Stockkarte"), 0);
  EXPECT_EQ(anzahl("Termine"), 1);
}

TEST_F(TVNeuesVolk, GescheitertesSpeichernLaesstDieEingabenStehen) {
  neu();
  tippe("sevt_0", "5");
  tippe("sevt_1", "Maja");
  db().Execute("drop table Bienenvolk");
  boxen.hinweis("Die Tabelle \"Bienenvolk\" gibt es in der Datenbank nicht.");
  klicke("ok");
  EXPECT_TRUE(offen());
  EXPECT_EQ(inhalt("sevt_0"), "5");
  EXPECT_EQ(inhalt("sevt_1"), "Maja");
}

TEST_F(TVNeuesVolk, NachDerMeldungEinerUngueltigenOptionSchliesstOkDasGespeicherteVolk) {
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

TEST_F(TVNeuesVolk, NachDerMeldungEinerUngueltigenOptionKommtDasNaechsteNeueVolk) {
  option("Schalttag", "29.02", 0, "29.02");
  neu();
  for (int i = 0; i < 2; ++i) {
    boxen.hinweisMit("'Schalttag'");
    klicke(QString("oknächster_0"));
  }
  EXPECT_TRUE(offen());
  EXPECT_EQ(inhalt("sevt_0"), "3");
  EXPECT_EQ(volknummern(), "1 2");
}

TEST_F(TVNeuesVolk, EineUngueltigeOptionHaeltEinZurueckgekehrtesVolkNichtAuf) {
  neuesVolk("1", "");
  option("Schalttag", "29.02", 0, "29.02");
  aendern();
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
  tippe("sevt_10", "31.02.2006");
  klicke("ok");
  EXPECT_FALSE(offen());
  EXPECT_TRUE(wert("select Volk_Zugangsdatum from Bienenvolk").isNull());
}

TEST_F(TVNeuesVolk, TabLaeuftDurchDenReiterZuDenKnoepfen) {
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

TEST_F(TVNeuesVolk, KeineTastenkuerzelDoppelt) {
  neuesVolk("1");
  for (const QString& modus : {QString("Neu"), QString("Ändern")}) {
    oeffne(modus);
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
  const Schriftgroesse schrift(150);
  aendern();
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

TEST_F(TVNeuesVolk, WasNichtGeladenWerdenKannWirdNichtGezeigtUndHaeltDieDatenbankNicht) {
  liste = std::make_unique<Testliste>("select * from Bienenvolk");
  TZ_Variablen::VolkModus = "Neu";
  db().Execute("drop table Bienenvolk");
  form = std::make_unique<TV_Neues_Volk>();
  EXPECT_THROW(form->zeigen(), Datenbankfehler);
  EXPECT_FALSE(form->isVisible());
  feld("sevt_0")->setInhalt("1");
  boxen.hinweisMit("Die Datenbank ist geschlossen.");
  kind<QPushButton>("ok")->click();
}

class VolkLoeschenMitFrage : public Formtest {
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

TEST_F(VolkLoeschenMitFrage, NeinIstVorgabeUndLaesstAllesStehen) {
  erwarteFrage(false);
  EXPECT_FALSE(volkLoeschenMitFrage(nullptr));
  EXPECT_EQ(anzahl("Bienenvolk"), 3);
  EXPECT_EQ(buchungen(), 24);
}

TEST_F(VolkLoeschenMitFrage, JaLoeschtNurDasAktuelleVolkMitAllemWasDazugehoert) {
  erwarteFrage(true);
  EXPECT_TRUE(volkLoeschenMitFrage(nullptr));
  EXPECT_EQ(anzahl("Bienenvolk"), 2);
  EXPECT_EQ(anzahl("Bienenvolk", "ID = " + QString::number(m_zweites)), 0);
  EXPECT_EQ(buchungen(), 12);
  EXPECT_EQ(liste->zeilen(), 2);
}

TEST_F(VolkLoeschenMitFrage, ListeOhneIdLoeschtKeineTermineOhneVolk) {
  db().Execute("insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, 'T', 'N', 0)",
               {QDate(2006, 7, 1)});
  liste.reset();
  liste = std::make_unique<Testliste>("select Volknr from Bienenvolk order by ID");
  erwarteFrage(true);
  EXPECT_THROW(volkLoeschenMitFrage(nullptr), Datenbankfehler);
  EXPECT_EQ(anzahl("Bienenvolk"), 3);
  EXPECT_EQ(buchungen(), 25);
}

TEST_F(VolkLoeschenMitFrage, OhneAktuelleZeileGeschiehtNichts) {
  liste->setAktuelleZeile(-1);
  EXPECT_FALSE(volkLoeschenMitFrage(nullptr));
  EXPECT_EQ(anzahl("Bienenvolk"), 3);
}

}  // namespace
