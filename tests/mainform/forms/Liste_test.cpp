#include <QCheckBox>
#include <QFrame>
#include <QMenu>
#include <QSplitter>
#include <QToolBar>
#include <QToolButton>

#include "Hauptumfeld.h"
#include "platform/files/Textdatei.h"

using namespace TZ_Variablen;

class Völkerliste : public Hauptumfeld {
 protected:
  void klickeZeile(int zeile, Qt::KeyboardModifiers tasten = {}) {
    QTest::mouseClick(datali()->viewport(), Qt::LeftButton, tasten, zeilenmitte(zeile));
    QApplication::processEvents();
  }
  void doppelklick(int zeile) {
    QTest::mouseClick(datali()->viewport(), Qt::LeftButton, {}, zeilenmitte(zeile));
    QTest::mouseDClick(datali()->viewport(), Qt::LeftButton, {}, zeilenmitte(zeile));
    QApplication::processEvents();
  }
  void klickeKopf(int spalte) {
    auto* kopf = datali()->horizontalHeader();
    QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {},
                      QPoint(kopf->sectionViewportPosition(spalte) + 12, kopf->height() / 2));
    QApplication::processEvents();
  }
  void wähleKeine() { form->setAktuelleZeile(-1); }
};

TEST_F(Völkerliste, FilterZeigtBestandAbgangUndAlles) {
  völker(2, 1);
  starten();
  const QStringList texte = {"Bestand (2 Völker)", "Abgang (1 Völker)", "Alles (3 Völker)"};
  EXPECT_EQ(nummern(), QStringList({"1", "2"}));
  EXPECT_EQ(filtertexte(), texte);
  klick("optiverkauft_1");
  EXPECT_EQ(nummern(), QStringList({"A1"}));
  EXPECT_EQ(filtertexte(), texte);
  klick("optiverkauft_2");
  EXPECT_EQ(nummern().size(), 3);
  EXPECT_EQ(filtertexte(), texte);
  EXPECT_EQ(form->aktuelleZeile(), 0);
}

TEST_F(Völkerliste, WechselDerZeileSetztAktVolkIDUndLässtDasPanel) {
  völker(3);
  starten();
  EXPECT_EQ(AktVolkID, QStringLiteral("1"));
  klickeZeile(2);
  EXPECT_EQ(form->aktuelleZeile(), 2);
  EXPECT_EQ(AktVolkID, QStringLiteral("3"));
  EXPECT_EQ(panel(), QString());
}

TEST_F(Völkerliste, KnopfSchreibtDasPanel) {
  völker(2);
  starten();
  klickeZeile(1);
  klick("cmdok");
  EXPECT_TRUE(panel().startsWith("VOLKDATEN\nVolknummer:        2\nVolkname:          Volk 2\n"))
      << qPrintable(panel());
  EXPECT_EQ(finde<QLabel>("bildpos_10")->text(), QStringLiteral("2"));
  EXPECT_EQ(finde<QLabel>("bildpos_11")->text(), QStringLiteral("Volk 2"));
}

TEST_F(Völkerliste, DoppelklickUndEingabetasteHandelnWieDerKnopf) {
  völker(2);
  starten();
  doppelklick(1);
  EXPECT_TRUE(panel().contains("Volknummer:        2"));
  klickeZeile(0);
  QTest::keyClick(datali(), Qt::Key_Return);
  EXPECT_TRUE(panel().contains("Volknummer:        1"));
}

TEST_F(Völkerliste, PanelOhneAktuelleZeileBittetUmEinVolk) {
  völker(1);
  starten();
  wähleKeine();
  probe.hinweis(
      "Bitte markieren Sie erst das Volk, von dem Sie die verschiedenen Daten anzeigen möchten "
      "oder machen Sie einen Doppelklick auf das entsprechende Volk.");
  klick("cmdok");
}

TEST_F(Völkerliste, NächstesUndVorherigesGehenÜberDieEnden) {
  völker(3);
  starten();
  klick("abwaerts_1");
  EXPECT_EQ(form->aktuelleZeile(), 2);
  EXPECT_TRUE(panel().contains("Volknummer:        3"));
  klick("abwaerts_0");
  EXPECT_EQ(form->aktuelleZeile(), 0);
  EXPECT_TRUE(panel().contains("Volknummer:        1"));
  klick("abwaerts_0");
  EXPECT_EQ(form->aktuelleZeile(), 1);
  klick("abwaerts_1");
  EXPECT_EQ(form->aktuelleZeile(), 0);
}

TEST_F(Völkerliste, HinweiseDerKnöpfe) {
  völker(1);
  starten();
  EXPECT_EQ(finde<QToolButton>("abwaerts_0")->toolTip(), QStringLiteral("Nächstes Tier"));
  EXPECT_EQ(finde<QToolButton>("abwaerts_1")->toolTip(), QStringLiteral("Vorheriges Tier"));
  EXPECT_EQ(finde<QToolButton>("comdrucken")->toolTip(), QStringLiteral("Tierdaten drucken"));
  EXPECT_EQ(finde<QToolButton>("linksrechts")->toolTip(), QStringLiteral("Textfeldbreite ändern"));
}

TEST_F(Völkerliste, TastenÄndernDasPanelNicht) {
  völker(1);
  starten();
  klick("cmdok");
  const QString vorher = panel();
  auto* text = finde<QPlainTextEdit>("text1");
  text->setFocus();
  QTest::keyClicks(text, "neuer Text");
  QTest::keyClick(text, Qt::Key_Delete);
  EXPECT_EQ(panel(), vorher);
}

TEST_F(Völkerliste, AktivierungLiestNeuUndBehältDieZeile) {
  völker(3);
  starten();
  klickeZeile(2);
  DB.Execute("insert into Bienenvolk (Volknr, Akt_im_Bestand) values ('4', 'X')");
  form->aktivieren();
  EXPECT_EQ(form->zeilen(), 3);
  ListeNeuLesen = 1;
  form->aktivieren();
  EXPECT_EQ(form->zeilen(), 4);
  EXPECT_EQ(form->aktuelleZeile(), 2);
  EXPECT_EQ(ListeNeuLesen, 0);
}

TEST_F(Völkerliste, ZeileHinterDemEndeWirdDieErste) {
  völker(3);
  starten();
  klickeZeile(2);
  DB.Execute("delete from Bienenvolk where Volknr = '3'");
  ListeNeuLesen = 1;
  form->aktivieren();
  EXPECT_EQ(form->aktuelleZeile(), 0);
  EXPECT_EQ(AktVolkID, QStringLiteral("1"));
}

TEST_F(Völkerliste, OhneZeileWirdBeimNeuLesenDieErste) {
  völker(3);
  starten();
  wähleKeine();
  ListeNeuLesen = 1;
  form->aktivieren();
  EXPECT_EQ(form->aktuelleZeile(), 0);
}

TEST_F(Völkerliste, SortierungKommtBeimNächstenStartWieder) {
  völker(3);
  starten();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.sortierspalte], 1);
  klickeKopf(1);
  klickeKopf(1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.sortierspalte], 2);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.sortierrichtung], 1);
  EXPECT_EQ(nummern(), QStringList({"3", "2", "1"}));
  schließen();
  zurücksetzen();
  starten();
  EXPECT_EQ(nummern(), QStringList({"3", "2", "1"}));
  EXPECT_EQ(datali()->sortierSpalte(), 1);
}

TEST_F(Völkerliste, EingestellteStartsortierungGehtVor) {
  völker(3);
  starten();
  klickeKopf(1);
  klickeKopf(1);
  EinstellungenText[Textslots.sortierung1] = QStringLiteral("Volknr");
  ListeNeuLesen = 1;
  form->aktivieren();
  EXPECT_EQ(nummern(), QStringList({"1", "2", "3"}));
}

TEST_F(Völkerliste, SpalteSchmalerAlsFünfundzwanzigWirdFünfundzwanzigUndBleibtGemerkt) {
  völker(1);
  starten();
  datali()->horizontalHeader()->resizeSection(1, 3);
  EXPECT_EQ(datali()->columnWidth(1), 25);
  datali()->horizontalHeader()->resizeSection(2, 133);
  schließen();
  zurücksetzen();
  starten();
  EXPECT_EQ(datali()->columnWidth(1), 25);
  EXPECT_EQ(datali()->columnWidth(2), 133);
}

TEST_F(Völkerliste, ErsteSpalteZeigtNummerOderLaufendeNummer) {
  völker(2);
  starten();
  klickeKopf(0);
  klickeKopf(0);
  const auto kopf = [this](int zeile) {
    return datali()->model()->headerData(zeile, Qt::Vertical).toString();
  };
  const QString oberstes = form->zelle(0, "Volknr");
  EXPECT_EQ(kopf(0), oberstes);
  EinstellungenZahl[Zahlslots.laufendeNummer] = 1;
  EXPECT_EQ(kopf(0), QStringLiteral("1"));
  EXPECT_EQ(kopf(1), QStringLiteral("2"));
}

TEST_F(Völkerliste, NurAktuellesJahrBegrenztDieBuchungen) {
  völker(1);
  starten();
  DB.Execute("insert into Notizen (Datum, NOTIZ, Volk_ID) values (?, 'alt', 1)",
             {QDate(2023, 5, 5)});
  klick("cmdok");
  EXPECT_TRUE(panel().contains("Datum: 05.05.2023"));
  klick("kon");
  EXPECT_FALSE(panel().contains("Datum: 05.05.2023"));
}

TEST_F(Völkerliste, GrafikZeigtHonigsummenUndWirdGemerkt) {
  völker(1);
  starten();
  DB.Execute("insert into Honigernte (Datum, Menge_kg, Volk_ID) values (?, 12.5, 1)",
             {QDate(2024, 5, 5)});
  DB.Execute("insert into Honigernte (Datum, Menge_kg, Volk_ID) values (?, 20, 1)",
             {QDate(2023, 5, 5)});
  EXPECT_FALSE(finde<QFrame>("bild")->isVisible());
  klick("cmdok");
  EXPECT_EQ(finde<QLabel>("bildpos_20")->text(), QStringLiteral("0,0"));
  klick("kon1");
  EXPECT_TRUE(finde<QFrame>("bild")->isVisible());
  EXPECT_EQ(EinstellungenZahl[Zahlslots.grafikZeigen], 1);
  EXPECT_EQ(finde<QLabel>("honigjahr")->text(), QStringLiteral("Honig (2024):"));
  EXPECT_EQ(finde<QLabel>("bildpos_9")->text(), QStringLiteral("12,5"));
  EXPECT_EQ(finde<QLabel>("bildpos_19")->text(), QStringLiteral("12,5"));
  EXPECT_EQ(finde<QLabel>("bildpos_20")->text(), QStringLiteral("32,5"));
  schließen();
  zurücksetzen();
  starten();  // the check box comes back without writing the panel
  EXPECT_TRUE(finde<QCheckBox>("kon1")->isChecked());
  EXPECT_TRUE(finde<QFrame>("bild")->isVisible());
  EXPECT_EQ(panel(), QString());
}

TEST_F(Völkerliste, DruckenSchreibtDasPanelUndZeigtEsInDerListenausgabe) {
  völker(1);
  starten();
  QString gezeigt;
  const Formbesuch besuch("TA_Textausgabe", [&gezeigt](QWidget* ausgabe) {
    gezeigt = ausgabe->findChild<QPlainTextEdit*>("t")->toPlainText();
  });
  klick("comdrucken");
  EXPECT_TRUE(besuch.war());
  EXPECT_EQ(AusgabeDatei, datei("LISTE.TXT"));
  const QString liste = Textdatei::lesenGanz(AusgabeDatei);
  EXPECT_TRUE(liste.startsWith("VOLKDATEN\r\nVolknummer:        1\r\n"));
  EXPECT_EQ(gezeigt, QString(liste).remove('\r'));
  EXPECT_EQ(gezeigt.trimmed(), panel().trimmed());
  EXPECT_EQ(FormModus, QString());
}

TEST_F(Völkerliste, EineAlteListeWirdNieFürDieNeueGezeigt) {
  völker(1);
  starten();
  ASSERT_TRUE(QDir().mkdir(datei("LISTE.TXT")));  // the new one can't be written
  const Formbesuch besuch("TA_Textausgabe");
  probe.hinweisMit("LISTE.TXT");
  klick("comdrucken");
  QTest::qWait(20);
  EXPECT_FALSE(besuch.war());
}

TEST_F(Völkerliste, DruckenOhneVolkSagtWasFehlt) {
  völker(1);
  starten();
  wähleKeine();
  probe.hinweis("Sie müssen zuerst ein Volk auswählen, bevor Sie die Daten listen/drucken können.");
  klick("comdrucken");
  EXPECT_FALSE(QFile::exists(datei("LISTE.TXT")));
}

TEST_F(Völkerliste, BreitenknopfTauschtListeUndPanel) {
  völker(1);
  starten();
  auto* teiler = finde<QSplitter>("teiler");
  const auto anteil = [teiler] {
    return double(teiler->sizes()[0]) / (teiler->sizes()[0] + teiler->sizes()[1]);
  };
  EXPECT_NEAR(anteil(), 2.0 / 3, 0.05);
  klick("linksrechts");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.infofensterBreit], 1);
  EXPECT_NEAR(anteil(), 1.0 / 3, 0.05);
  klick("linksrechts");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.infofensterBreit], 0);
  EXPECT_NEAR(anteil(), 2.0 / 3, 0.05);
}

TEST_F(Völkerliste, MenüSperrenTrifftListeLeisteMenüsUndKnöpfe) {
  völker(1);
  starten();
  for (const bool frei : {false, true}) {
    form->MenueSperren(frei);
    for (const char* name : {"cmdok", "abwaerts_0", "abwaerts_1", "comdrucken", "datali",
                             "btn_neuesvolk", "btn_o_einstellungen"})
      EXPECT_EQ(finde<QWidget>(name)->isEnabled(), frei) << name;
    for (const char* name :
         {"XV_Bienenvolk", "XE_Eingabe", "A_Auswertungen", "V_Verwaltung", "O_Optionen", "H_Hilfe"})
      EXPECT_EQ(finde<QMenu>(name)->isEnabled(), frei) << name;
    EXPECT_TRUE(finde<QWidget>("linksrechts")->isEnabled());
    EXPECT_TRUE(finde<QWidget>("optiverkauft_0")->isEnabled());
  }
}

TEST_F(Völkerliste, NachDemStartHatDieListeDenFokus) {
  völker(2);
  starten();
  EXPECT_EQ(form->focusWidget(), datali());
}

TEST_F(Völkerliste, NeuLesenNimmtDerListeDenFokusNicht) {
  völker(2);
  starten();
  datali()->setFocus();
  form->datenvölkerlesen();
  EXPECT_TRUE(datali()->hasFocus());
}

TEST_F(Völkerliste, BildAnhaltenLässtDieBefehleStehen) {
  völker(2);
  starten();
  BildAnhalten = 1;
  form->setAktuelleZeile(1);
  EXPECT_EQ(AktVolkID, QStringLiteral("2"));
  form->setAktuelleZeile(-1);
  EXPECT_EQ(AktVolkID, QString());
  EXPECT_TRUE(aktion("XE_stockkarte")->isEnabled());
  BildAnhalten = 0;
  form->setAktuelleZeile(-1);
  EXPECT_FALSE(aktion("XE_stockkarte")->isEnabled());
}

TEST_F(Völkerliste, MehrereMarkierteZeilenUndDieListeFürAndereFormen) {
  völker(4);
  starten();
  klickeZeile(1);
  klickeZeile(3, Qt::ControlModifier);
  EXPECT_EQ(hauptliste(), form.get());
  EXPECT_EQ(hauptliste()->markierteZeilen(), QList<int>({1, 3}));
  hauptliste()->setMarkierteZeilen({0, 2});
  EXPECT_EQ(datali()->markierteZeilen(), QList<int>({0, 2}));
  EXPECT_EQ(hauptliste()->zelle(1, "Volkname"), QStringLiteral("Volk 2"));
  EXPECT_EQ(hauptliste()->zelle(1, "Gibtsnicht"), QString());
  EXPECT_EQ(hauptliste()->zelle(-1, "Volkname"), QString());
}

TEST_F(Völkerliste, AbgelehnteFeldlisteWirdGesagtUndDurchDenStandardErsetzt) {
  völker(2);
  starten();
  EinstellungenText[Textslots.volkfelder] =
      QStringLiteral("select Gibtsnicht, Futterwaben, ID from Bienenvolk");
  probe.hinweisMit("Gibtsnicht");
  klick("optiverkauft_2");
  EXPECT_EQ(nummern(), QStringList({"1", "2"}));
  EXPECT_EQ(AktVolkID, QStringLiteral("1"));
  EXPECT_TRUE(datali()->isEnabled());
  EXPECT_TRUE(finde<QMenu>("O_Optionen")->isEnabled());
  ListeNeuLesen = 1;
  form->aktivieren();  // nothing more to tell
  EXPECT_EQ(nummern(), QStringList({"1", "2"}));
}

TEST_F(Völkerliste, AbgelehnteFeldlisteHältDenStartNichtAufUndIstBeimNächstenVergessen) {
  völker(2);
  starten();
  EinstellungenText[Textslots.volkfelder] = QStringLiteral("select Futterwaben from nirgends");
  EinstellungenText[Textslots.sortierung1] = QStringLiteral("Volkname");
  schließen();
  zurücksetzen();
  Formbesuch hilfe("TH_Hilfe_Wieanfangen");
  probe.hinweisMit("Die eingestellten Felder der Völkerliste können nicht benutzt werden:");
  starten();
  EXPECT_FALSE(hilfe.war());
  EXPECT_EQ(nummern(), QStringList({"1", "2"}));
  EXPECT_EQ(EinstellungenZahl[Zahlslots.startzähler], 2);
  EXPECT_EQ(EinstellungenText[Textslots.sortierung1], QStringLiteral("Volkname"));
  schließen();
  zurücksetzen();
  starten();
  EXPECT_TRUE(
      EinstellungenText[Textslots.volkfelder].startsWith("select Volknr, Volkname, Volkstärke"));
}

TEST_F(Völkerliste, AbgelehnteStockkartenfelderHindernDieEingabeNicht) {
  völker(1);
  starten();
  EinstellungenText[Textslots.stockkartenfelder] =
      QStringLiteral("select Gibtsnicht, Futterwaben, ID from Stockkarte");
  probe.hinweisMit("Die eingestellten Felder der Stockkartenliste können nicht benutzt werden:");
  form->datenvölkerlesen();
  Formbesuch besuch("TE_Eingabe");
  aktion("XE_stockkarte")->trigger();
  EXPECT_TRUE(besuch.war());
}

TEST_F(Völkerliste, EineListeDieSichNichtLesenLässtSperrtDasProgrammNicht) {
  völker(2);
  starten();
  DB.Execute("drop table Bienenvolk");
  ListeNeuLesen = 1;
  EXPECT_ANY_THROW(form->aktivieren());
  EXPECT_EQ(ListeNeuLesen, 0);
  form->aktivieren();  // no second failure
  EXPECT_TRUE(datali()->isEnabled());
  EXPECT_TRUE(finde<QMenu>("O_Optionen")->isEnabled());
}

TEST_F(Völkerliste, EineUngeleseneListeGiltBeimStartNichtAlsLeer) {
  völker(2);
  ASSERT_TRUE(laden());
  DB.Execute("drop table Bienenvolk");
  Formbesuch hilfe("TH_Hilfe_Wieanfangen");
  probe.hinweis("Die Tabelle \"Bienenvolk\" gibt es in der Datenbank nicht.");
  zeigen();
  EXPECT_FALSE(hilfe.war());
}

TEST_F(Völkerliste, LeereListeZeigtEinenHinweis) {
  völker(1);
  starten();
  klick("optiverkauft_1");
  EXPECT_TRUE(finde<QLabel>("leerhinweis")->isVisible());
  klick("optiverkauft_0");
  EXPECT_FALSE(finde<QLabel>("leerhinweis")->isVisible());
}
